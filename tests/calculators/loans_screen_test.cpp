#include "calculators/loan_screen.h"

#include "calculators/amortisation.h"
#include "reports/frmGraph.h"

namespace {

using namespace loantest;

TEST_F(LoanScreen, EachModeWorksOutItsFigure) {
    const std::tuple<int, QStringList, QStringList> cases[] = {
        {0, {"100000", "240", "12", ""}, {"100 000.00", "240", "12.000", "1 101.09"}},
        {1, {"", "240", "12", "1101.09"}, {"100 000.35", "240", "12.000", "1 101.09"}},
        {2, {"100000", "", "12", "1500"}, {"100 000.00", "110", "12.000", "1 503.07"}},
        {3, {"100000", "240", "", "1250"}, {"100 000.00", "240", "14.080", "1 250.00"}},
        {3, {"100000", "240", "", "400"}, {"100 000.00", "240", "0.000", "400.00"}}, // below principal / period
        {2, {"100000", "", "12", "900"}, {"100 000.00", "0", "12.000", "899.99"}},   // never clears
        {0, {"100000", "0", "12", ""}, {"100 000.00", "0", "12.000", "0.00"}},
    };
    for (const auto& [mode, typed, answer] : cases) {
        typeLoan(mode, typed);
        const auto* result = run.control<QLineEdit>(entries[resultOf[static_cast<std::size_t>(mode)]]);
        EXPECT_TRUE(result->font().italic());
        run.click("cmdCalculate");
        EXPECT_FALSE(result->font().italic());
        EXPECT_EQ(figures(), answer) << modes[mode].toStdString();
        EXPECT_FALSE(visible("Text1"));
    }
    EXPECT_TRUE(run.desk.boxes.empty());
}

TEST_F(LoanScreen, TheResultIsYellowReadOnlyAndOutOfTheTabOrder) {
    for (int mode = 0; mode < 4; ++mode) {
        pick(mode);
        EXPECT_EQ(run.record().loans.Heading, modes[mode].toStdString());
        EXPECT_EQ(run.control<QLabel>("Label12(1)")->text(), modes[mode]);
        EXPECT_EQ(run.control<QRadioButton>(QString("optLoanCalc(%1)").arg(mode))->text(), modes[mode]);
        EXPECT_EQ(run.focused(), mode == 1 ? "numPeriod" : "numPrinAmount");
        for (int i = 0; i < 4; ++i) {
            auto* entry = run.control<QLineEdit>(entries[i]);
            const bool isResult = i == resultOf[static_cast<std::size_t>(mode)];
            EXPECT_EQ(entry->isReadOnly(), isResult) << entries[i].toStdString();
            EXPECT_EQ(entry->palette().color(QPalette::Base) == QColor(255, 255, 0), isResult);
            EXPECT_EQ((entry->focusPolicy() & Qt::TabFocus) == 0, isResult);
        }
    }
    EXPECT_EQ(run.record().changed.LoansChanged, 1);
}

TEST_F(LoanScreen, OpeningItChangesNoBitOfTheRecord) {
    for (int mode = 0; mode < 4; ++mode) {
        Loans& loan = run.record().loans;
        loan = {modes[mode].toStdString(), 100000.07, 239, 11.37, 1203.3300000000002};
        const Loans before = loan;
        run.record().changed.LoansChanged = 0;
        reopen();
        EXPECT_EQ(loan, before) << loan.Heading;
        EXPECT_EQ(run.record().changed.LoansChanged, 0);
        run.menu("mnuPersDet"); // to another screen and back
        run.menu("mnuLoansCalc");
        EXPECT_EQ(loan, before) << loan.Heading;
        EXPECT_EQ(run.record().changed.LoansChanged, 0);
    }
}

TEST_F(LoanScreen, WhatAnOpeningShowsIsWhatItsTablesShow) {
    run.record().loans = {"Monthly repayment", 100000, 24, 12, 0}; // saved before it was ever solved
    reopen();
    EXPECT_EQ(run.shown("numMonRePay"), "4 707.35");
    run.click("cmdMonAmort");
    EXPECT_EQ(rows().size(), 24u);
    EXPECT_EQ(run.record().loans.Num4, 0);
}

TEST_F(LoanScreen, AResultThatTheFileLacksCountsAsAChange) {
    typeLoan(0, {"100000", "240", "12", ""});
    run.record().changed.LoansChanged = 0;
    run.click("cmdCalculate");
    EXPECT_EQ(run.record().changed.LoansChanged, 1);
    run.record().changed.LoansChanged = 0;
    run.click("cmdCalculate");
    EXPECT_EQ(run.record().changed.LoansChanged, 0);
}

TEST_F(LoanScreen, LimitsHaveTheirBoxesAndBringTheFocusBack) {
    for (const auto& [field, wrong, text, title, right] :
         {std::tuple{"numIntRate", "50.001", "The maximum interest rate allowed is 50%", "Incorrect Interest Rate!",
                     "50"},
          {"numPeriod", "601", "The maximum period  allowed is 600 months", "Incorrect Period!", "600"}}) {
        run.desk.expect(Answer::ok);
        run.type(field, wrong);
        EXPECT_EQ(run.desk.last().text, text);
        EXPECT_EQ(run.desk.last().title, title);
        EXPECT_EQ(run.desk.last().style, screenkit::BoxStyle::critical);
        EXPECT_EQ(run.focused(), field);
        run.type(field, right);
        EXPECT_NE(run.focused(), field);
    }
}

TEST_F(LoanScreen, ASolvedRateAboveFiftyIsMarkedWithoutABox) {
    typeLoan(3, {"1000", "12", "", "200"});
    run.click("cmdCalculate");
    EXPECT_TRUE(visible("Text1"));
    EXPECT_EQ(run.control<QLabel>("Text1")->text(), "   Error");
    EXPECT_EQ(run.shown("numIntRate"), "203.310");
    EXPECT_TRUE(run.desk.boxes.empty());
    run.type("numMonRePay", "85");
    run.click("cmdCalculate");
    EXPECT_FALSE(visible("Text1"));
}

TEST_F(LoanScreen, AnAnswerThatIsNotFiniteShowsAnErrorAndKeepsWhatWasTyped) {
    typeLoan(0, {"100000", "240", "0.0000000000001", ""});
    run.click("cmdFinCharge");
    run.click("cmdCalculate");
    for (const char* result : {"numMonRePay", "numAns1"})
        EXPECT_EQ(run.shown(result), "   Error");
    EXPECT_EQ(run.record().loans, Loans(modes[0].toStdString(), 100000, 240, 1e-13, 0));
    run.click("cmdMonAmort"); // no table either
    EXPECT_EQ(run.focused(), "numPrinAmount");
    run.menu("mnuPersDet");
    run.type("txtCLName", "Botha");
    run.menu("mnuSave");
    EXPECT_EQ(run.inClients("SELECT Num1, Num2, Num3, Num4 FROM Data"), "100000|240|1e-13|0");
}

TEST_F(LoanScreen, FinancialChargesAreToggledAndKeptOverAReopening) {
    EXPECT_FALSE(visible("numAns1"));
    typeLoan(0, {"100000", "240", "12", ""});
    run.click("cmdCalculate");
    run.click("cmdFinCharge");
    EXPECT_TRUE(visible("numAns1"));
    run.expectShown("numAns1 164 260.67, numAns2 264 260.67");
    EXPECT_EQ(run.record().FinChargeState, "DOWN");
    reopen();
    EXPECT_EQ(run.shown("numAns2"), "264 260.67");
    EXPECT_TRUE(visible("numAns2"));
    run.click("cmdFinCharge");
    EXPECT_FALSE(visible("numAns1"));
    EXPECT_FALSE(visible("numAns2"));
    EXPECT_EQ(run.record().FinChargeState, "UP");
    run.click("cmdFinCharge");
    run.desk.expect(Answer::no);
    run.menu("mnuNewFile");
    EXPECT_EQ(run.record().FinChargeState, "UP");
}

TEST_F(LoanScreen, TablesShowEachMonthAndTheYearsWithThePartYearLast) {
    typeLoan(0, {"100000", "25", "12", ""});
    run.click("cmdCalculate");
    run.click("cmdMonAmort");
    EXPECT_EQ(heads(), "Month, Capital payment, Interest payment, Balance");
    ASSERT_EQ(rows().size(), 25u);
    EXPECT_EQ(rows()[0], QStringList({"1", "3 540.68", "1 000.00", "96 459.32"}));
    EXPECT_EQ(rows()[24], QStringList({"25", "4 495.72", "44.96", ".00"}));
    run.key(Qt::Key_Escape);
    EXPECT_FALSE(visible("fraGrid"));
    EXPECT_EQ(rows().size(), 0u);
    EXPECT_EQ(run.focused(), "cmdOK");
    run.click("cmdAnnAmort");
    EXPECT_EQ(heads(), "Year, Capital payments, Interest payment, Balance");
    EXPECT_EQ(rows(), std::vector<QStringList>({{"1", "44 904.63", "9 583.48", "55 095.37"},
                                                {"2", "50 599.66", "3 888.45", "4 495.72"},
                                                {"3", "4 495.72", "44.96", ".00"}}));
    run.click("cmdGridClose");
    EXPECT_EQ(run.focused(), "cmdOK");
}

TEST_F(LoanScreen, TablesAndGraphOpenOnlyForALoanTheyCanShow) {
    for (const auto& [months, monthly, annual] : {std::tuple{"0", false, false},
                                                  {"1", true, false},
                                                  {"12", true, false},
                                                  {"13", true, true},
                                                  {"600", true, true}}) {
        typeLoan(0, {"100000", months, "12", ""});
        run.click("cmdCalculate");
        for (const auto& [button, opens] : {std::pair{"cmdMonAmort", monthly}, {"cmdAnnAmort", annual}}) {
            run.click(button);
            const auto* panel = run.front()->findChild<QWidget*>("fraGrid");
            EXPECT_EQ(panel != nullptr && panel->isVisible(), opens) << button << " " << months;
            if (opens)
                run.click("cmdGridClose");
            else
                EXPECT_EQ(run.focused(), "numPrinAmount");
        }
        run.click("cmdLoanGraph");
        EXPECT_EQ(run.isOpen("frmGraph"), annual) << months;
        if (annual)
            run.front()->drop();
        else
            EXPECT_EQ(run.focused(), "cmdOK");
        RunningProgram::settle();
    }
}

TEST_F(LoanScreen, TheGraphDrawsTheYears) {
    typeLoan(0, {"100000", "25", "12", ""});
    run.click("cmdCalculate");
    run.click("cmdLoanGraph");
    ASSERT_EQ(run.front()->objectName(), "frmGraph");
    const reports::Graph& graph = static_cast<reports::frmGraph*>(run.front())->graph();
    EXPECT_EQ(graph.points, 3);
    ASSERT_EQ(graph.series.size(), 3u);
    const calculators::Amortisation table = calculators::CalcAnnAmort(run.record().loans);
    for (std::size_t year = 1; year <= 3; ++year) {
        EXPECT_EQ(graph.series[0].values[year - 1], table.MonthBalance[year]);
        EXPECT_EQ(graph.series[1].values[year - 1], table.YearCapital[year]);
        EXPECT_EQ(graph.series[2].values[year - 1], table.YearInterest[year]);
    }
}

} // namespace

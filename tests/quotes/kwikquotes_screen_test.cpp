#include <gtest/gtest.h>

#include <QHeaderView>
#include <QLabel>
#include <QRadioButton>

#include "base/numberformat.h"
#include "quotes/premiums.h"
#include "quotes/projection.h"
#include "reports/frmGraph.h"
#include "reports/previewwindow.h"
#include "reports/report.h"
#include "shell/running_program.h"

namespace {

using screenkit::Answer;
using shelltest::RunningProgram;
using Rates = assessment::FundDefaults;

class KwikQuotesScreen : public testing::Test {
protected:
    KwikQuotesScreen() { run.menu("mnuKwikQuotes"); }
    void typeQuote() {
        run.typeAll("numLumpsum 10000.25, numAnnPay 1200.50, numMonPay 300.75, numTerm 30, numIntRate 9.125, "
                    "numPremEsc 5.5");
    }
    bool isStale(const char* line) { return run.control<QLineEdit>(line)->font().italic(); }
    bool isVisible(const char* name) { return run.control(name)->isVisible(); }
    const reports::Graph& graph() { return qobject_cast<reports::frmGraph*>(run.screen("frmGraph"))->graph(); }
    std::vector<QStringList> table(const char* name) {
        return RunningProgram::cells(run.control<QAbstractItemView>(name));
    }
    std::string stored(const std::string& sql) { return shelltest::rowsOf(run.folder / "Default.Mdb", sql); }
    Rates& rates() { return run.record().funds; }
    assessment::KwikQuotes& inputs() { return run.record().quotes; }
    void close() {
        run.screen("frmKwikQuotes")->parentWidget()->close();
        RunningProgram::settle();
    }

    RunningProgram run;
};

TEST_F(KwikQuotesScreen, EveryControlHoldsItsField) {
    EXPECT_EQ(RunningProgram::focused(), "numLumpsum");
    run.typeAll("numPremEmv 500000.25, numPremPeriod 121, numPremGR 8.125, numPremPEsc 6.5");
    EXPECT_EQ(run.record().premiumQuote, (assessment::PremiumQuote{500000.25, 121, 8.125, 6.5}));
    run.click("cmdDefault");
    const QString names = "ESPremCom EAPremCom EMPremCom EAComPortVal EComEscPr EIAF EAMFee EADivBo ETaxRate RSPreCom "
                          "RAPremCom RMPremCom RAComPortVal RComEscPr RIAF RAMFee RAADivBo LumpSumPort RAAllocPerc "
                          "RAAnnuityPerc UTComm UTDiv UTAMFee UTAComPortVal"; // in the order of their columns
    int typed = 20;
    for (const QString& name : names.split(' ')) {
        EXPECT_EQ(run.shown("num" + name + "DEF"), run.shown("num" + name)) << "as delivered";
        run.type("num" + name, QString::number(++typed));
    }
    EXPECT_EQ(run.shown("numRSPreComDEF"), "2.500");
    run.type("numGrowRateStep", "0.75");
    run.click("cmdOKDefault");
    EXPECT_EQ(RunningProgram::focused(), "cmdDefault") << "the other page stays in front";
    EXPECT_EQ(stored("SELECT * FROM [MutualFunds]"),
              "21|22|23|24|25|26|27|28|29|30|31|32|33|34|35|36|37|38|39|40|41|42|43|44");
    EXPECT_EQ(stored("SELECT [GRINC] FROM [Setup]"), "0.75");
    EXPECT_EQ(run.record().changed.KwikQuotesChanged, 0) << "none of these is a fact about the client";
    typeQuote();
    run.click("optUnitTrust");
    EXPECT_EQ(inputs(), (assessment::KwikQuotes{"U", 10000.25, 1200.5, 300.75, 30, 9.125, 5.5}));
    EXPECT_EQ(std::exchange(run.record().changed.KwikQuotesChanged, 0), 1);
    run.click("cmdLifeOfCap");
    run.typeAll("sidbEdit13 500000.25, sidbEdit14 5000.5, sidbEdit15 9.125, sidbEdit16 25.5, sidbEdit17 6.375");
    EXPECT_EQ(run.record().lifeOfCapital, (assessment::LifeOfCapital{500000.25, 5000.5, 9.125, 25.5, 6.375}));
    EXPECT_EQ(run.shown("sidbEdit18"), "9");
    EXPECT_EQ(run.record().changed.KwikQuotesChanged, 1);
}

TEST_F(KwikQuotesScreen, EachKindHasItsOwnAnswersTableGraphAndReport) {
    run.record().lifeOfCapital = {500000, 1000, 9, 25, 0}; // not in the report until its panel is opened
    typeQuote();
    const struct {
        const char *option, *letter, *third, *graph, *legend, *title;
        int columns;
    } kinds[] = {{"optEndow", "E", "", "Illustration of Endowment Type", "Estmated Mat. Value",
                  "Endowment Including Amortisation", 3},
                 {"optRA", "R", "Lump sum portion", "Illustration of a Retirement Annuity/Superannuation type",
                  "Estmated Mat. Value", "Retirement Annuity/Superannuation type Including Amortisation", 3},
                 {"optUnitTrust", "U", "EMV - with dividends re-invested",
                  "Illustration of a Unit Trust/Mutual Fund type", "Capital Growth",
                  "Unit Trust/Mutual Fund type Including Amortisation", 4},
                 {"optBankInvest", "B", "", "Illustration of a Bank Investment", "Estmated Mat. Value",
                  "Bank Investments Including Amortisation", 3}};
    for (const auto& kind : kinds) {
        SCOPED_TRACE(kind.letter);
        run.click(kind.option);
        const auto expected = quotes::ShowQuote(inputs(), rates());
        EXPECT_EQ(inputs().TYPEINVEST, kind.letter);
        const std::optional<double> answers[] = {expected.numAns1, expected.numAns2, expected.numAns3,
                                                 expected.numAns4};
        for (int i = 0; i < 4; ++i) {
            const std::string line = "numAns" + std::to_string(i + 1);
            EXPECT_EQ(isVisible(line.c_str()), answers[i].has_value()) << line;
            if (!answers[i]) continue;
            EXPECT_EQ(run.shown(line.c_str()).toStdString(), base::formatNumber(*answers[i], "# ### ### ##0.00"));
        }
        EXPECT_EQ(run.control("numAns3")->accessibleName(), *kind.third == 0 ? "Lump sum portion" : kind.third);
        EXPECT_EQ(isVisible("lblTaxIgnored"), *kind.letter == 'B');
        run.click("cmdAmort");
        EXPECT_EQ(table("grdPayments").size(), 30U);
        EXPECT_EQ(table("grdPayments").back().size(), kind.columns);
        EXPECT_EQ(table("grdPayments")[29][2].toStdString(),
                  base::formatNumber(expected.quote.QuoteValue[30], "### ### ### ### ###.00"));
        EXPECT_EQ(
            table("grdPayments")[29].back().toStdString(),
            base::formatNumber((*kind.letter == 'U' ? expected.quote.QuoteValueDiv : expected.quote.QuoteValue)[30],
                               "### ### ### ### ###.00"));
        run.click("cmdGridClose");
        run.click("cmdGraph");
        EXPECT_EQ(graph().title, kind.graph);
        EXPECT_EQ(graph().points, 2);
        EXPECT_EQ(graph().series.size(), static_cast<std::size_t>(kind.columns) - 1);
        EXPECT_EQ(graph().series[1].name, kind.legend);
        run.click("cmdOK");
        run.click("cmdPrint");
        if (*kind.letter == 'E') { // both stay ticked
            run.click("chkIncComms");
            run.click("chkIncAmort");
        }
        run.click("cmdVR");
        EXPECT_EQ(run.program.reports().previews().back()->windowTitle(), kind.title);
        EXPECT_EQ(run.inPrint("SELECT count(*) FROM Amort"), "30");
        EXPECT_EQ(run.inPrint("SELECT ComStatement_1 <> '', LOA FROM InvestmentPro"),
                  *kind.letter == 'B' ? "0|" : "1|");
    }
    run.window().activateWindow();
    run.type("numTerm", "24");
    run.click("cmdGraph");
    EXPECT_EQ(graph().points, 24);
    EXPECT_EQ(graph().xTitle, "TERM OF INVESTMENT (months)");
    run.click("cmdOK");
    run.typeAll("numAnnPay 0, numMonPay 0");
    EXPECT_TRUE(isStale("numAns2"));
    run.click("cmdCalculate");
    run.expectShown("numPremEsc 0.000, numAns1 10 000.25");
    EXPECT_EQ(inputs().PaymentEscalation, 5.5);
    run.type("numIntRate", "0");
    for (const char* refused : {"cmdGraph", "cmdAmort"}) {
        run.click(refused);
        EXPECT_EQ(RunningProgram::focused(), "numLumpsum") << refused;
    }
}

TEST_F(KwikQuotesScreen, SpinnersStepTheQuotationAndLimitsAreTold) {
    typeQuote();
    const std::tuple<const char*, const char*, const char*, const char*, int> steps[] = {
        {"numTerm", "1", "spPeriodDown", "480", 1},     {"numTerm", "480", "spPeriodUp", "1", 0},
        {"numTerm", "2", "spPeriodDown", "1", 0},       {"numTerm", "0", "spPeriodUp", "0", 0},
        {"numIntRate", "9.25", "spRateUp", "9.750", 0}, {"numIntRate", "0.5", "spRateDown", "50.000", 1},
        {"numIntRate", "49.75", "spRateUp", "0.500", 0}};
    for (const auto& [field, from, button, to, bells] : steps) {
        run.desk.bells = 0;
        run.type(field, from);
        run.click(button);
        EXPECT_EQ(run.shown(field), to) << button;
        EXPECT_EQ(run.desk.bells, bells) << button;
        if (run.shown(field) == from) continue; // refused
        EXPECT_EQ(RunningProgram::focused(), "cmdOK");
        EXPECT_FALSE(isStale("numAns2"));
    }
    const struct {
        const char *panel, *field, *wrong, *told, *title, *focus, *right;
    } limits[] = {
        {"", "numTerm", "481", "The maximum period allowed is 480 months", "Incorrect Period!", "numTerm", "480"},
        {"", "numPremPeriod", "601", "The Maximum Period is 600 months", "Incorrect Period!", "numPremPeriod", "600"},
        {"cmdLifeOfCap", "sidbEdit17", "50.5", "The maximum Annual income escalation allowed is 50%",
         "Incorrect Annual Income Escalation!", "sidbEdit16", "50"},
        {"cmdDefault", "numRSPreCom", "100.5", "The maximum Allocation Percentage allowed is 100%",
         "Incorrect Allocation Percentage!", "numRSPreCom", "100"}};
    for (const auto& limit : limits) {
        if (*limit.panel != 0) run.click(limit.panel);
        const auto box = run.desk.told([&] { run.type(limit.field, limit.wrong); });
        EXPECT_EQ(box.text, limit.told);
        EXPECT_EQ(box.title, limit.title);
        EXPECT_EQ(RunningProgram::focused(), limit.focus);
        run.type(limit.field, limit.right);
        if (*limit.panel != 0) run.key(Qt::Key_Escape);
    }
}

TEST_F(KwikQuotesScreen, APremiumIsSoughtOnItsOwnPage) {
    EXPECT_FALSE(isStale("numPremAnsUT")) << "nothing is sought yet";
    run.typeAll("numPremEmv 100000, numPremPeriod 60, numPremGR 10");
    for (const char* ofTheQuote : {"cmdGraph", "cmdAmort", "cmdPrint"})
        EXPECT_FALSE(run.control(ofTheQuote)->isEnabled()) << ofTheQuote;
    EXPECT_TRUE(isStale("numPremAnsUT"));
    run.control("numPremPEsc")->setFocus();
    run.key(Qt::Key_Return); // in the last field
    EXPECT_FALSE(isStale("numPremAnsUT"));
    const auto found = quotes::FindPremiums(run.record().premiumQuote, rates());
    EXPECT_EQ(run.shown("numPremAnsEndow").remove(' ').toDouble(), found.endowment.premium);
    EXPECT_EQ(run.shown("numPremAnsRA").remove(' ').toDouble(), found.retirement.premium);
    EXPECT_EQ(run.shown("numPremAnsUT").remove(' ').toDouble(), found.unitTrust.premium);
    EXPECT_FALSE(isVisible("lblUnreached"));
    run.click("cmdDefault");
    run.click("cmdOKDefault");
    EXPECT_FALSE(isStale("numPremAnsUT")) << "found at the same rates";
    run.click("cmdDefault");
    run.type("numUTComm", "100");
    run.click("cmdOKDefault");
    EXPECT_TRUE(isStale("numPremAnsUT")) << "found at other rates";
    run.click("cmdCalculate");
    EXPECT_EQ(run.shown("numPremAnsUT"), "0");
    EXPECT_TRUE(run.control<QLabel>("lblUnreached")->text().startsWith("Unit Trusts"));
    run.type("numPremPeriod", "0"); // asks for nothing
    run.click("cmdCalculate");
    run.expectShown("numPremAnsEndow 0, numPremAnsRA 0");
    run.type("numPremPeriod", "60");
    close();
    run.menu("mnuKwikQuotes");
    EXPECT_TRUE(isStale("numPremAnsUT")) << "the target is kept, its answer is not";
}

TEST_F(KwikQuotesScreen, RatesAreUndoneUnlessConfirmedAndHoldIfTheyCannotBeStored) {
    typeQuote();
    const QString before = run.shown("numAns2");
    const Rates held = rates();
    const std::function<void()> ways[] = {[&] { run.click("cmdCancelDefault"); },
                                          [&] {
                                              close();
                                              run.menu("mnuKwikQuotes");
                                          },
                                          [&] {
                                              run.asked("mnuNewFile", Answer::no);
                                              run.menu("mnuKwikQuotes");
                                          }};
    for (const auto& undo : ways) {
        run.click("cmdDefault");
        run.typeAll("numEIAF 999, numGrowRateStep 3");
        EXPECT_EQ(rates().EIAF, 999) << "at once";
        undo();
        EXPECT_EQ(rates(), held);
        EXPECT_EQ(run.record().GRINC, 0.5);
    }
    store::Database(run.folder / "Default.Mdb")
        .execute("CREATE TRIGGER full BEFORE UPDATE ON [MutualFunds] BEGIN SELECT RAISE(ABORT, 'full'); END");
    run.click("cmdDefault");
    run.typeAll("numEIAF 999, numGrowRateStep 3");
    const auto box = run.desk.told([&] { run.click("cmdOKDefault"); });
    EXPECT_TRUE(box.text.contains("apply only until it is closed")) << box.text.toStdString();
    EXPECT_EQ(stored("SELECT [GRINC] FROM [Setup]"), "0.5");
    run.menu("mnuNewFile");
    run.menu("mnuKwikQuotes");
    EXPECT_EQ(rates().EIAF, 999);
    EXPECT_EQ(run.record().GRINC, 3);
}

TEST_F(KwikQuotesScreen, TheHistoryIsSortedByEachHeadBothWays) {
    run.click("cmdUnitHist");
    EXPECT_EQ(table("DBGrid1").front()[0], "Yellowwood Offshore Feeder Fund") << "from Z to A at first";
    EXPECT_EQ(table("DBGrid1").front()[1], "21.0%");
    const std::size_t funds = table("DBGrid1").size();
    const auto* heads = run.control<QTableView>("DBGrid1")->horizontalHeader();
    for (int column = 0; column < 6; ++column)
        for (const int direction : {1, 0}) {
            QTest::mouseClick(heads->viewport(), Qt::LeftButton, {},
                              {heads->sectionViewportPosition(column) + 9, heads->height() / 2});
            const auto rows = table("DBGrid1");
            const auto key = [&](std::size_t row) { return QString(rows[row][column]).remove('%').toDouble(); };
            ASSERT_EQ(rows.size(), funds);
            for (std::size_t row = 1; row < rows.size(); ++row)
                EXPECT_TRUE(column == 0 ? (rows[row - 1][0] < rows[row][0]) == (direction == 1)
                                        : (direction == 1 ? key(row - 1) <= key(row) : key(row - 1) >= key(row)))
                    << column << ' ' << direction << ' ' << row;
            EXPECT_EQ(heads->sortIndicatorOrder(), direction == 1 ? Qt::AscendingOrder : Qt::DescendingOrder);
        }
    run.key(Qt::Key_3, Qt::ControlModifier);
    run.click("cmdPrintHist");
    EXPECT_EQ(run.program.reports().previews().back()->windowTitle(), "Unit Trust Histories");
    EXPECT_EQ(run.inPrint("SELECT [SortedBY] FROM [UnitHistDet]"), "Sorted by Two Year Growth Ascending");
    EXPECT_EQ(run.inPrint("SELECT [Unit Trust Fund] FROM [UnitHist] LIMIT 1"), table("DBGrid1")[0][0].toStdString());
    run.click("cmdOkUnitHist");
    std::filesystem::remove(run.folder / "units.mdb");
    const auto box = run.desk.told([&] { run.click("cmdUnitHist"); });
    EXPECT_TRUE(box.text.contains("units.mdb")) << box.text.toStdString();
    EXPECT_FALSE(isVisible("fraUnitHist"));
}

TEST_F(KwikQuotesScreen, TheLifeOfCapitalGoesIntoTheReportOnceItWasOpened) {
    run.record().lifeOfCapital = {500000, 1000, 9, 25, 0};
    run.click("cmdLifeOfCap");
    EXPECT_EQ(run.shown("sidbEdit18"), "45");
    run.click("cmdAmortLifeCap");
    EXPECT_EQ(table("grdPayments").size(), 45U);
    run.click("cmdGridClose");
    EXPECT_EQ(RunningProgram::focused(), "cmdOkLC");
    run.click("cmdAmortGraph");
    EXPECT_EQ(graph().points, 45);
    run.click("cmdOK");
    run.click("cmdOkLC");
    run.click("cmdPrint");
    run.click("cmdVR");
    EXPECT_EQ(run.inPrint("SELECT LOA FROM InvestmentPro"), "Will provide required income for more than 45 years.");
}

} // namespace

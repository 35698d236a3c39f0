#include <QRadioButton>

#include "reports/report_support.h"
#include "shell/running_program.h"

namespace {

using shelltest::RunningProgram;

class QuickTaxScreen : public testing::Test {
protected:
    QuickTaxScreen() { open(); }

    void open() { run.menu("mnuQuickTax"); }
    static QString edit(int index) { return QString("sidbEdit1(%1)").arg(index); }
    void type(int index, const QString& text) { run.type(edit(index), text); }
    QStringList answers() {
        QStringList all;
        for (int index = 2; index < 10; ++index)
            all << run.shown(edit(index));
        return all;
    }
    std::int16_t& changed() { return run.record().changed.KwikTaxChanged; }

    RunningProgram run;
    assessment::KwikTax& client = run.record().tax;
    const QStringList of500000In2027{"79 998.00", "31",        "36 239.00", "116 237.00",
                                     "17 820.00", "98 417.00", "23.25",     "19.68"};
    const QStringList of500000In2026{"77 362.00", "31",         "40 145.00", "117 507.00",
                                     "17 235.00", "100 272.00", "23.50",     "20.05"};
};

TEST_F(QuickTaxScreen, WorksOutTheIncomeAndTheYearChosenAtOnce) {
    EXPECT_TRUE(run.control<QRadioButton>("Option2")->isChecked()); // the year of a blank client
    EXPECT_EQ(answers(), QStringList({"0.00", "18", "0.00", "0.00", "17 820.00", "0.00", "18.00", "0.00"}));
    type(0, "500000");
    type(1, "40");
    EXPECT_EQ(answers()[5], "0.00") << "until it is asked for";
    run.click("cmdCalculate");
    EXPECT_EQ(answers(), of500000In2027);
    run.click("Option1");
    EXPECT_EQ(answers(), of500000In2026);
    EXPECT_EQ(client.YR9798, 0);
    run.click("Option2");
    EXPECT_EQ(answers(), of500000In2027);
    EXPECT_EQ(client.YR9798, 1);
    EXPECT_EQ(client.Salary, 500000);
    EXPECT_EQ(changed(), 1);
    run.click("cmdOK");
    EXPECT_FALSE(run.isOpen("frmKwikTax"));
    client.YR9798 = 0;
    changed() = 0;
    open();
    EXPECT_EQ(answers(), of500000In2026);
    EXPECT_EQ(changed(), 0);
}

TEST_F(QuickTaxScreen, EscapeGivesTheFieldLastEnteredItsValueBack) {
    type(0, "500000.125");
    type(1, "64.5");
    run.enter(edit(0), "7");
    run.key(Qt::Key_Escape);
    EXPECT_EQ(client.Salary, 500000.125); // with all bits, although two places are shown
    EXPECT_EQ(run.control<QLineEdit>(edit(0))->selectedText(), "500 000.12");
    type(0, "8");
    run.control("cmdOK")->setFocus(Qt::TabFocusReason); // Escape also works from a button
    run.enter(edit(1), "70");
    run.control("Option2")->setFocus(Qt::TabFocusReason);
    run.key(Qt::Key_Escape);
    EXPECT_EQ(run.focused(), edit(1));
    EXPECT_EQ(client.Age, 64.5);
    EXPECT_EQ(client.Salary, 8);

    run.enter(edit(0), "9");
    run.menu("mnuPAYE"); // another screen changes the income
    run.type("numSalRemun", "20000");
    run.click("cmdCalculate");
    open();
    run.control(edit(0))->setFocus(Qt::TabFocusReason);
    run.key(Qt::Key_Escape);
    EXPECT_EQ(client.Salary, 240000);
}

TEST_F(QuickTaxScreen, EnterCalculatesFromEveryFieldAndTakesWhatIsTyped) {
    for (const auto& [typed, income, total] :
         {std::tuple{"237 101", "237 101.00", "42 678.18"}, // 2027: still in the first bracket
          {"245101", "245 101.00", "44 118.26"},
          {"   ", "0.00", "0.00"},
          {"99999999999", "99 999 999 999.00", "44 999 820 968.55"}}) {
        run.enter(edit(0), typed);
        run.key(Qt::Key_Return);
        EXPECT_EQ(answers()[3], total) << typed;
        EXPECT_EQ(run.focused(), edit(0));
        run.key(Qt::Key_Tab);
        EXPECT_EQ(run.shown(edit(0)), income);
    }
    type(1, "65");
    run.key(Qt::Key_Return);
    EXPECT_EQ(answers()[4], "27 585.00");
    EXPECT_TRUE(run.desk.boxes.empty());
}

TEST_F(QuickTaxScreen, PrintsTheFiguresOfTheScreen) {
    type(0, "500000");
    type(1, "40");
    const std::string row = "SELECT [AGE],[TAXINCOME],[TAXTOPAY],[MARGRATE],[PORTION],[TOTTAX],[REBATE],[TAXCOM4],"
                            "round([AVRATE],4),round([AVRATEAFT],4),[TAXCOM4/2],[YR9798] FROM [kwiktax]";
    const std::string sentence = "Tax calculation used if for the tax year ending February ";
    run.click("cmdPrint"); // calculates what was typed and passes it on
    EXPECT_EQ(run.inPrint(row), "40|500000|79998|31|36239|116237|17820|98417|23.247399999999999|19.683399999999999|"
                                "8201.4166666666661|" +
                                    sentence + "2027");
    run.click("cmdCancel");
    EXPECT_FALSE(run.control("fraPrint")->isVisible());
    run.click("Option1");
    run.click("cmdPrint");
    EXPECT_EQ(run.inPrint("SELECT [TAXCOM4],[YR9798] FROM [kwiktax]"), "100272|" + sentence + "2026");
    run.click("cmdViewScreen");
    EXPECT_FALSE(run.control("fraPrint")->isVisible());
    ASSERT_EQ(run.program.reports().previews().size(), 1u);
    const QString page = reporttest::textOfPdf(run.program.reports().pdf("kwiktep.rpt")).simplified();
    for (const char* line : {"Quick tax: year ending February 2026", "for the tax year ending February 2026",
                             "Tax Rand Tax on", "Taxable income R 500 000.00", "(31 %) 40 145.00",
                             "Tax commitment 100 272.00", "a month 8 356.00", "after rebates 20.05 %"})
        EXPECT_TRUE(page.contains(line)) << line << "\n" << page.toStdString();

    run.click("cmdPrint");
    run.menu("mnuPAYE"); // the income changes while the panel is open
    run.type("numSalRemun", "20000");
    run.click("cmdCalculate");
    open();
    run.click("cmdViewScreen");
    EXPECT_EQ(run.inPrint("SELECT [TAXINCOME] FROM [kwiktax]"), "240000");
}

} // namespace

#include <gtest/gtest.h>

#include <QRadioButton>
#include <QTextBrowser>

#include "reports/report_support.h"
#include "shell/running_program.h"
#include "tax/lumpsum.h"

namespace {

using assessment::LumpSums;
using shelltest::RunningProgram;

constexpr std::size_t current = LumpSums::years - 1;

TEST(LumpSumCalc, TaxesAllAmountsByTheChosenTableAndDeductsTheTaxOnThoseBefore) {
    const struct {
        double taken;                         // FstLumpTaken
        double before, earlier;               // at retirement to 2009; resignation to 28/02/2021
        double resigned, retrenched, retired; // this year
        double tax;
    } cases[] = {
        {0, 0, 0, 0, 0, 900000, 0}, // no T
        {4, 0, 0, 0, 0, 900000, 0},
        {1.5, 0, 0, 900000, 0, 0, 0},
        {3, 2000000, 900000, 0, 0, 0, 0}, // nothing this year
        // withdrawal: a limit belongs to the band below it
        {1, 0, 0, 27500, 0, 0, 0},
        {1, 0, 0, 27501, 0, 0, 0.18},
        {1, 0, 0, 726000, 0, 0, 125730},
        {1, 0, 0, 726001, 0, 0, 125730.27},
        {1, 0, 0, 1089000, 0, 0, 223740},
        {1, 0, 0, 1089001, 0, 0, 223740.36},
        {1, 1000000, 0, 27500, 0, 0, 0},        // the amount before 2009 has no part in this test,
        {1, 1000000, 0, 27501, 0, 0, 7425.27},  // but in the tax
        {1, 0, 100000, 50000, 0, 0, 9000},      // 22 050 on 150 000 less 13 050
        {1, 0, 0, 50000, 100000, 200000, 9000}, // 58 050 on 350 000 less 49 050: the other kinds stay among the earlier
        {1, 0, -50000, 40000, 0, 0, 0},         // nothing in all
        // benefit
        {3, 0, 0, 0, 0, 600000, 9000},
        {2, 0, 0, 0, 600000, 0, 9000},
        {3, 0, 0, 0, 0, 300000, 0},
        {3, 0, 0, 0, 0, 550001, 0.18},
        {3, 0, 0, 0, 0, 770000, 39600},
        {3, 0, 0, 0, 0, 770001, 39600.27},
        {3, 0, 0, 0, 0, 1155000, 143550},
        {3, 0, 0, 0, 0, 1155001, 143550.36},
        {3, 0, 0, 100000, 0, 600000, 27000},      // the resignation stays among the earlier, and both are below 550 000
        {3, 0, 0, 600000, 100000, 200000, 65700}, // 74 700 on 900 000 less 9 000 on 600 000
        {3, 1000000, 0, 0, 0, 1, 0.27},           // 101 700.27 less 101 700
        {3, -700000, 600000, 0, 0, 400000, 0},    // 300 000 in all
        {3, 0, -900000, 0, 0, 600000, 0},
    };
    for (const auto& c : cases) {
        LumpSums client;
        client.FstLumpTaken = c.taken;
        client.RetireLumpSumBefore = c.before;
        client.RRExGrtCTY0204[tax::firstLumpSumYear] = c.earlier;
        client.RRExGrtCTY0204[tax::firstLumpSumYear - 1] = 5e6; // kept from an older version, without a part
        client.RRExGrtCTY0204[current] = c.resigned;
        client.RetrenchmentLumps[current] = c.retrenched;
        client.RetireDeathAfter[current] = c.retired;
        EXPECT_NEAR(tax::LumpSumCalc(client).taxDue, c.tax, 1e-6)
            << c.taken << ' ' << c.earlier << ' ' << c.resigned << ' ' << c.retired;
    }
}

// Below the first band of the benefit table nothing is looked up from 300 000 down. No tax shows it, so the branch
// does.
TEST(LumpSumCalc, LooksNothingUpForBenefitsUpTo300000) {
    LumpSums client;
    client.FstLumpTaken = 3;
    for (const auto& [amount, isLookedUp] : {std::pair{300000.0, false}, {300000.01, true}}) {
        client.RetireDeathAfter[current] = amount;
        EXPECT_EQ(tax::LumpSumCalc(client).table == &tax::benefitTable2027, isLookedUp);
    }
}

class LumpSumScreen : public testing::Test {
protected:
    LumpSums& sums() { return run.record().lumpSums; }
    std::int16_t& flag() { return run.record().changed.LumpSumChanged; }
    QRadioButton* option(int column) { return run.control<QRadioButton>(QString("opt1stLumpTaken(%1)").arg(column)); }
    RunningProgram run;
};

TEST_F(LumpSumScreen, EveryControlHoldsItsFieldAndItsPlaceInTheReport) {
    run.record().client.Name = "Ms T. Ṱhoho-Nḓou";
    sums().RetrenchmentLumps[0] = 77; // of 2010: no field, but kept
    run.menu("mnuTaxLumpSum");
    QString typed = "numRetireLumpSumBefore 11.5";
    LumpSums expected;
    expected.RetireLumpSumBefore = 11.5;
    expected.RetrenchmentLumps[0] = 77;
    int amount = 100000;
    std::string columns = "RetireLumpSumBefore", figures = "11.5";
    for (std::size_t year = tax::firstLumpSumYear; year <= current; ++year) {
        const auto name = QString::number(LumpSums::firstYear + static_cast<int>(year));
        for (const auto& [control, field, place] :
             {std::tuple{"numRRExGrtCTY0204", "RRExGrtCTY0204", &LumpSums::RRExGrtCTY0204},
              {"numRetrenchmentLumps", "RetrenchmentLumps", &LumpSums::RetrenchmentLumps},
              {"numRetDeath", "RetireDeathAfter", &LumpSums::RetireDeathAfter}}) {
            typed += QString(", %1%2 %3").arg(control, name).arg(++amount);
            (expected.*place)[year] = amount;
            columns += ", " + (field + name).toStdString();
            figures += "|" + std::to_string(amount);
        }
    }
    run.typeAll(typed);
    for (const int column : {0, 2, 1}) {
        run.click(option(column)->objectName());
        EXPECT_EQ(sums().FstLumpTaken, column + 1);
    }
    expected.FstLumpTaken = 2;
    EXPECT_EQ(sums(), expected);
    EXPECT_EQ(flag(), 1);
    EXPECT_TRUE(run.control<QLineEdit>("numAnsLS2")->font().italic());
    run.click("cmdCalculate");
    // All 2 100 242.5, of which 200 041 this year by the benefit table: both totals are in the band of 36 %.
    run.expectShown("numAnsLS2 72 015");
    sums().RetireDeathAfter[current] += 0.5; // printing calculates first
    run.click("cmdPrint");
    run.click("cmdVR");
    EXPECT_EQ(run.inPrint("SELECT " + columns + " FROM IRP5IncDed"), figures + ".5");
    EXPECT_EQ(run.inPrint("SELECT FstLumpTaken1, FstLumpTaken2, FstLumpTaken3, printf('%.4f|%.4f|%.4f|%.4f|%.4f', "
                          "TaxDue, Total, TaxOnTotal, Prior, TaxOnPrior) FROM IRP5IncDed"),
              "|T||72014.9400|2100243.0000|483837.4800|1900201.5000|411822.5400");
    EXPECT_EQ(run.program.reports().previews().back()->windowTitle(),
              "Lump Sums - To export printout click on the suitcase button or goto Marlowbeck Help");
    const QString page = reporttest::textOfPdf(run.program.reports().pdf("LumpSums.rpt")).simplified();
    for (const char* line : {"01/03/2023 to 29/02/2024 100 010.00 100 011.00 100 012.00", "Ms T. Ṱhoho-Nḓou",
                             "Tax due on lump sums taken this year 72 014.94", "T stands under retrenchment"})
        EXPECT_TRUE(page.contains(line)) << line << "\n" << page.toStdString();
    EXPECT_FALSE(page.contains("T stands under resig"));
}

TEST_F(LumpSumScreen, ATIsForAnAmountThisYearAndOneOfZeroTakesItAway) {
    run.menu("mnuTaxLumpSum");
    for (const char* typed : {"0", "-5"}) {
        run.type("numRetDeath2027", typed);
        EXPECT_FALSE(option(2)->isEnabled()) << typed;
    }
    run.type("numRetDeath2027", "600000");
    EXPECT_EQ(RunningProgram::focused(), "opt1stLumpTaken(2)");
    EXPECT_FALSE(option(0)->isEnabled() || option(1)->isEnabled());
    run.key(Qt::Key_Space);
    run.type("numRRExGrtCTY02042027", "1");
    run.click("cmdCalculate");
    run.expectShown("numAnsLS2 9 000");

    run.enter("numRetDeath2027", ""); // being retyped
    EXPECT_EQ(sums().FstLumpTaken, 3);
    run.type("numRetDeath2027", "-7");
    EXPECT_TRUE(option(2)->isEnabled() && option(2)->isChecked());
    run.type("numRRExGrtCTY02042027", "0"); // not the chosen one
    EXPECT_EQ(sums().FstLumpTaken, 3);
    run.type("numRetDeath2027", "");
    EXPECT_EQ(sums().FstLumpTaken, 0);
    EXPECT_FALSE(option(2)->isEnabled() || option(2)->isChecked());
    EXPECT_EQ(flag(), 1);
}

TEST_F(LumpSumScreen, ComingToTheFrontClearsItsOwnFlagAndLosesNothing) {
    run.saveClient("Botha");
    sums().FstLumpTaken = 1; // beside an amount of 0, in an old file
    run.menu("mnuTaxLumpSum");
    EXPECT_TRUE(option(0)->isChecked());
    EXPECT_FALSE(option(0)->isEnabled());
    run.click("cmdCalculate");
    EXPECT_EQ(sums().FstLumpTaken, 1) << "to look changes nothing";
    EXPECT_EQ(run.record().ClientChanged, 0);
    run.type("numRetDeath2022", "5000");
    EXPECT_EQ(flag(), 1);
    run.menu("mnuPersDet");
    EXPECT_EQ(flag(), 1);
    run.menu("mnuTaxLumpSum");
    EXPECT_EQ(flag(), 0);
    EXPECT_EQ(run.record().ClientChanged, 1);
    run.asked("mnuExit", screenkit::Answer::no);
    run.menu("mnuSave");
    EXPECT_EQ(run.inClients("SELECT RetireDeathAfter2022, FstLumpTaken FROM LumpSumTax"), "5000|1");
}

TEST_F(LumpSumScreen, ExplainsItself) {
    run.menu("mnuTaxLumpSum");
    run.click("cmdInfo(14)");
    EXPECT_EQ(run.control<QLabel>("lblInfo")->text(), "  Lump Sums");
    const QString text = run.control<QTextBrowser>("txtInfo")->toPlainText();
    EXPECT_TRUE(text.contains("use SARS’s method of taxing multiple lump sums.  Using the set"));
    EXPECT_TRUE(text.contains("on Multiple Lump Sums received.\n\nNote that lump sums"));
    run.click("cmdOKInfo");
    EXPECT_FALSE(run.control("fraInfo")->isVisible());
}

} // namespace

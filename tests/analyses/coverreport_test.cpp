#include "analyses/coverreport.h"
#include "analyses/death.h"
#include "analyses/disability.h"
#include "reports/layout_support.h"
#include "reports/report_support.h"

using namespace reporttest;
using assessment::Assessment;

namespace {

class CoverReports : public ReportTest {
protected:
    struct Read {
        QStringList pages;
        QString all;
    };
    Read read(const datastore::Printout& printout) {
        const auto report = engine.prepare(QString::fromStdString(printout.definition));
        expectSound(report->layout);
        const QByteArray pdf = reports::toPdf(*report);
        return {pagesOfPdf(pdf), textOfPdf(pdf).simplified()};
    }
};

/// 40 years of an income that the capital outlasts, with an odd figure in every line.
Assessment insured() {
    Assessment client;
    client.client.Name = "Prof. Dr. M.-L. Ṱhoho-Nḓou van der Westhuizen-Êksteen";
    client.client.IDNumber = "8103155009087";
    client.death = {.Income = 10000.5,
                    .Inflation = 4.125,
                    .InvestRate = 9,
                    .PeriodDeath = 40,
                    .DeathMIAvail = 500.25,
                    .ANSAss1 = 11e6,
                    .ANSAss2 = 12.5,
                    .ANSAss4 = 14,
                    .ANSAss6 = 16,
                    .ANSLib1 = 21,
                    .ANSLib2 = 22,
                    .ANSLib3 = 23,
                    .ANSLib4 = 24.75,
                    .lib5 = 25,
                    .DeathNotes = "Two wills"};
    client.disability = {.MDisaDTS5 = 20000,
                         .MDisaDTS6 = 5,
                         .MDisaDTS7 = 8,
                         .MDisaDTS15 = 3,
                         .DisaNotes = "",
                         .DisaASS1 = 1,
                         .Disalib4 = 2e6};
    return client;
}

} // namespace

TEST_F(CoverReports, SayEachLineInTheirOwnWordsAndHeadEveryPage) {
    Assessment record = insured();
    const Read death = read(feedDeath(print, record, analyses::runDeath(record), {true, true}));
    expectWords(death.all,
                {"Death needs analysis", "Net capital worth for investment : 10 999 927 Funds available",
                 "provide income for 40 years. (capital excess available of", "Income required for 40 years",
                 "Inflation rate 4.125 % a year", "return 9.00 % a year", "Monthly income required (at death) 10 000.5",
                 "Monthly income available (at death) 500.25", "Initial Monthly Shortfall (at death) 9 500.25",
                 "Stocks & cash 12.5", "Cars etc. 14", "Other capital 16", "Total assets 11 000 042.5",
                 "Estate duty/fees etc. 24.75", "Total liabilities 115.75", "Notes : Two wills"});
    ASSERT_EQ(death.pages.size(), 2);
    EXPECT_EQ(simplifiedLine(death.pages[1], "Year"), "Year Capital Interest Income available Income required");

    const Read disability = read(feedDisability(print, record, analyses::runDisability(record), {false, true}));
    expectWords(disability.all,
                {"Disability needs analysis", "Capital Shortfall : 1 999 999", "additional cover required.",
                 "Monthly income required (at disability) 20 000",
                 "Capital available at disability Disability "
                 "liabilities",
                 "Real estate sale 1", "Conversion costs etc. 2 000 000"},
                {"death", "Amortisation", "Two wills"});
}

TEST_F(CoverReports, ABlankClientPrintsNoughtsAndNoEmptyHeads) {
    Assessment record;
    const Read blank = read(feedDisability(print, record, analyses::runDisability(record), {}));
    expectWords(blank.all, {"Net capital worth for investment :", "Total assets 0", "Income required for 0 years"},
                {"Identity number", "Date of birth", "Notes"});
}

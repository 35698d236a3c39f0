#include "screenkit/screen.h"
#include "shell/mainwindow.h"
#include "tour/journal.h"
#include "tour/steps.h"

/// The two most common tax questions: the deductions from this month's salary, and the tax on a year's income.
namespace tour {

namespace {

constexpr double cent = 0.005;

void expectCents(Hands& hands, const QString& field, double expected) {
    check(std::abs(hands.figure(field) - expected) <= cent,
          QString("%1 shows %2 and not %3").arg(field, hands.shown(field)).arg(expected, 0, 'f', 2));
}

/// The tax by the scale of the year to February 2027, in the bracket above R530 200.
double taxIn2027(double income) { return 125599 + (income - 530200) * 0.36; }

} // namespace

void taxAMonth(Hands& hands) {
    say("PAYE: a salary of R48 000 with medical aid for three and a retirement fund.");
    hands.menu({"mnuCalc", "mnuPAYE"});
    hands.expectFront("frmMonthly");
    hands.enter(std::vector<Entry>{{"silgEdit9", "45"},
                                   {"numSalRemun", "48000"},
                                   {"numEmpERFundCont", "3600"},
                                   {"numEmpERMedAidCont", "2400"},
                                   {"numMedAidBens", "3"}});
    hands.click("cmdCalculate");
    const double annual = (48000.0 - 3600 + 2400) * 12;
    const double tax = (taxIn2027(annual) - 17235) / 12; // the rebate of the previous year, which is deliberate
    const double credit = 2 * 376 + 254;
    expectCents(hands, "numAllowableRFundDed", 3600);
    expectCents(hands, "numMAns", tax);
    expectCents(hands, "numTaxCredit", credit);
    expectCents(hands, "numTaxLiability", tax - credit);
    picture(&hands.window(), "monthly-tax");
    hands.click("cmdPrint");
    hands.type("Text1", "Naledi Botha");
    hands.click("cmdVR");
    exportPdf(hands, "monthly-tax-report");
    say(QString("  R%1 a month").arg(hands.shown("numTaxLiability")));
    hands.click("cmdOK");
}

void taxAYear(Hands& hands) {
    say("QuickTax: the same employee's year, in both tax years.");
    hands.menu({"mnuCalc", "mnuQuickTax"});
    hands.expectFront("frmKwikTax");
    expectCents(hands, "sidbEdit1(0)", (48000.0 - 3600 + 2400) * 12); // set by the monthly tax
    hands.enter(std::vector<Entry>{{"sidbEdit1(0)", "650000"}, {"sidbEdit1(1)", "66"}});
    hands.key(Qt::Key_Return);
    expectCents(hands, "sidbEdit1(7)", taxIn2027(650000) - 17820 - 9765);
    hands.click("Option1");
    expectCents(hands, "sidbEdit1(7)", 121475 + (650000 - 512800) * 0.36 - 17235 - 9444);
    picture(&hands.window(), "quick-tax");
    hands.click("cmdPrint");
    hands.click("cmdViewScreen");
    exportPdf(hands, "quick-tax-report");
    hands.click("Option2");
    hands.click("cmdOK");
}

} // namespace tour

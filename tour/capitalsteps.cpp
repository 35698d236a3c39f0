#include <QTableView>
#include <cmath>

#include "reports/frmGraph.h"
#include "screenkit/screen.h"
#include "shell/mainwindow.h"
#include "tour/journal.h"
#include "tour/steps.h"

/// Three questions about money over time: what a child's education takes, what a cost becomes, how long a capital
/// lasts.
namespace tour {

namespace {

constexpr double cent = 0.005;
constexpr double costToday = 85000, costInflation = 7.5, bankRate = 8.25;
constexpr int yearsToGo = 12, yearsOfStudy = 4;
constexpr double pension = 1500000, income = 9500, interest = 9.25, tax = 18, rise = 5.5;

/// Years of study that a capital pays: each year's interest is on the capital before the cost is deducted.
int yearsPaid(double capital, double cost) {
    int years = 0;
    for (double held = capital; cost <= held && years < 50; held = capital * (1 + bankRate / 100)) {
        capital = capital * (1 + bankRate / 100) - cost;
        cost *= 1 + costInflation / 100;
        ++years;
    }
    return years;
}

const QAbstractItemModel* table(Hands& hands, const QString& button) {
    hands.click(button);
    return hands.control<QTableView>("grdPayments")->model();
}

/// What a monthly premium becomes at 10 % a year, rising by 6 % a year, by the rates that the program comes with.
double trustOf(double premium, int years) {
    constexpr double commission = 0.03, dividend = 0.03, fee = 0.01, trail = 0.005;
    double value = 0;
    for (int month = 0; month < years * 12; ++month) {
        if (month > 0 && month % 12 == 0) premium *= 1.06;
        value = (value + premium * (1 - commission)) * (1 + 0.10 / 12);
        if (month % 12 == 11) value *= (1 + dividend) * (1 - fee);
        if (month > 0) value *= 1 - trail / 12;
    }
    return value;
}

/// From the education analysis and back.
void findPremium(Hands& hands, double capital) {
    say("Show Premium: what to put away a month for it, growing at 10 % and rising by 6 % a year.");
    hands.click("cmdPremium");
    hands.expectFront("frmPremium");
    hands.expectFigure("numPremEmv", capital);
    hands.enter(std::vector<Entry>{{"numPremGR", "10"}, {"numPremPEsc", "6"}});
    hands.click("cmdCalculate");
    const double premium = hands.figure("numPremAns");
    check(trustOf(premium, yearsToGo) > capital && trustOf(premium - 1, yearsToGo) <= capital,
          "the premium is not the least whole rand that reaches the capital");
    say(QString("  R%1 a month").arg(premium));
    picture(&hands.window(), "education-premium");
    hands.click("cmdOK");
    hands.expectFront("frmNAEd");
}

int graphPoints(Hands& hands, const QString& button, const QString& name) {
    hands.click(button);
    hands.expectFront("frmGraph");
    picture(&hands.window(), name);
    const int points = qobject_cast<reports::frmGraph*>(hands.front())->graph().points;
    hands.click("cmdOK");
    return points;
}

} // namespace

void planEducation(Hands& hands) {
    say("Needs Analysis for Education: four years of study for a child of six.");
    hands.menu({"mnuCalc", "mnuNAEd"});
    hands.expectFront("frmNAEd");
    hands.enter(std::vector<Entry>{{"numFundsPres", "85000"},
                                   {"numInflaRate", "7.5"},
                                   {"numYears", "12"},
                                   {"numPerRequired", "4"},
                                   {"numInvestRate", "8.25"},
                                   {"dtEducNextReview", "15/06/2027"}});
    hands.click("cmdCalculate");
    const double cost = std::floor(costToday * std::pow(1 + costInflation / 100, yearsToGo));
    hands.expectFigure("numFundsFut", cost);
    const QString answer = hands.shown("txtAns");
    const double capital = QString(answer).section(" capital", 0, 0).remove(' ').toDouble();
    check(yearsPaid(capital, cost) == yearsOfStudy && yearsPaid(capital - 100, cost) < yearsOfStudy,
          "the capital required is not the least that pays: " + answer);
    say("  " + answer);
    picture(&hands.window(), "education");
    const auto* years = table(hands, "cmdAmort");
    check(years->rowCount() == yearsOfStudy + 1 && cellOf(years, 0, 1) == capital && cellOf(years, 0, 3) == cost,
          "the table of the education is not the one of the answer");
    picture(&hands.window(), "education-years");
    hands.key(Qt::Key_Escape);
    check(graphPoints(hands, "cmdNAEDGraph", "education-graph") == yearsOfStudy, "the graph does not show each year");
    findPremium(hands, capital);
    hands.click("cmdPrint");
    hands.click("Check1");
    hands.click("Check2");
    hands.click("cmdVR");
    exportPdf(hands, "education-report");
}

void seeInflation(Hands& hands) {
    say("Inflation, from the education analysis: what R125 000 becomes in 15 years.");
    hands.click("cmdInflation");
    hands.expectFront("frmInflation");
    hands.enter(std::vector<Entry>{{"numPresCost", "125000"}, {"numPeriod", "15"}, {"numInflaRate", "6"}});
    hands.click("cmdCalculate");
    hands.expectFigure("numAns1", 125000 * std::pow(1.06, 15));
    hands.click("spInflationUp");
    hands.expectFigure("numAns1", 125000 * std::pow(1.0625, 15));
    hands.expectFigure("numAns2", 125000 / std::pow(1.0625, 15));
    picture(&hands.window(), "inflation");
    hands.click("cmdPrint");
    hands.click("cmdVR");
    exportPdf(hands, "inflation-report");
    hands.click("cmdOK");
    hands.expectFront("frmNAEd");
    hands.click("cmdOK");
}

void lastCapital(Hands& hands) {
    say("Life of Capital: R1 500 000 that pay R9 500 a month, rising.");
    hands.menu({"mnuCalc", "mnuLifeOfCap"});
    hands.expectFront("frmLifeOfCap");
    hands.enter(std::vector<Entry>{{"sidbEdit13", "1500000"},
                                   {"sidbEdit14", "9500"},
                                   {"sidbEdit15", "9.25"},
                                   {"sidbEdit16", "18"},
                                   {"sidbEdit17", "5.5"}});
    hands.click("cmdCalculate");
    const double net = interest * (1 - tax / 100) / 100;
    double left = pension, year = income * 12;
    int lasts = 0;
    while (left * (1 + net) >= year) {
        left = left * (1 + net) - year;
        year *= 1 + rise / 100;
        ++lasts;
    }
    hands.expectFigure("sidbEdit18", lasts);
    picture(&hands.window(), "life-of-capital");
    const auto* years = table(hands, "cmdAmortLifeCap");
    check(years->rowCount() == lasts && std::abs(cellOf(years, 0, 2) - pension * net) <= cent,
          "the table does not show each year that the capital lasts");
    picture(&hands.window(), "life-of-capital-years");
    hands.key(Qt::Key_Escape);
    check(graphPoints(hands, "cmdAmortGraph", "life-of-capital-graph") == lasts, "the graph does not show each year");
    hands.click("cmdPrint");
    hands.click("Check1");
    hands.click("cmdVR");
    exportPdf(hands, "life-of-capital-report");
    hands.click("cmdOK");
}

} // namespace tour

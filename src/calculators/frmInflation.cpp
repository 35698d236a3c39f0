#include "calculators/frmInflation.h"

#include <QLabel>
#include <cmath>

#include "calculators/inflationreport.h"
#include "datastore/paths.h"

namespace calculators {

using namespace screenkit;

namespace {

constexpr double tooLarge = 1e13; // rand; the field has no room for this and more
const NumberKind years = whole.from(0, "The minimum period allowed 0 years", "Incorrect Period!")
                             .upTo(40, "The maximum period allowed 40 years", "Incorrect Period!");
const NumberKind rate =
    percent.between(-5, 40, "The range of the Inflation Rate is between -5% and 40%", "Incorrect Inflation Rate!");
const NumberKind value{money.mask, false, 22};

} // namespace

frmInflation::frmInflation(Workplace& workplace)
    : ResultScreen(workplace, "frmInflation", "Inflation", workplace.record.changed.InflationChanged),
      m_inputs(workplace.record.inflation) {
    auto* cost = number("numPresCost", m_inputs.PresCostInflation, money);
    auto* period = number("numPeriod", m_inputs.PeriodInflation, years);
    auto* inflation = number("numInflaRate", m_inputs.IntRateInflation, rate);
    m_future = answer("numAns1", m_result.futureValue, value);
    m_tooLarge = over(m_future, "Label12", "Amount too large to display");
    const auto ok = [this] { return m_ok; };
    // A step below -5 leads to 30, although the field accepts 40.
    auto* spinRate = spin("spInflation", inflation,
                          {.step = [] { return 0.25; }, .floor = -5, .ceiling = 40, .wrapsTo = 30, .focus = ok},
                          [this] { calculate(); });
    auto* spinPeriod = spin(
        "spPeriod", period,
        {.idleAtZero = true, .floor = 0, .holdsFloor = false, .ceiling = 40, .wrapsTo = 40, .rings = true, .focus = ok},
        [this] { calculate(); });
    body(column({form({{"Present cos&t", cost},
                       {"Per&iod", row({period, spinPeriod}), "years"},
                       {"Inflation &rate", row({inflation, spinRate}), "% a year"},
                       {"Future value/cost", m_future},
                       {"Buying power", answer("numAns2", m_result.buyingPower, value)}}),
                 spring(), buttonLine()}));
    prints();
}

void frmInflation::calculate() {
    m_result = LTLINFL(m_inputs);
    m_tooLarge->setVisible(!(std::fabs(m_result.futureValue) < tooLarge));
    showAnswers();
}

void frmInflation::sayAnswers() {
    if (m_tooLarge->isHidden()) return ResultScreen::sayAnswers();
    announce(m_future->accessibleName() + " " + m_tooLarge->text());
}

std::optional<datastore::Printout> frmInflation::feed() {
    if (!std::isfinite(m_result.futureValue) || !std::isfinite(m_result.buyingPower)) return {};
    return feedInflation(m_work.paths.PrintDbPath, m_work.record.client.Name, m_inputs, m_result);
}

} // namespace calculators

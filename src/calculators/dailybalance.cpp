#include "calculators/dailybalance.h"

#include <optional>

#include "base/day.h"

namespace calculators {

namespace {

bool areDates(double start, double end) { return base::isShownOnScreen(start) && base::isShownOnScreen(end); }

} // namespace

DailyBalanceResult dailyBalance(const assessment::DailyBalance& inputs) {
    if (!areDates(inputs.StartDateDB, inputs.EndDateDB)) return {};
    constexpr double daysAYear = 365;
    const double amount = inputs.CapAmount, rate = inputs.IntRate;
    const double days = static_cast<double>(inputs.EndDateDB) - inputs.StartDateDB;
    return {days, ((amount * rate / 100) * days) / daysAYear};
}

bool isWithin360Months(double start, double end) {
    const auto from = base::calendarDate(start), to = base::calendarDate(end);
    if (!areDates(start, end) || !from || !to) return true;
    constexpr int years = 30;
    std::optional<double> latest;
    for (int day = from->day; !latest && day > 0; --day)
        latest = base::dayNumber(from->year + years, from->month, day);
    return !latest || end <= *latest;
}

} // namespace calculators

#pragma once

#include <array>
#include <string>
#include <vector>

#include "assessment/assessment.h"
#include "calculators/amortisation.h"

namespace calculators {

/// How a run of a draw-down annuity ended.
enum class DrawDownEnd {
    notStarted, ///< no amount, no first income or no growth in the first phase
    lastYear,   ///< the last year of the phases was reached
    exhausted,  ///< the portfolio was smaller than the income of another year
    mostMonths  ///< 600 months
};

/// A draw-down annuity by year and by month. Index 0 is unused; rand and percent.
struct DrawDownResult {
    static constexpr int mostMonths = 600;
    using Yearly = std::array<double, mostMonths / 12 + 2>;

    Yearly YearPortfolio{};                           ///< at the end of the year, after its dividend and fees
    Yearly YearIncome{};                              ///< rand a month
    Yearly YearChange{};                              ///< of the income on the year before; the first year's is 0
    std::array<double, mostMonths + 1> MonthIncome{}; ///< after the last month run: what would be drawn
    double NetPercent = 0;                            ///< of the amount, after commission and set-up costs
    int DrawYears = 0;                                ///< completed years
    DrawDownEnd end = DrawDownEnd::notStarted;

    /// False where the figures are so large that a portfolio has no finite value.
    bool isFinite() const;
    /// How long the income is paid; empty if the run did not start or has no years.
    std::string sentence() const;
};

/// The run, month by month, for at most 600 months.
///
/// Uses LSAmt, the two phases and the costs. The phases are tested at year ends; the first year always belongs to
/// phase0. A year's new income is found in its first month, is limited to the percentages allowed of the portfolio,
/// and is first drawn in the month after, so that this month still draws the old one. NomRate is the nominal growth of
/// the last month run: growth that has none (0, 1.05, below 0 or above 99) keeps the one before, also that of the
/// previous run.
DrawDownResult DrawDownCalc(const assessment::DrawDown& annuity, const assessment::DrawDownPhases& phases,
                            const assessment::DrawDownCosts& costs, double& NomRate);

/// The lines of the yearly table: portfolio, monthly income and its change in percent.
std::vector<AmortisationRow> yearRows(const DrawDownResult& result);

/// The first monthly incomes allowed by the percentages of the whole amount, before costs, rand.
struct IncomeRange {
    double lowest = 0, highest = 0;
};
IncomeRange firstIncomeRange(double LSAmt, const assessment::DrawDownCosts& costs);

enum class FirstIncome { allowed, aboveMaximum, belowMinimum };

/// Compares the first monthly income with its range; allowed while either figure is not above 0, since it is still to
/// be entered. With a minimum above the maximum, an income above the maximum is that.
FirstIncome checkFirstIncome(double LSAmt, double LAInitDraw0, const assessment::DrawDownCosts& costs);

} // namespace calculators

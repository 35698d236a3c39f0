#include "calculators/incomefromshares.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "base/rounding.h"

namespace calculators {

namespace {

using base::roundHalfEven;

// Fixed in the formula; they follow no tax year.
constexpr double taxFreeGain = 30000; ///< rand a year
constexpr double taxedShare = 0.33;

SharesTax taxOnYear(double income, const assessment::IncomeShares& inputs) {
    SharesTax year{.income = income, .discounted = income};
    const double factor = roundHalfEven(100 + inputs.ISGrowthRate, 4);
    for (int month = 0; month < 12; ++month)
        year.discounted = roundHalfEven(year.discounted * 100 / factor, 4);
    const double taxed = (year.income - year.discounted - taxFreeGain) * taxedShare;
    year.tax = roundHalfEven((inputs.EffTaxRate / 100) * taxed, 4);
    if (year.tax < 0) year.tax = 0;
    return year;
}

double afterFirstCosts(double amount, const IncomeSharesCosts& costs) {
    double capital = amount - costs.InitAdminFee;
    capital -= capital * costs.InitCom / 100;
    capital -= capital * roundHalfEven(costs.TrailComm / 100, 6);
    return capital;
}

std::string counted(int number, const char* unit) {
    return std::to_string(number) + " " + unit + (number == 1 ? "" : "s");
}

} // namespace

SharesYear IncomeSharesRun::year(int number) const {
    const auto end = static_cast<std::size_t>(number) * 12;
    SharesYear shown{.year = number, .capital = ISCapital[end]};
    if (shown.capital == 0) return shown;
    const auto* last = ISIncome.data() + end;
    shown.incomeDrawn = isMonthly ? std::accumulate(last - 11, last + 1, 0.0) : *last;
    shown.tax = ISTax[end];
    return shown;
}

std::vector<SharesYear> IncomeSharesRun::years() const {
    std::vector<SharesYear> shown;
    for (int number = 1; number <= (months + 11) / 12; ++number)
        shown.push_back(year(number));
    return shown;
}

std::array<SharesYear, 7> IncomeSharesRun::sampleYears() const {
    std::array<SharesYear, 7> samples;
    for (std::size_t i = 0; i < samples.size(); ++i)
        samples[i] = year(static_cast<int>(i) + 1);
    return samples;
}

std::string IncomeSharesRun::sentence() const {
    if (months == 0) return {};
    if (!ranOut) return "The capital lasts more than 50 years.";
    const int paid = months - 1;
    if (paid == 0) return "The income is more than the capital.";
    std::string term = paid >= 12 ? counted(paid / 12, "year") : "";
    if (paid % 12 != 0) term += (term.empty() ? "" : " and ") + counted(paid % 12, "month");
    return "The capital lasts " + term + ".";
}

bool IncomeSharesRun::isFinite() const {
    const auto areFinite = [](const auto& figures) {
        return std::all_of(figures.begin(), figures.end(), [](double figure) { return std::isfinite(figure); });
    };
    return areFinite(ISCapital) && areFinite(ISIncome) && areFinite(ISTax);
}

IncomeSharesRun incomeFromShares(const assessment::IncomeShares& inputs, const IncomeSharesCosts& costs,
                                 double ISNomRate) {
    IncomeSharesRun run;
    if (inputs.InvestAmount == 0 || inputs.InitPercRequire == 0) return run;
    run.isMonthly = inputs.AnnMonIncShare == "monthly";
    run.invested = afterFirstCosts(inputs.InvestAmount, costs);
    const double growth = roundHalfEven(ISNomRate / 1200, 6);
    const double trail = roundHalfEven(costs.TrailComm / 1200, 6);
    const double escalation = roundHalfEven(inputs.AnnIncEsca / 100, 4);

    double capital = run.invested, income = inputs.InitPercRequire, tax = 0;
    double yearToDate = run.isMonthly ? income : 0;
    for (std::size_t month = 1; month <= IncomeSharesRun::longest; ++month) {
        const bool startsYear = month % 12 == 1, endsYear = month % 12 == 0, isFirstYear = month <= 12;
        if (startsYear && !isFirstYear) {
            capital -= roundHalfEven(capital * costs.AnnManFee / 100, 4);
            capital -= capital * trail;
        }
        if (run.isMonthly) {
            capital -= income;
        } else if (endsYear) {
            if (!isFirstYear) income += income * escalation;
            capital -= income;
            yearToDate += income;
        }
        capital += capital * growth;
        if (run.isMonthly && !isFirstYear) {
            if (startsYear && inputs.AnnIncEsca > 0) income += income * escalation;
            yearToDate += income;
        }
        if (endsYear) {
            capital += roundHalfEven(capital * costs.AnnDivBonus / 100, 4);
            run.taxes[month / 12] = taxOnYear(yearToDate, inputs);
            tax = run.taxes[month / 12].tax;
            yearToDate = 0;
        }
        run.months = static_cast<int>(month);
        run.ISYear[month] = static_cast<double>(month) / 12;
        run.ranOut = income > capital;
        if (run.ranOut) break;
        run.ISCapital[month] = capital;
        run.ISIncome[month] = income;
        run.ISTax[month] = tax;
    }
    return run;
}

} // namespace calculators

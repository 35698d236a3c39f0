#pragma once

#include <array>
#include <string>
#include <vector>

#include "assessment/assessment.h"
#include "calculators/incomesharescosts.h"

namespace calculators {

/// A year as tables, graph and report show it: rand.
struct SharesYear {
    int year = 0;
    double capital = 0;     ///< at the end of the year; once it is 0, so are the others
    double incomeDrawn = 0; ///< in the year
    double tax = 0;         ///< on that income
};

/// How the tax at a year's end came about: rand.
struct SharesTax {
    double income = 0;     ///< year-to-date income. With a monthly income the first year counts one month of it.
    double discounted = 0; ///< divided twelve times by a full year's growth
    double tax = 0;
};

/// How long a capital in shares pays an income: up to 600 months. In every array element i is month i (year i in
/// `taxes`), element 0 is unused, and elements after the run's end are 0.
struct IncomeSharesRun {
    static constexpr int longest = 600;

    bool isMonthly = false;                          ///< the income is drawn each month, not each year
    double invested = 0;                             ///< the capital after the first costs, rand
    int months = 0;                                  ///< in the run; 0: nothing was invested or required
    bool ranOut = false;                             ///< its last month could not pay; that month holds zeros
    std::array<double, longest + 1> ISCapital{};     ///< at the end of the month, rand
    std::array<double, longest + 1> ISIncome{};      ///< the current income, rand a month or a year
    std::array<double, longest + 1> ISTax{};         ///< at the last year's end, rand
    std::array<double, longest + 1> ISYear{};        ///< month / 12
    std::array<SharesTax, longest / 12 + 1> taxes{}; ///< by year

    /// Year 1 to 50. A year after the end has zeros.
    SharesYear year(int number) const;
    /// The years of the run. Where it ran out the last one holds zeros.
    std::vector<SharesYear> years() const;
    /// Years 1 to 7, always.
    std::array<SharesYear, 7> sampleYears() const;
    /// "The capital lasts 12 years and 3 months."; nothing for an empty run.
    std::string sentence() const;
    bool isFinite() const;
};

/// Draws an income from a capital in shares until it is more than the capital left.
///
/// InvestAmount and InitPercRequire are rand, the latter a month or a year by AnnMonIncShare; AnnIncEsca and EffTaxRate
/// are percent. ISNomRate: growth, percent a year, compounded monthly (see nominalRate); ISGrowthRate, the effective
/// rate, only discounts the income that is taxed. Each rounding is part of the rules, half to even. So are these:
/// the first trail commission is a whole year's, the later ones a twelfth of it, once a year; a monthly income rises
/// after the first month of a year is paid, and never falls; an annual one rises or falls before it is paid.
IncomeSharesRun incomeFromShares(const assessment::IncomeShares& inputs, const IncomeSharesCosts& costs,
                                 double ISNomRate);

} // namespace calculators

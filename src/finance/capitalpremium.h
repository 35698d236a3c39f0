#pragma once

#include <optional>
#include <string>

#include "assessment/assessment.h"
#include "finance/premiumsearch.h"

/// The monthly unit-trust premium that provides the capital of a needs analysis.
namespace finance {

inline constexpr int mostPremiumYears = 50; ///< a longer period is reduced to this

/// The words of a premium, which differ between the two analyses.
struct PremiumWords {
    const char *period, *reducedPeriod, *escalation, *answer;
};
inline constexpr PremiumWords educationPremium{"Investment period", "Investment period", "Premium escalation",
                                               "Approximate monthly premium"};
inline constexpr PremiumWords retirementPremium{"Investment period ", "Investment period (reduced to 50 years)",
                                                "Investment escalation", "Approximate monthly investment"};

/// Carries a capital (rand; nothing if the analysis found none) and the years until it is needed into a premium. Growth
/// and escalation stay as entered; the answer is no longer valid.
void carryCapital(assessment::CapitalPremium& premium, std::optional<double> capital, double years);

/// True if the period is the 50 years to which a longer one was reduced.
bool isReduced(const assessment::CapitalPremium& premium);

/// Why there is a premium or none.
enum class PremiumState {
    solved,
    solvedForOther, ///< for a value that is not the capital of the analysis
    noCapital,      ///< the analysis found none
    noneNeeded,     ///< the value is 0 or below it: a surplus
    figuresMissing, ///< growth or period is 0
    never           ///< no premium up to 10^15 rand reaches the value
};

struct SolvedPremium {
    PremiumState state = PremiumState::noCapital;
    PremiumFound found;

    /// What to tell the user about it; empty for a premium for the capital of the analysis.
    std::string sentence() const;
};

/// Searches the premium (rand a month) whose unit trust, with dividends re-invested and a twelfth of the trail
/// commission each month, grows to PremTarget (rand) in PremTerm years at PremGrowth, rising by PremEscalation (percent
/// a year). Writes `premium` and `isSolved`. A try that gives the value exactly is the answer, otherwise it is the
/// first whole rand above it. If UTCOM is 100 or more nothing is ever invested. Takes a few milliseconds at most.
SolvedPremium solvePremium(assessment::CapitalPremium& premium, const assessment::FundDefaults& funds);

/// True if the premium is the answer for this capital and these years: an analysis may have changed since.
bool isSolvedFor(const assessment::CapitalPremium& premium, std::optional<double> capital, double years);

} // namespace finance

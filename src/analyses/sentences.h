#pragma once

#include <string>

namespace analyses {

/// What tells the sentences of the three large analyses apart. Each difference is meant.
struct SentenceRules {
    const char* years;               ///< behind the number of years
    bool nothingFalls = false;       ///< a capital of exactly 0 is said to fall short of a year as well
    bool anyCapitalFalls = false;    ///< so is every capital above 0, until a later sentence takes its place
    bool exactYearCarries = false;   ///< capital and income of exactly a year's need carry that year
    bool needsRealShortfall = false; ///< a need below nothing has a sentence of its own
    double excess = 0;               ///< rand beyond which an excess is told
    bool exactExcessTold = false;    ///< one of just that much too
};

inline constexpr SentenceRules retirementSentences{.years = " year/s.", .needsRealShortfall = true, .excess = 100000};
inline constexpr SentenceRules deathSentences{.years = " years.", .nothingFalls = true, .excess = 50000};
inline constexpr SentenceRules disabilitySentences{
    .years = " years.", .anyCapitalFalls = true, .exactYearCarries = true, .excess = 50000, .exactExcessTold = true};

/// What an analysis says of: rand and years.
struct Prospect {
    double monthlyNeed = 0;     ///< in the first year
    double capital = 0;         ///< net
    double firstYearIncome = 0; ///< available in it beside the capital
    int covered = 1;            ///< years that the capital lasts
    double asked = 0;           ///< years that it should, at most 50
};

/// How long the capital lasts, never more than the years asked for; empty where nothing is to be said of it.
std::string lastingSentence(const SentenceRules& rules, const Prospect& prospect);

/// What the capital has beyond that which does; empty where that is too little to tell.
std::string excessSentence(const SentenceRules& rules, double excess);

/// What it lacks.
std::string shortfallSentence(double missing);

} // namespace analyses

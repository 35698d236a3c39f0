#pragma once

#include <string>

namespace analyses {

/// The differences between the sentences of the three needs analyses. Each difference is deliberate.
struct SentenceRules {
    const char* years;               ///< the text after the number of years
    bool nothingFalls = false;       ///< a capital of exactly 0 also brings the sentence "less than 1 year"
    bool exactYearCarries = false;   ///< exactly a year's need is enough for that year
    bool needsRealShortfall = false; ///< a negative need has its own sentence
    double excess = 0;               ///< rand: only a larger excess is mentioned
    bool exactExcessTold = false;    ///< an excess of exactly this amount is mentioned too
};

inline constexpr SentenceRules retirementSentences{.years = " year/s.", .needsRealShortfall = true, .excess = 100000};
inline constexpr SentenceRules deathSentences{.years = " years.", .nothingFalls = true, .excess = 50000};
inline constexpr SentenceRules disabilitySentences{
    .years = " years.", .exactYearCarries = true, .excess = 50000, .exactExcessTold = true};

/// The figures that the sentences are about: rand and years.
struct Prospect {
    double monthlyNeed = 0;     ///< in the first year
    double capital = 0;         ///< net worth at the start
    double firstYearIncome = 0; ///< available in it besides the capital
    int covered = 1;            ///< years that the capital lasts
    double asked = 0;           ///< years that it should last, at most 50
};

/// How long the capital lasts, never more than the years asked for; empty if there is nothing to say.
std::string lastingSentence(const SentenceRules& rules, const Prospect& prospect);

/// The capital in excess of what is needed; empty if it is too small to mention.
std::string excessSentence(const SentenceRules& rules, double excess);

/// The additional capital that is needed.
std::string shortfallSentence(double missing);

} // namespace analyses

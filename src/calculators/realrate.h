#pragma once

#include "assessment/assessment.h"
#include "calculators/returnsearch.h"

namespace calculators {

/// The nominal rate, percent a year compounded monthly, that turns a stream of money into its maturity value.
struct RealRate {
    enum class Answer {
        nothingInvested, ///< no lump sum and no payment: every figure is 0
        found,
        unreached, ///< no rate up to `highestReturn` reaches the maturity value
        tooLarge   ///< the sums exceed what a number can hold
    };

    Answer answer = Answer::nothingInvested;
    FoundReturn found;   ///< the rate is 0 unless there is one
    double start = 0;    ///< the whole rate before the search's first: 0, or -999 where more was paid in than matures
    double netPaid = 0;  ///< lump sum and payments less incomes, rand
    double payments = 0; ///< without the lump sum, rand
    double incomes = 0;  ///< rand
    double profit = 0;   ///< maturity value and incomes less lump sum and payments, rand

    bool isFinite() const { return answer != Answer::tooLarge; }
};

/// What to tell the adviser if no rate is found.
inline constexpr const char* unreachedSentence = "No rate of return reaches this maturity value.";

/// SingPremLump and MonPrem (rand a month), which escalates by AnnEsc percent after each year, become MatVal in Period
/// months. Writes AnnEsc, 0 if less than 13 months or no premium leave nothing to escalate, and the results
/// TotPremPaid (netPaid) and RRR. More than 600 months count as 600, less than 1 as none.
RealRate RRRCalc(assessment::RRROld& inputs);

/// The same for four payments and four incomes a month, each with its own escalation. Writes PayEsc1 to PayEsc4, 0 if
/// less than 13 months or no payment leave nothing to escalate; the escalations of incomes stay.
RealRate RRRCalc(assessment::RRRNew& inputs);

} // namespace calculators

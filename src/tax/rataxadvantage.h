#pragma once

#include <string>

#include "assessment/assessment.h"
#include "tax/taxtables.h"

namespace tax {

/// Why a retirement funding calculation gives no saving.
enum class RATaxOutcome {
    saving,
    nothingProposed, ///< no taxable income or no contribution
    belowThreshold,  ///< the income pays no tax
    fallsBelow,      ///< the income after the deduction pays no tax
};

/// What a contribution to a retirement fund saves in income tax, and how that came about: rand a year. The figures
/// after the step where the calculation ended are 0.
struct RATaxResult {
    RATaxOutcome outcome = RATaxOutcome::nothingProposed;
    double maximum = 0;     ///< contributions that may be deducted
    double deduction = 0;   ///< of the proposed ones
    double income = 0;      ///< taxable income with the capital gain
    double threshold = 0;   ///< for the age
    double taxBefore = 0;   ///< less rebates; may be below 0
    double incomeAfter = 0; ///< less the deduction
    double taxAfter = 0;
    double saving = 0;
    double percent = 0;        ///< of the proposed contribution, to one place
    double paidBySARS = 0;     ///< whole rand
    double paidByTaxpayer = 0; ///< of the proposed contribution

    bool isBelowThreshold() const {
        return outcome == RATaxOutcome::belowThreshold || outcome == RATaxOutcome::fallsBelow;
    }
    /// The percentage as screen and report show it, without a zero before the point: "(30.5%)", "(.5%)"; "(0.0%)" if
    /// nothing was proposed, "0.0%" for any other 0.
    std::string percentText() const;
};

/// The client's inputs; where no name was entered that of the client, where no age that of quick tax, else the age
/// today by the date of birth.
assessment::RATaxAdvantage startingRATaxAdvantage(const assessment::Assessment& record, double today);

/// Compares the tax with and without the contribution. Overwrites `Salary` and `LastScaleTax` of the scale whenever an
/// income is taxed.
///
/// The limits of one year stand beside the rebates of the next, and no tax is raised to 0: both are meant.
RATaxResult calculateRATaxAdvantage(const assessment::RATaxAdvantage& inputs, assessment::KwikTax& scale);

} // namespace tax

#pragma once

#include <array>
#include <filesystem>

#include "assessment/assessment.h"

namespace client {

/// Who receives a death benefit, by `DeathBenPerson`, in the words of the screen and the reports.
inline constexpr std::array<const char*, 4> beneficiaries{"Estate", "Spouse", "Charity ", "Other"};

/// What the reports on the schedule of policies show beside the figures.
struct PolicyReportOptions {
    bool notes = false; ///< the notes of each record
};

/// Writes the schedule into Print.mdb: a header row, and a row for each record in its order, numbered from 1.
///
/// Runs `CalculatePolInv` first, so that report and analyses agree. Dates are dd/mm/yyyy or a blank; a note has "Note:
/// " before it. Throws store::Error; nothing is written then.
///
/// Totals over all records, rand:
/// - `LifeCoverTotal` DeathBen, `DisabilityTotal` DisabilLumpSum, `DreadTotal` TraumlLumpSum, `CashValueTotal`
///   DeathBenCashVal, `CurrentValueTotal` InvBensCurVal, each as entered, whoever receives it and at whatever age it
///   falls due;
/// - `RetirementTotal` the six values at retirement, not cut to whole rand as in the retirement analysis;
/// - `WorthTotal` the same as printed, the sum of each record's `WorthAtRetirement` to the cent;
/// - a month: `ContributionTotal` PremInvAmtMonthly, `MONLifeCoverTotal` DeathBenMonthly, `MONDisabilityTotal`
///   DisabilMonthly, `MONDreadTotal` TraumMonthly, `MONIncomeRBTotal` RBMonAvaible, `MONIncomeProTotal` IncProMonthly,
///   and `IncomeProTotal` the same, since income protection pays no lump sum;
/// - `DBenEstate`, `DBenSpouse`, `DBenCharity`, `DBenOther`: the death benefits less what is ceded or lent against, by
///   who receives them; `DBenTotal` the four together, `DBenSpousePerc` the spouse's share of the four in percent, 0 if
///   they come to nothing.
void feedPolicies(const std::filesystem::path& printDbPath, assessment::Assessment& record,
                  const PolicyReportOptions& options);

} // namespace client

#pragma once

#include <array>
#include <filesystem>

#include "assessment/assessment.h"
#include "datastore/printfeed.h"

namespace client {

/// Who receives a death benefit, indexed by `DeathBenPerson`, as the screen and the reports print it.
inline constexpr std::array<const char*, 4> beneficiaries{"Estate", "Spouse", "Charity ", "Other"};

/// What the policy reports show besides the figures.
struct PolicyReportOptions {
    bool notes = false; ///< print the notes of each record
};

/// The two reports on the rows that `feedPolicies` writes.
inline const datastore::Printout policiesDetails{"\\PolInvestDetails.rpt", "Policies & Investments Details"};
inline const datastore::Printout policiesSchedule{"\\PolInvestSchedule.rpt", "Policies & Investments Schedule"};

/// False for a record of the schedule in which nothing is entered.
inline bool isFilled(const assessment::Policy& policy) { return policy != assessment::Policy{}; }

/// Writes the schedule into Print.mdb: a header row, and a row for each record in its order, numbered from 1.
///
/// Runs `CalculatePolInv` first, so that report and analyses agree. Dates are dd/mm/yyyy or a blank; a note is preceded
/// by "Note: ". If it throws store::Error, nothing is written.
///
/// Totals over all records, rand:
/// - `LifeCoverTotal` DeathBen, `DisabilityTotal` DisabilLumpSum, `DreadTotal` TraumlLumpSum, `CashValueTotal`
///   DeathBenCashVal, `CurrentValueTotal` InvBensCurVal: each as entered, whoever receives it and whatever its age;
/// - `RetirementTotal` the six values at retirement, not cut to whole rand as in the retirement analysis;
/// - `WorthTotal` the sum of each record's printed `WorthAtRetirement`, which is rounded to the cent;
/// - a month: `ContributionTotal` PremInvAmtMonthly, `MONLifeCoverTotal` DeathBenMonthly, `MONDisabilityTotal`
///   DisabilMonthly, `MONDreadTotal` TraumMonthly, `MONIncomeRBTotal` RBMonAvaible, `MONIncomeProTotal` IncProMonthly,
///   and `IncomeProTotal` the same again, since income protection pays no lump sum;
/// - `DBenEstate`, `DBenSpouse`, `DBenCharity`, `DBenOther`: the death benefits less what is ceded or lent against, by
///   beneficiary; `DBenTotal` their sum; `DBenSpousePerc` the spouse's share of it in percent, 0 if the sum is 0.
void feedPolicies(const std::filesystem::path& printDbPath, assessment::Assessment& record,
                  const PolicyReportOptions& options);

} // namespace client

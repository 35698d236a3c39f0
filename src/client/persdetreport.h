#pragma once

#include <array>
#include <filesystem>

#include "assessment/assessment.h"
#include "datastore/printfeed.h"

namespace client {

/// The options' captions, on the screen and in the report, indexed by `CMaritalStat` and `CSmoker` or the spouse's.
inline constexpr std::array<const char*, 5> maritalStates{"Single", "Widow/er", "M. ANC with Accrual",
                                                          "M. ANC w/out Accrual", "Married COP"};
inline constexpr std::array<const char*, 3> smokerStates{"Smoker", "Not smoked for 2 years", "Never smoked"};

/// Writes the personal details into Print.mdb and returns the report to run: texts unchanged, dates as dd/mm/yyyy or a
/// blank, options as their captions (empty for a number without one), notes only if they are wanted. Does not change
/// the record. If it throws store::Error, nothing is written.
datastore::Printout feedPersonalDetails(const std::filesystem::path& printDbPath, assessment::Assessment& record,
                                        bool notes);

} // namespace client

#pragma once

#include <filesystem>

#include "assessment/assessment.h"
#include "store/database.h"

namespace datastore {

/// The rates of quotations: the user's, `MutualFunds`, and the original ones, `TallowenDefault`. A table or figure that
/// is missing throws store::Error: rates are never made up, since the adviser signs what comes of them.
assessment::FundDefaults readFunds(store::Database& settings);
assessment::FundDefaults readFunds(const std::filesystem::path& defaultDbPath);
assessment::FundDefaults readOriginalFunds(const std::filesystem::path& defaultDbPath);

/// Reads the user's rates and the step of growth rates into the record again, as each screen that needs them does when
/// it opens; but rates that could not be stored still hold. If it throws store::Error, the record keeps those it had.
void refreshFunds(assessment::Assessment& record, const std::filesystem::path& defaultDbPath);

/// Stores the user's rates, and the step of growth rates (`GRINC` of `Setup`, percentage points). If it throws
/// store::Error, neither is changed.
void writeFunds(const std::filesystem::path& defaultDbPath, const assessment::FundDefaults& funds, double grinc);

/// Stores the record's rates and step. If it throws store::Error, they hold until the program ends.
void storeFunds(assessment::Assessment& record, const std::filesystem::path& defaultDbPath);

} // namespace datastore

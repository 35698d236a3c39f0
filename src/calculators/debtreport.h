#pragma once

#include <filesystem>
#include <string>

#include "calculators/debts.h"
#include "datastore/printfeed.h"

namespace calculators {

/// Writes the client's debts, the loan that replaces them and its amortisation, if asked for, into Print.mdb. If it
/// throws store::Error, nothing is written. The saving is empty if there is none.
datastore::Printout feedDebts(const std::filesystem::path& printDbPath, const std::string& client,
                              const assessment::DebtConsolidation& debts, const DebtComparison& result,
                              const AmortisationChoice& table);

} // namespace calculators

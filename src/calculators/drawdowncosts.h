#pragma once

#include <filesystem>

#include "assessment/assessment.h"
#include "assessment/fieldtable.h"

namespace calculators {

/// The practice's costs of draw-down annuities: the one row of `livann` in Default.Mdb.
const assessment::FieldTable<assessment::DrawDownCosts>& drawDownCostsTable();

/// Throws store::Error if the file, the table, the row or a figure is missing, if a percentage is not from 0 to 100, or
/// if the set-up costs are below 0: costs are never made up, since the practice signs for the result.
assessment::DrawDownCosts readDrawDownCosts(const std::filesystem::path& defaultDbPath);

/// If it throws store::Error, the row is unchanged.
void writeDrawDownCosts(const std::filesystem::path& defaultDbPath, const assessment::DrawDownCosts& costs);

} // namespace calculators

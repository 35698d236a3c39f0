#pragma once

#include <filesystem>

#include "assessment/fieldtable.h"

namespace calculators {

/// What a practice's shares cost and pay besides their growth: the one row of `IncFromShares` in Default.Mdb.
struct IncomeSharesCosts {
    double InitCom = 0;      ///< commission on the amount invested, percent, 0 to 100
    double InitAdminFee = 0; ///< taken off the amount invested, rand, not negative
    double AnnDivBonus = 0;  ///< added at each year's end, percent, 0 to 100
    double AnnManFee = 0;    ///< taken at the start of each later year, percent, 0 to 100
    double TrailComm = 0;    ///< percent a year, 0 to 100
};

/// Its fields; the report's table of the same name has them too.
const assessment::FieldTable<IncomeSharesCosts>& incomeSharesCostsTable();

/// Throws store::Error if the file, the table, the row or a figure is missing, or if a figure is out of range.
IncomeSharesCosts readIncomeSharesCosts(const std::filesystem::path& defaultDbPath);

/// If it throws store::Error, the row is unchanged.
void writeIncomeSharesCosts(const std::filesystem::path& defaultDbPath, const IncomeSharesCosts& costs);

} // namespace calculators

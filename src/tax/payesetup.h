#pragma once

#include <filesystem>

#include "assessment/fieldtable.h"

namespace tax {

/// The practice's settings of the monthly tax: the one row of `PAYESetup` in Default.Mdb.
struct PAYESetup {
    double EmployeeUIF = 0;   ///< percent, 0 to 100
    double EmployerUIF = 0;   ///< percent, 0 to 100
    double SkillLevy = 0;     ///< percent, 0 to 100
    double UIFLimit = 0;      ///< rand a month, not negative: earnings above it pay no UIF
    double TAIncRate8020 = 0; ///< taxed part of a travel allowance, a fraction from 0 to 1, usually 0.8 or 0.2
};

/// Its fields; the report's table of the same name has them too.
const assessment::FieldTable<PAYESetup>& payeSetupTable();

/// Throws store::Error if the file, the table, the row or a figure is missing, or if a figure is out of range: rates
/// are never made up, since the practice signs for the result.
PAYESetup readPAYESetup(const std::filesystem::path& defaultDbPath);

/// If it throws store::Error, the row is unchanged.
void writePAYESetup(const std::filesystem::path& defaultDbPath, const PAYESetup& setup);

} // namespace tax

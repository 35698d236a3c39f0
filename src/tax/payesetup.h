#pragma once

#include <filesystem>

#include "assessment/fieldtable.h"

namespace tax {

/// The practice's settings of the monthly tax: the one row of `PAYESetup` in Default.Mdb.
struct PAYESetup {
    double EmployeeUIF = 0;   ///< percent, 0 to 100
    double EmployerUIF = 0;   ///< percent, 0 to 100
    double SkillLevy = 0;     ///< percent, 0 to 100
    double UIFLimit = 0;      ///< rand a month, not negative: what is earned above pays no UIF
    double TAIncRate8020 = 0; ///< taxed part of a travel allowance, a fraction: 0.8 or 0.2, any other used as it is
};

/// Its fields, which the report's table of the same name has too.
const assessment::FieldTable<PAYESetup>& payeSetupTable();

/// Throws store::Error if file, table, row or a figure is missing, or a figure is outside its range: rates are never
/// invented, and a wrong one would be signed for.
PAYESetup readPAYESetup(const std::filesystem::path& defaultDbPath);

/// Throws store::Error; the row is as before then.
void writePAYESetup(const std::filesystem::path& defaultDbPath, const PAYESetup& setup);

} // namespace tax

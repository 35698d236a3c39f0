#pragma once

#include <filesystem>

namespace tax {

/// The practice's settings of the monthly tax: the one row of `PAYESetup` in Default.Mdb.
struct PAYESetup {
    double EmployeeUIF = 0;   ///< percent
    double EmployerUIF = 0;   ///< percent
    double SkillLevy = 0;     ///< percent
    double UIFLimit = 0;      ///< rand a month: what is earned above pays no UIF
    double TAIncRate8020 = 0; ///< taxed part of a travel allowance, a fraction: 0.8 or 0.2, any other used as it is
};

/// Throws store::Error if file, table, row or a figure is missing: rates are never invented.
PAYESetup readPAYESetup(const std::filesystem::path& defaultDbPath);

/// Throws store::Error; the row is as before then.
void writePAYESetup(const std::filesystem::path& defaultDbPath, const PAYESetup& setup);

} // namespace tax

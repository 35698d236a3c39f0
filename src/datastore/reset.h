#pragma once

#include "assessment/assessment.h"
#include "datastore/paths.h"
#include "store/database.h"

namespace datastore {

/// Blanks the record and reads `GRINC` from the settings and `CPI` from the client database (0 if that fails). The fund
/// defaults are blanked too: only start-up reads them.
///
/// If the settings can't be read, throws and leaves the record unchanged.
void ResetAssessment(assessment::Assessment& record, const Paths& paths);
/// The same with both databases open.
void ResetAssessment(assessment::Assessment& record, store::Database& settings, store::Database& clients);

/// The two parts of a reset, for callers that have the client database open: a blank record with `GRINC`, and `CPI`.
assessment::Assessment blankRecord(const std::filesystem::path& defaultDbPath);
void readCPI(assessment::Assessment& record, store::Database& clients);

/// Writes the practice's rate of inflation, percent a year, into the one row of `CPIDefault`, and adds that row if it
/// is missing. If it throws store::Error, the row is unchanged.
void writeCPI(const std::filesystem::path& dataDbPath, double percent);

} // namespace datastore

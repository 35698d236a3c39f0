#pragma once

#include "assessment/assessment.h"
#include "datastore/paths.h"

namespace datastore {

/// Blanks the record and reads `GRINC` from the settings and `CPI` from the client database (0 if that fails). The fund
/// defaults are blanked too: only a start of the program reads them.
///
/// Throws without touching the record if the settings can't be read.
void ResetAssessment(assessment::Assessment& record, const Paths& paths);

} // namespace datastore

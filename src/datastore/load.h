#pragma once

#include "assessment/assessment.h"
#include "datastore/paths.h"

namespace datastore {

/// Fills the record with the client of this key, blanked first; the client is then on file and unchanged.
///
/// Error 3021 if the client has vanished; then, or on any other error while reading, the record is blank and not on
/// file. Fields that an older file lacks or left Null read as their blanks.
void load(assessment::Assessment& record, const Paths& paths, double key);

} // namespace datastore

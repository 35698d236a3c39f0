#pragma once

#include "assessment/assessment.h"
#include "datastore/paths.h"
#include "store/database.h"

namespace datastore {

/// Blanks the record and fills it with the client of this key, who is then on file and unchanged.
///
/// Error 3021 if the client has been deleted; the record is then blank and not on file. After any other error, such as
/// a locked, missing or damaged file, the record is unchanged. Fields that are missing or Null in an older file read as
/// their blanks.
void load(assessment::Assessment& record, const Paths& paths, double key);

/// Reads what a file holds of the client of this key into a blank record; `inFile` identifies that state of the file.
/// The caller must have an open transaction. Error 3021 as above.
void readClient(assessment::Assessment& record, store::Database& database, double key);

} // namespace datastore

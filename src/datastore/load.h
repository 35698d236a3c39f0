#pragma once

#include "assessment/assessment.h"
#include "datastore/paths.h"
#include "store/database.h"

namespace datastore {

/// Fills the record with the client of this key, blanked first; the client is then on file and unchanged.
///
/// Error 3021 if the client has vanished; the record is then blank and not on file. On any other error, a file that is
/// locked, missing or damaged, it is left as it was. Fields that an older file lacks or left Null read as their blanks.
void load(assessment::Assessment& record, const Paths& paths, double key);

/// What a file holds of the client of this key, put into a blank record; `inFile` tells it apart from any other state
/// of the file. For callers whose transaction holds the view of the file still. Error 3021 as above.
void readClient(assessment::Assessment& record, store::Database& database, double key);

} // namespace datastore

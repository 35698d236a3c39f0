#pragma once

#include "assessment/headfootlines.h"
#include "datastore/paths.h"
#include "store/database.h"

/// The four header and four footer lines of every report.
namespace datastore {

/// Reads the lines from the client database. Error 3021 if it has none.
assessment::HeadFootLines readHeadFoot(const Paths& paths);
assessment::HeadFootLines readHeadFoot(store::Database& database);

/// Writes the lines into the client database, then into Print.mdb, where reports read them. If the second write fails,
/// the first one stays. Error 3163 for a line of more than 80 characters.
void writeHeadFoot(const Paths& paths, assessment::HeadFootLines lines);
/// Updates the one row of lines in a database, or adds it.
void writeHeadFoot(store::Database& database, assessment::HeadFootLines& lines);

} // namespace datastore

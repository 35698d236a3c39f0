#pragma once

#include "assessment/headfootlines.h"
#include "datastore/paths.h"
#include "store/database.h"

/// The four header and four footer lines of every report.
namespace datastore {

/// The lines of the client database. Error 3021 if it has none.
assessment::HeadFootLines readHeadFoot(const Paths& paths);
assessment::HeadFootLines readHeadFoot(store::Database& database);

/// Writes the lines into the client database, then into Print.mdb, from which reports take them. If the second fails
/// the first stays. Error 3163 for a line of more than 80 characters.
void writeHeadFoot(const Paths& paths, assessment::HeadFootLines lines);
/// Edits the one row of lines in a database, or adds it.
void writeHeadFoot(store::Database& database, assessment::HeadFootLines& lines);

} // namespace datastore

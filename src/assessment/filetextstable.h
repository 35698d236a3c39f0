#pragma once

#include "assessment/fieldtable.h"
#include "assessment/filetexts.h"

namespace assessment {

/// The texts of a client's file, one row a client. Not among `clientTables()`: a file of clients gets this table with
/// its first text, so that a file without texts stays as every other program expects it.
const FieldTable<FileTexts>& fileTextsTable();

/// What the same moment adds to the table of personal details: the mark by which a client knows his row of texts.
const TableDescription& fileTextsMark();

} // namespace assessment

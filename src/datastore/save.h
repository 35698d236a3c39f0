#pragma once

#include <filesystem>

#include "assessment/assessment.h"
#include "store/database.h"

namespace datastore {

enum class Saved {
    nothing, ///< a client on file without changes: nothing was written
    written,
    thenNew, ///< written, and the save was asked for by New: the caller blanks the record and closes the screens
};

/// Writes the whole record into the client database in one transaction, under its key or, for a client not on file,
/// under the highest key plus 1. It alone writes client data.
///
/// On success the client is on file and unchanged, all changed flags cleared but the draw-down annuity's. On an error
/// file, record and flags stay as they were. `SaveThenNew` is cleared either way, so that a later plain save does not
/// blank the client. Error 3021 if the client's row has vanished.
Saved Save(assessment::Assessment& record, const std::filesystem::path& dataDbPath);

/// The same on an open database.
Saved Save(assessment::Assessment& record, store::Database& database);

} // namespace datastore

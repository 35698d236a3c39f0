#pragma once

#include <filesystem>

#include "assessment/assessment.h"
#include "store/database.h"
#include "store/error.h"

namespace datastore {

enum class Saved {
    nothing, ///< a client on file without changes: nothing was written
    written,
    thenNew, ///< written at the request of New: the caller blanks the record and closes the screens
};

/// The file holds a different client under this key: the file was replaced by another one or by an older state of
/// itself.
class OtherClientInFile : public store::Error {
    using Error::Error;
};

/// Another program has changed the client in the file since it was loaded or saved here.
class ChangedInFile : public store::Error {
    using Error::Error;
};

/// What to do with another program's changes to the client.
enum class TheirChanges { keep, overwrite };

/// Writes the whole record into the client database in one transaction, under its key or, for a client not on file,
/// under the highest key plus 1. Nothing else writes client data.
///
/// On success the client is on file and unchanged; all changed flags are cleared except the draw-down annuity's. On an
/// error file, record and flags stay as they were. `SaveThenNew` is cleared in both cases, so that a later plain save
/// does not blank the client. Error 3021 if the client's row has been deleted.
///
/// A client on file must still have the name and birth date that were loaded, otherwise OtherClientInFile is thrown.
/// All its rows must be as they were, otherwise ChangedInFile is thrown unless `theirs` is overwrite.
Saved Save(assessment::Assessment& record, const std::filesystem::path& dataDbPath,
           TheirChanges theirs = TheirChanges::keep);

/// The same on an open database.
Saved Save(assessment::Assessment& record, store::Database& database, TheirChanges theirs = TheirChanges::keep);

} // namespace datastore

#pragma once

#include <filesystem>

#include "assessment/assessment.h"
#include "store/database.h"
#include "store/error.h"

namespace datastore {

enum class Saved {
    nothing, ///< a client on file without changes: nothing was written
    written,
    thenNew, ///< written, and the save was asked for by New: the caller blanks the record and closes the screens
};

/// The file holds somebody else under the client's key: it was replaced by another file, or by an older state of
/// itself.
class OtherClientInFile : public store::Error {
    using Error::Error;
};

/// Another program has changed the client in the file since it was loaded or saved here.
class ChangedInFile : public store::Error {
    using Error::Error;
};

/// What becomes of another program's changes to the client.
enum class TheirChanges { keep, overwrite };

/// Writes the whole record into the client database in one transaction, under its key or, for a client not on file,
/// under the highest key plus 1. It alone writes client data.
///
/// On success the client is on file and unchanged, all changed flags cleared but the draw-down annuity's. On an error
/// file, record and flags stay as they were. `SaveThenNew` is cleared either way, so that a later plain save does not
/// blank the client. Error 3021 if the client's row has vanished.
///
/// A client on file must still be the one that was loaded, by name and birth date, or OtherClientInFile is thrown; and
/// all that the file holds of it must be as it was then, or ChangedInFile is thrown unless `theirs` says otherwise.
Saved Save(assessment::Assessment& record, const std::filesystem::path& dataDbPath,
           TheirChanges theirs = TheirChanges::keep);

/// The same on an open database.
Saved Save(assessment::Assessment& record, store::Database& database, TheirChanges theirs = TheirChanges::keep);

} // namespace datastore

#pragma once

#include "assessment/assessment.h"
#include "datastore/create.h"
#include "datastore/paths.h"

namespace datastore {

struct StartUpResult {
    Paths paths;
    std::string notice; ///< see copiedFolderNotice
};

/// Everything of a start that needs no window: finds the files, creates the client database or brings it up to date,
/// and the databases that come with the program too, blanks the record and reads the fund defaults. `notice` shows the
/// one message that a creation may give.
///
/// Throws store::Error for whatever is not put right here; the program then can't go on.
StartUpResult startUp(const std::filesystem::path& programFolder, assessment::Assessment& record,
                      const Notice& notice = {});

/// Goes over to another client database while the program runs, or opens the same one again after it was replaced: it
/// is brought up to date as at a start, its report lines go to Print.mdb, its rate of inflation into the record. The
/// client in hand counts as not on file, since its key belongs to the file before.
///
/// Throws store::Error if that is no client database or can't be brought up to date; all is as before then. Nothing is
/// created, and `DataPath.txt` is the caller's.
void useClientDb(Paths& paths, const std::filesystem::path& dataDbPath, assessment::Assessment& record);

} // namespace datastore

#pragma once

#include "assessment/assessment.h"
#include "datastore/create.h"
#include "datastore/paths.h"

namespace datastore {

struct StartUpResult {
    Paths paths;
    std::string notice; ///< see copiedFolderNotice
};

/// The part of start-up that needs no window: finds the files, creates or updates the client database and the databases
/// that come with the program, blanks the record and reads the fund defaults. `notice` shows the one message that
/// creating a database may give.
///
/// Throws store::Error for everything that it can't handle; the program then can't continue.
StartUpResult startUp(const std::filesystem::path& programFolder, assessment::Assessment& record,
                      const Notice& notice = {});

/// Switches to another client database while the program runs, or reopens the same one after it was replaced: updates
/// it as at start-up, copies its report lines to Print.mdb and its rate of inflation into the record. The current
/// client then counts as not on file, since its key belongs to the previous file.
///
/// Throws store::Error and changes nothing if that is no client database or can't be updated. Creates nothing; the
/// caller writes `DataPath.txt`.
void useClientDb(Paths& paths, const std::filesystem::path& dataDbPath, assessment::Assessment& record);

} // namespace datastore

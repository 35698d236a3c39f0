#pragma once

#include "assessment/assessment.h"
#include "datastore/create.h"
#include "datastore/paths.h"

namespace datastore {

struct StartUpResult {
    Paths paths;
    double UpDateDBValue = 0; ///< version of the client database as it now stands
    std::string notice;       ///< see copiedFolderNotice
};

/// Everything of a start that needs no window: finds the files, creates the client database or brings it up to date,
/// and the databases that come with the program too, blanks the record and reads the fund defaults. `notice` shows the
/// one message that a creation may give.
///
/// Throws store::Error for whatever is not put right here; the program then can't go on.
StartUpResult startUp(const std::filesystem::path& programFolder, assessment::Assessment& record,
                      const Notice& notice = {});

} // namespace datastore

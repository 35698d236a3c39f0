#pragma once

#include <filesystem>
#include <string>

#include "assessment/assessment.h"

namespace client {

/// The words for the options in the personal details report, and whether it includes the notes.
struct PersDetWords {
    std::string clientMarital, spouseMarital, clientSmoker, spouseSmoker; ///< captions of the chosen options
    bool notes = false;
};

/// Writes the personal details into Print.mdb: texts unchanged, dates as dd/mm/yyyy or a blank, notes only if they are
/// wanted. Does not change the record. If it throws store::Error, nothing is written.
void feedPersonalDetails(const std::filesystem::path& printDbPath, assessment::Assessment& record,
                         const PersDetWords& words);

} // namespace client

#pragma once

#include <filesystem>
#include <string>

#include "assessment/assessment.h"

namespace client {

/// What the personal details report shows as words, and whether the notes go with it.
struct PersDetWords {
    std::string clientMarital, spouseMarital, clientSmoker, spouseSmoker; ///< captions of the chosen options
    bool notes = false;
};

/// Writes the client's front page into Print.mdb: texts as they are, dates dd/mm/yyyy or a blank, comments only if the
/// notes are wanted. The record is only read. Throws store::Error; nothing is written then.
void feedPersonalDetails(const std::filesystem::path& printDbPath, assessment::Assessment& record,
                         const PersDetWords& words);

} // namespace client

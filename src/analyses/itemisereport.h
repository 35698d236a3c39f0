#pragma once

#include <filesystem>

#include "assessment/tables.h"

namespace analyses {

inline constexpr const char* itemisedDefinition = "\\ItPrint.rpt";
inline constexpr const char* itemisedTitle =
    "Itemised Details - To export printout click on the suitcase button or goto Marlowbeck Help";

/// True if any list of the analysis is in use. The line that the policies fill has no list.
bool anyItemised(assessment::Assessment& record, assessment::Analysis analysis);

/// Writes the client's name and every list in use into Print.mdb, in the order of the screen: a row with the title, one
/// with the column heads, then the list's rows, with figures as text. The age or year of a timed amount goes into
/// `FromAge`. Also writes the units of the columns and, in a list's last row, the total of its amounts. Does not change
/// the record. If it throws store::Error, nothing is written.
void feedItemised(const std::filesystem::path& printDbPath, assessment::Assessment& record,
                  assessment::Analysis analysis);

} // namespace analyses

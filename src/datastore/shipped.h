#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

#include "assessment/headfootlines.h"
#include "store/database.h"

/// Updates the databases that come with the program. Their sources are part of the executable, since only that is sure
/// to be new after an upgrade: a program folder of a single user holds nothing else that shows what these databases
/// should contain.
namespace datastore {

/// The SQL sources of Default.Mdb and Print.mdb; the build creates both files from them.
std::string_view defaultSource();
std::string_view printSource();

/// Recreates Print.mdb if its tables are not those of this program, or if it is damaged: it holds only the last
/// printout and the header and footer lines, which are copied from the client database (an old client database without
/// them gets them in its upgrade). Takes effect completely or not at all. A missing file stays missing: the program
/// works without reports, and a report then says so. Throws store::Error for a folder that can't be written or a full
/// disk.
void renewPrintDb(store::Database& clients, const std::filesystem::path& printDbPath);

/// Makes a new Print.mdb, the file not existing yet, with these header and footer lines. The file is readable by its
/// owner only.
void createPrintDb(const std::filesystem::path& printDbPath, std::optional<assessment::HeadFootLines> lines);

/// True if the settings lack no table and no field.
bool hasAllSettings(store::Database& settings);

/// Adds missing tables and fields to the settings, with the values that they are shipped with. The user's own settings
/// are unchanged; an empty table stays empty. One transaction, or none if nothing is missing.
void completeSettings(store::Database& settings);

} // namespace datastore

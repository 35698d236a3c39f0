#pragma once

#include <filesystem>
#include <string_view>

#include "store/database.h"

/// The databases that come with the program, brought up to date with it. Their sources are part of the executable,
/// since that is the one thing that is new after every upgrade: in a program folder of one user's own the databases are
/// the installed ones themselves, so that nothing else there could tell what they should be like.
namespace datastore {

/// The sources of Default.Mdb and Print.mdb, from which the build makes them.
std::string_view defaultSource();
std::string_view printSource();

/// Makes Print.mdb anew where its tables are not those of this program, or where it is damaged: it holds nothing but
/// the last printout, and the header and footer lines, which are copied from the client database (an older one that has
/// none yet gets its own with its upgrade). Takes effect whole or not at all. A missing file stays missing: work
/// without reports goes on, and the report says so. Throws store::Error for a folder that can't be written or a full
/// disk.
void renewPrintDb(store::Database& clients, const std::filesystem::path& printDbPath);

/// Adds to the settings the tables and fields that they lack, with the values that they are shipped with. What is there
/// is the user's and stays; an empty table stays empty. One transaction, or none where nothing is missing.
void completeSettings(store::Database& settings);

} // namespace datastore

#pragma once

#include <filesystem>
#include <memory>
#include <string>

/// What the files of `store/` that use SQLite share. Not for other folders.
namespace SQLite {
class Database;
}

namespace store {

/// Opens a connection with flags of SQLite; every failure is a store::Error.
std::unique_ptr<SQLite::Database> connect(const std::filesystem::path& path, int flags);

/// Throws the store::Error for a code and message of SQLite.
[[noreturn]] void failWith(const std::filesystem::path& path, int extendedCode, const std::string& words);

} // namespace store

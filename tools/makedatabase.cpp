// Creates one of the databases that come with the program from its SQL source: makedatabase SOURCE.sql TARGET
#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <stdexcept>
#include <string>

namespace fs = std::filesystem;

namespace {

std::string textOf(const fs::path& path) {
    const std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    if (!file || !(text << file.rdbuf())) throw std::runtime_error("cannot read " + path.string());
    return text.str();
}

void fill(const fs::path& path, const std::string& statements) {
    SQLite::Database database(path.string(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    // Without these options a misspelt name in double quotes would be stored as a text.
    sqlite3_db_config(database.getHandle(), SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
    sqlite3_db_config(database.getHandle(), SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    SQLite::Transaction transaction(database);
    database.exec(statements);
    transaction.commit();
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: makedatabase SOURCE.sql TARGET\n";
        return 2;
    }
    const fs::path target = argv[2];
    const fs::path beside = target.string() + ".new";
    try {
        fs::remove(beside);
        fill(beside, textOf(argv[1]));
        fs::permissions(beside, fs::perms::owner_read | fs::perms::owner_write);
        // SQLite would replay a leftover journal of the old file into the new one.
        for (const char* ending : {"-journal", "-wal", "-shm"})
            fs::remove(target.string() + ending);
        fs::rename(beside, target);
    } catch (const std::exception& error) {
        std::cerr << argv[1] << ": " << error.what() << "\n";
        std::error_code ignored;
        fs::remove(beside, ignored);
        return 1;
    }
    return 0;
}

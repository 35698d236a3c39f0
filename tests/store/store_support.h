#pragma once

#include <gtest/gtest.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "store/database.h"
#include "store/error.h"

namespace storetest {

namespace fs = std::filesystem;

/// A folder for one test, deleted with it.
class Folder {
public:
    Folder() {
        std::string name = (fs::temp_directory_path() / "marlowbeck store XXXXXX").string();
        m_path = ::mkdtemp(name.data());
    }
    ~Folder() {
        std::error_code ignored;
        fs::permissions(m_path, fs::perms::owner_all, ignored);
        fs::remove_all(m_path, ignored);
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    fs::path operator/(const std::string& name) const { return m_path / name; }
    const fs::path& path() const { return m_path; }

private:
    fs::path m_path;
};

/// Permissions do not stop the super-user, so their faults are tested as another user.
class OrdinaryUser {
public:
    explicit OrdinaryUser(const Folder& folder) : m_was(::geteuid()) {
        constexpr uid_t nobody = 65534;
        if (m_was != 0) return;
        for (const auto& entry : fs::recursive_directory_iterator(folder.path()))
            give(entry.path(), nobody);
        give(folder.path(), nobody);
        EXPECT_EQ(::seteuid(nobody), 0);
    }
    ~OrdinaryUser() {
        if (::seteuid(m_was) != 0) std::abort();
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

private:
    static void give(const fs::path& path, uid_t user) {
        EXPECT_EQ(::lchown(path.c_str(), user, static_cast<gid_t>(-1)), 0);
    }
    uid_t m_was;
};

inline std::string bytesOf(const fs::path& path) {
    std::ostringstream bytes;
    bytes << std::ifstream(path, std::ios::binary).rdbuf();
    return bytes.str();
}

inline void put(const fs::path& path, const std::string& bytes) { std::ofstream(path, std::ios::binary) << bytes; }

inline unsigned modeOf(const fs::path& path) { return static_cast<unsigned>(fs::status(path).permissions()) & 0777U; }

/// The rows that a query gives, their columns joined by "|", the rows by line breaks; Null is empty.
inline std::string rowsOf(store::Database& database, const std::string& sql) {
    store::Statement rows = database.prepare(sql);
    std::ostringstream text;
    text.precision(17);
    for (bool first = true; rows.step(); first = false) {
        if (!first) text << "\n";
        for (int column = 0; column < rows.columnCount(); ++column) {
            const store::Value value = rows.column(column);
            if (column > 0) text << "|";
            if (const auto* number = std::get_if<double>(&value)) text << *number;
            if (const auto* words = std::get_if<std::string>(&value)) text << *words;
        }
    }
    return text.str();
}

inline std::string rowsOf(const fs::path& file, const std::string& sql) {
    store::Database database(file);
    return rowsOf(database, sql);
}

inline std::vector<std::string> tablesOf(store::Database& database) {
    std::istringstream names(rowsOf(database, "SELECT name FROM sqlite_master WHERE type='table' ORDER BY name"));
    return {std::istream_iterator<std::string>(names), {}};
}

/// The store::Error that an action ends in, if it does.
template <class Action>
std::optional<store::Error> caughtFrom(Action action) {
    try {
        action();
        return {};
    } catch (const store::Error& error) {
        return error;
    }
}

/// Its number; 0 if the action ends well.
template <class Action>
int errorOf(Action action) {
    const auto error = caughtFrom(action);
    return error ? error->number() : 0;
}

/// Lets another process act until it has called what it is given, then acts meanwhile and kills it.
template <class Action>
void runAndKill(
    Action action, const std::function<void()>& meanwhile = [] {}) {
    int ready[2];
    ASSERT_EQ(::pipe(ready), 0);
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        try { // what a child throws must not go on into the tests after this one
            action([&] {
                if (::write(ready[1], "x", 1) != 1) ::_exit(1);
            });
        } catch (const std::exception& thrown) {
            std::fprintf(stderr, "The child ended by itself: %s\n", thrown.what());
        }
        ::_exit(1);
    }
    ::close(ready[1]); // or the reading would wait for ever for a child that ends by itself
    char sign = 0;
    EXPECT_EQ(::read(ready[0], &sign, 1), 1);
    meanwhile();
    ::kill(child, SIGKILL);
    int status = 0;
    ::waitpid(child, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status)) << "the child ended before it was killed";
    ::close(ready[0]);
}

} // namespace storetest

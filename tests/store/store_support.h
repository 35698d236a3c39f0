#pragma once

#include <gtest/gtest.h>
#include <sys/types.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "store/database.h"
#include "store/error.h"

namespace storetest {

namespace fs = std::filesystem;

/// A folder of its own for one test, gone with it.
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

/// The super-user may read and write everything, so faults of permission are provoked as somebody else.
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

/// The number of the store::Error that an action ends in; 0 if it ends well.
template <class Action>
int errorOf(Action action) {
    try {
        action();
        return 0;
    } catch (const store::Error& error) {
        return error.number();
    }
}

} // namespace storetest

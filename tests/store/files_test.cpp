#include "store/files.h"

#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>

#include "store/store_support.h"

using namespace storetest;
using store::existingSpelling;
using store::nativePath;
using store::readFile;
using store::writeFile;

TEST(Files, BothSlashesSeparate) {
    EXPECT_EQ(nativePath("/prog\\\\Data.Mdb"), "/prog/Data.Mdb");
    EXPECT_EQ(nativePath("sub\\Data.Mdb", "/prog"), "/prog/sub/Data.Mdb");
    EXPECT_EQ(nativePath("\\data\\Data.Mdb", "/prog"), "/data/Data.Mdb");
    EXPECT_EQ(nativePath("C:\\Data.Mdb", "/prog"), "/prog/C:/Data.Mdb");
}

TEST(Files, NameIsMatchedWithoutCaseTheExactOneFirst) {
    const Folder folder;
    EXPECT_EQ(existingSpelling(folder / "DataPath.txt"), folder / "DataPath.txt");
    put(folder / "datapath.TXT", "2");
    put(folder / "DATAPATH.txt", "1");
    EXPECT_EQ(existingSpelling(folder / "DataPath.txt"), folder / "DATAPATH.txt"); // the first in byte order
    EXPECT_EQ(existingSpelling(folder / "datapath.TXT"), folder / "datapath.TXT");
    EXPECT_EQ(readFile(folder / "DataPath.txt"), "1");
    EXPECT_EQ(existingSpelling(folder / "SUB/DataPath.txt"), folder / "SUB/DataPath.txt");
}

TEST(Files, WrittenFileReplacesTheOldOneUnderItsOwnName) {
    const Folder folder;
    put(folder / "datapath.txt", "old");
    writeFile(folder / "DataPath.txt", std::string("a\0b", 3));
    EXPECT_EQ(readFile(folder / "datapath.txt"), std::string("a\0b", 3));
    EXPECT_EQ(modeOf(folder / "datapath.txt"), 0600U);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator()), 1);
    fs::create_symlink(folder / "datapath.txt", folder / "link");
    writeFile(folder / "link", "through");
    EXPECT_TRUE(fs::is_symlink(folder / "link"));
    EXPECT_EQ(readFile(folder / "datapath.txt"), "through");
}

TEST(Files, FailedWriteLeavesTheOldFileAndNothingBeside) {
    const Folder folder;
    const fs::path path = folder / "notes.txt";
    writeFile(path, "old");
    EXPECT_EQ(errorOf([&] { writeFile(folder / "none/notes.txt", "x"); }), 76);
    EXPECT_EQ(errorOf([&] { writeFile(folder.path(), "x"); }), 75);
    EXPECT_EQ(errorOf([&] { readFile(folder / "none.txt"); }), 53);
    EXPECT_EQ(errorOf([&] { readFile(folder.path()); }), 75);

    // A limit on the file size stands in for a full disk.
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    const rlimit small{1000, limit.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &small);
    const int full = errorOf([&] { writeFile(path, std::string(5000, 'x')); });
    ::setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, handler);
    EXPECT_EQ(full, 61);

    {
        const OrdinaryUser user(folder);
        ::chmod(path.c_str(), 0400);
        EXPECT_EQ(errorOf([&] { writeFile(path, "new"); }), 70);
        ::chmod(path.c_str(), 0000);
        EXPECT_EQ(errorOf([&] { readFile(path); }), 70);
        ::chmod(path.c_str(), 0600);
        ::chmod(folder.path().c_str(), 0500);
        EXPECT_EQ(errorOf([&] { writeFile(path, "new"); }), 70);
        ::chmod(folder.path().c_str(), 0700);
    }
    EXPECT_EQ(readFile(path), "old");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator()), 1);
}

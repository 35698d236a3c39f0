#include "datastore/programfolder.h"

#include <map>

#include "store/store_support.h"

namespace {

using namespace storetest;

/// An installation for all users, and a user who never started the program.
class ProgramFolder : public testing::Test {
protected:
    ProgramFolder() {
        fs::create_directories(installed);
        put(installed / "installed-for-all-users", "");
        for (const auto& [file, content] : shipped)
            put(installed / file, content);
        if (const char* before = std::getenv("XDG_DATA_HOME")) dataHomeBefore = before;
        ::setenv("XDG_DATA_HOME", (scratch / "home/data").c_str(), 1);
    }
    ~ProgramFolder() override {
        dataHomeBefore.empty() ? ::unsetenv("XDG_DATA_HOME") : ::setenv("XDG_DATA_HOME", dataHomeBefore.c_str(), 1);
    }

    fs::path start() const {
        fs::path folder = datastore::programFolder(installed / "marlowbeck");
        datastore::seedProgramFolder(installed / "marlowbeck", folder);
        return folder;
    }

    const std::map<std::string, std::string> shipped = {{"Default.Mdb", std::string("settings\0 1", 11)},
                                                        {"Print.mdb", "print"},
                                                        {"units.mdb", "units"},
                                                        {"Diary.mdb", "diary"},
                                                        {"Lonrepa.rpt", "<p>first</p>"},
                                                        {"guide.md", "# Guide"}};
    const Folder scratch;
    fs::path installed = scratch / "lib/marlowbeck";
    fs::path own = scratch / "home/data/marlowbeck";

private:
    std::string dataHomeBefore;
};

TEST_F(ProgramFolder, IsTheExecutablesOwnFolderWhereNoMarkerLies) {
    fs::remove(installed / "installed-for-all-users");
    EXPECT_EQ(start(), installed);
    EXPECT_FALSE(fs::exists(scratch / "home"));
}

TEST_F(ProgramFolder, FirstStartSeedsTheUsersFolderForItsOwnerAlone) {
    EXPECT_EQ(start(), own);
    for (const auto& [file, content] : shipped) {
        EXPECT_EQ(bytesOf(own / file), content) << file;
        EXPECT_EQ(modeOf(own / file), 0600U) << file;
    }
    for (const auto& folder : {own, own.parent_path()})
        EXPECT_EQ(modeOf(folder), 0700U) << folder;
    EXPECT_FALSE(fs::exists(own / "installed-for-all-users"));
    EXPECT_FALSE(fs::exists(own / "Data.Mdb")) << "the client database is made by the start-up, never copied";
}

TEST_F(ProgramFolder, AnUpgradeRefreshesDefinitionsAndHelpAndLeavesEveryDatabase) {
    start();
    fs::rename(own / "Default.Mdb", own / "DEFAULT.MDB"); // an older system may have spelt it like this
    const char* const databases[] = {"DEFAULT.MDB", "Print.mdb", "units.mdb", "Diary.mdb", "Data.Mdb"};
    for (const char* database : databases)
        put(own / database, "the user's");
    for (const auto& [file, content] : shipped)
        put(installed / file, "upgraded " + content);
    put(installed / "LonPrAm.rpt", "new in the upgrade");
    start();
    for (const char* database : databases)
        EXPECT_EQ(bytesOf(own / database), "the user's") << database;
    EXPECT_FALSE(fs::exists(own / "Default.Mdb"));
    EXPECT_EQ(bytesOf(own / "Lonrepa.rpt"), "upgraded <p>first</p>");
    EXPECT_EQ(bytesOf(own / "LonPrAm.rpt"), "new in the upgrade");
    EXPECT_EQ(bytesOf(own / "guide.md"), "upgraded # Guide");
}

TEST_F(ProgramFolder, ALaterStartWritesNothingThatIsUpToDate) {
    start();
    const auto longAgo = fs::file_time_type::clock::now() - std::chrono::hours(1000);
    for (const auto& [file, content] : shipped)
        fs::last_write_time(own / file, longAgo);
    start();
    for (const auto& [file, content] : shipped)
        EXPECT_EQ(fs::last_write_time(own / file), longAgo) << file;
}

TEST_F(ProgramFolder, AMissingDatabaseOrAFileInItsPlaceIsAnErrorThatNamesIt) {
    for (const std::string name : {"Default.Mdb", "Diary.mdb"}) {
        fs::remove_all(own);
        fs::rename(installed / name, installed / "away");
        const auto error = caughtFrom([&] { start(); });
        ASSERT_TRUE(error) << "started without " << name;
        EXPECT_TRUE(error->is(store::Number::fileNotFound53)) << error->message();
        EXPECT_NE(error->file().find(name), std::string::npos) << error->message();
        EXPECT_FALSE(fs::exists(own / name));
        fs::rename(installed / "away", installed / name);
    }
    EXPECT_EQ(start(), own) << "the next start goes on from there";
    fs::remove_all(own);
    put(own, "in the way");
    EXPECT_EQ(caughtFrom([&] { start(); }).value().file(), own.string());
    EXPECT_EQ(bytesOf(own), "in the way");
}

TEST_F(ProgramFolder, WithoutADataHomeItLiesUnderTheHomeFolder) {
    const std::string home = std::getenv("HOME") ? std::getenv("HOME") : "";
    ::setenv("HOME", (scratch / "home").c_str(), 1);
    for (const char* useless : {"", "relative/folder"}) {
        ::setenv("XDG_DATA_HOME", useless, 1);
        EXPECT_EQ(start(), scratch / "home/.local/share/marlowbeck") << '"' << useless << '"';
    }
    home.empty() ? ::unsetenv("HOME") : ::setenv("HOME", home.c_str(), 1);
}

} // namespace

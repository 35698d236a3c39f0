#include "datastore/startup.h"

#include "datastore/datastore_support.h"
#include "datastore/reset.h"

namespace {

using namespace datastoretest;

unsigned modeOf(const fs::path& path) { return static_cast<unsigned>(fs::status(path).permissions()); }

TEST(StartUp, AFirstRunMakesTheClientDatabaseAndReadsTheSettings) {
    const ProgramFolder folder;
    Assessment record;
    record.client.Name = "of an earlier life";
    const datastore::StartUpResult result = datastore::startUp(folder.path(), record);
    EXPECT_EQ(result.paths.UpDateDBValue, datastore::currentVersion);
    EXPECT_EQ(result.paths.DataDbPath, folder / "Data.Mdb");
    EXPECT_EQ(storetest::bytesOf(folder / "DataPath.txt"), "\"" + (folder / "Data.Mdb").string() + "\"\r\n");
    EXPECT_EQ(cell(folder / "Data.Mdb", "SELECT UpDateDB FROM DataSetup"), current);
    EXPECT_EQ(cell(folder / "Data.Mdb", "SELECT count(*)||footv0||footv1||footv2||HEADERV0 FROM HeadFoot"),
              "1This report was prepared in accordance with information supplied by the undersigned client.");
    EXPECT_EQ(modeOf(folder / "Data.Mdb"), 0600U);
    EXPECT_EQ(modeOf(folder / "DataPath.txt"), 0600U);
    EXPECT_EQ(record.client.Name, "");
    EXPECT_EQ(record.GRINC, 0.5);
    EXPECT_EQ(record.CPI, 0);
    EXPECT_EQ(record.funds.ESPremCom, 1.5);
    EXPECT_EQ(record.funds.LumpSumPort, 18.5);
    EXPECT_EQ(record.funds.UTAComPortVal, 24.5);
    folder.run("Data.Mdb", "INSERT INTO CPIDefault(CPI) VALUES(4.25),(9)");
    datastore::startUp(folder.path(), record);
    EXPECT_EQ(record.CPI, 4.25);
    datastore::ResetAssessment(record, result.paths);
    EXPECT_EQ(record.CPI, 4.25);
    EXPECT_EQ(record.funds.ESPremCom, 0); // read again at the next start only
}

TEST(StartUp, FindsTheClientDatabaseByTheLineOfDataPath) {
    const struct {
        const char* text;
        const char* path; ///< null: the default one
    } cases[] = {
        {"\"/a/b c.mdb\"\r\n", "/a/b c.mdb"},
        {"/a/b,c.mdb", "/a/b,c.mdb"},
        {"\xEF\xBB\xBF  \"/Êksteen's/Data.Mdb\"  \nsecond line\n", "/Êksteen's/Data.Mdb"},
        {"\t/a/b.mdb \r\n", "/a/b.mdb"},
        {"\"/no/end.mdb", "/no/end.mdb"},
        {"\"sub\\Data.Mdb\"\r\n", "sub\\Data.Mdb"},
        {"", nullptr},
        {"\r\n\"/a/b.mdb\"", nullptr},
        {"\"\"\r\n", nullptr},
        {"  \"  \" \n", nullptr},
    };
    for (const auto& [text, path] : cases) {
        const auto found = datastore::parseDataPath(text);
        EXPECT_EQ(found.has_value(), path != nullptr) << text;
        EXPECT_EQ(found.value_or(""), path == nullptr ? "" : path);
    }
}

TEST(StartUp, UsesTheFilesUnderTheirOwnSpelling) {
    const ProgramFolder folder;
    folder.makeClientDb();
    fs::create_directory(folder / "Sub");
    fs::rename(folder / "Data.Mdb", folder / "Sub/DATA.MDB");
    fs::rename(folder / "Default.Mdb", folder / "DEFAULT.mdb");
    storetest::put(folder / "datapath.TXT", "Sub\\data.mdb\n"); // relative to the program's folder
    Assessment record;
    const auto paths = datastore::startUp(folder.path(), record).paths;
    EXPECT_EQ(paths.DataDbPath, folder / "Sub/DATA.MDB");
    EXPECT_EQ(storetest::bytesOf(folder / "datapath.TXT"), "Sub\\data.mdb\n"); // never rewritten by a start
    EXPECT_FALSE(fs::exists(folder / "DataPath.txt"));
    fs::rename(folder / "Sub/DATA.MDB", folder / "DATA.MDB");
    storetest::put(folder / "datapath.TXT", "\"\"\r\n");
    EXPECT_EQ(datastore::startUp(folder.path(), record).paths.DataDbPath, folder / "DATA.MDB");
    EXPECT_EQ(storetest::bytesOf(folder / "datapath.TXT"), "\"" + (folder / "DATA.MDB").string() + "\"\r\n");
    EXPECT_FALSE(fs::exists(folder / "Data.Mdb"));
}

TEST(StartUp, AFolderOfANameThatDataPathCannotHoldIsRefusedBeforeAnythingIsWritten) {
    for (const char* name : {"a \"b\"", "a\nb", "a\rb", "a\\b"}) {
        const ProgramFolder shipped;
        const fs::path folder = shipped / name / "program";
        fs::create_directories(folder);
        for (const char* file : {"Default.Mdb", "Print.mdb"})
            fs::copy_file(shipped / file, folder / file);
        Assessment record;
        EXPECT_EQ(errorOf([&] { datastore::startUp(folder, record); }), 75) << name;
        EXPECT_EQ(std::distance(fs::directory_iterator(folder), {}), 2) << name;
        storetest::put(folder / "DataPath.txt", (shipped / "Mine.Mdb").string()); // needs no line of ours
        EXPECT_EQ(datastore::startUp(folder, record).paths.DataDbPath, shipped / "Mine.Mdb") << name;
    }
}

TEST(StartUp, ADataPathThatCannotBeReadEndsItRatherThanOpenAnEmptyDatabase) {
    const struct {
        const char* what;
        std::function<void(const fs::path&)> make;
        int error;
    } cases[] = {
        {"a folder", [](const fs::path& file) { fs::create_directory(file); }, 75},
        {"not to be read",
         [](const fs::path& file) {
             storetest::put(file, "/remote/Data.Mdb");
             fs::permissions(file, fs::perms::owner_write);
         },
         70},
        {"a link to a disk that is away", [](const fs::path& file) { fs::create_symlink("/away/DataPath.txt", file); },
         53},
    };
    for (const auto& [what, make, error] : cases) {
        const ProgramFolder folder;
        make(folder / "DataPath.txt");
        const storetest::OrdinaryUser user(folder);
        Assessment record;
        EXPECT_EQ(errorOf([&] { datastore::startUp(folder.path(), record); }), error) << what;
        EXPECT_FALSE(fs::exists(folder / "Data.Mdb")) << what;
    }
}

TEST(StartUp, ACopiedFolderIsToldOfAndOpensWhatItsLineNames) {
    const struct {
        const char* what;
        std::function<void(const fs::path& original, const fs::path& copy)> prepare;
        bool isTold;
    } cases[] = {
        {"the folder itself", [](const fs::path&, const fs::path& copy) { fs::remove(copy / "DataPath.txt"); }, false},
        {"a copy", [](const fs::path&, const fs::path&) {}, true},
        {"a copy whose original has lost its clients",
         [](const fs::path& original, const fs::path&) { fs::remove(original / "Data.Mdb"); }, true},
        {"a copy without clients", [](const fs::path&, const fs::path& copy) { fs::remove(copy / "Data.Mdb"); }, false},
        {"a line set by hand, an old file left behind",
         [](const fs::path& original, const fs::path& copy) {
             const fs::path share = original.parent_path() / "share";
             fs::create_directory(share);
             fs::copy_file(original / "Data.Mdb", share / "Data.Mdb");
             storetest::put(copy / "DataPath.txt", (share / "Data.Mdb").string());
         },
         false},
        {"a copy of a folder whose clients lie on a share",
         [](const fs::path& original, const fs::path& copy) {
             const fs::path share = original.parent_path() / "share";
             fs::create_directory(share);
             fs::copy_file(original / "Data.Mdb", share / "Data.Mdb");
             datastore::writeDataPath(original, share / "Data.Mdb");
             fs::copy_file(original / "DataPath.txt", copy / "DataPath.txt", fs::copy_options::overwrite_existing);
         },
         true},
        {"the same file through a link",
         [](const fs::path& original, const fs::path& copy) {
             fs::remove(copy / "Data.Mdb");
             fs::create_symlink(original / "Data.Mdb", copy / "Data.Mdb");
         },
         false},
    };
    for (const auto& [what, prepare, isTold] : cases) {
        const ProgramFolder shipped;
        const fs::path original = shipped / "program";
        const fs::path copy = shipped / "copy";
        fs::create_directory(original);
        for (const char* file : {"Default.Mdb", "Print.mdb"})
            fs::copy_file(shipped / file, original / file);
        Assessment record;
        EXPECT_EQ(datastore::startUp(original, record).notice, "") << what;
        fs::copy(original, copy, fs::copy_options::recursive);
        prepare(original, copy);
        const std::string line = storetest::bytesOf(copy / "DataPath.txt");
        const datastore::StartUpResult result = datastore::startUp(copy, record);
        EXPECT_EQ(!result.notice.empty(), isTold) << what << "\n" << result.notice;
        if (!isTold) continue;
        EXPECT_EQ(result.paths.DataDbPath.string(), datastore::parseDataPath(line)) << what;
        EXPECT_EQ(storetest::bytesOf(copy / "DataPath.txt"), line) << what;
        for (const fs::path& file : {result.paths.DataDbPath, copy / "Data.Mdb"})
            EXPECT_NE(result.notice.find(file.string()), std::string::npos) << what;
        fs::remove(copy / "DataPath.txt"); // as the notice says
        EXPECT_EQ(datastore::startUp(copy, record).paths.DataDbPath, copy / "Data.Mdb") << what;
    }
}

TEST(StartUp, ClearsWhatAKilledStartLeftAndNothingElse) {
    const ProgramFolder folder;
    const char* left[] = {".DataPath.txt.aZ09bc", ".Default.Mdb.000000", ".guide.md.abcdef", ".Lonrepa.rpt.QQQQQQ"};
    const char* others[] = {".DataPath.txt.abcde", ".DataPath.txt.abc-ef", "DataPath.txt.abcdef", ".notes.abcdef",
                            ".bashrc"};
    for (const char* name : left)
        storetest::put(folder / name, "x");
    for (const char* name : others)
        storetest::put(folder / name, "x");
    Assessment record;
    datastore::startUp(folder.path(), record);
    for (const char* name : left)
        EXPECT_FALSE(fs::exists(folder / name)) << name;
    for (const char* name : others)
        EXPECT_TRUE(fs::exists(folder / name)) << name;
}

TEST(StartUp, CreatesWhatIsMissingButNeverInAMissingFolder) {
    const ProgramFolder folder;
    Assessment record;
    fs::create_directory(folder / "Elsewhere");
    storetest::put(folder / "DataPath.txt", "\"" + (folder / "Elsewhere/Mine.Mdb").string() + "\"\r\n");
    datastore::startUp(folder.path(), record);
    EXPECT_EQ(cell(folder / "Elsewhere/Mine.Mdb", "SELECT UpDateDB FROM DataSetup"), current);
    for (const std::string& path :
         {"\"" + (folder / "gone/Data.Mdb").string() + "\"", std::string("C:\\Data\\Data.Mdb")}) {
        storetest::put(folder / "DataPath.txt", path);
        EXPECT_EQ(errorOf([&] { datastore::startUp(folder.path(), record); }), 3044) << path;
        EXPECT_EQ(storetest::bytesOf(folder / "DataPath.txt"), path);
    }
    EXPECT_FALSE(fs::exists(folder / "gone"));
    EXPECT_FALSE(fs::exists(folder / "C:"));
    EXPECT_FALSE(fs::exists(folder / "Data.Mdb"));
}

TEST(StartUp, AFolderThatMayNotBeWrittenIsToldAndEndsTheStart) {
    const ProgramFolder folder;
    fs::permissions(folder.path(), fs::perms::owner_read | fs::perms::owner_exec);
    const storetest::OrdinaryUser user(folder);
    Assessment record;
    std::string told;
    EXPECT_EQ(errorOf([&] {
                  datastore::startUp(folder.path(), record,
                                     [&](const std::string&, const std::string& text) { told += text; });
              }),
              3051);
    EXPECT_EQ(told, "Cannot Update " + (folder / "Data.Mdb").string() + " at this stage.Please try again later");
    EXPECT_FALSE(fs::exists(folder / "DataPath.txt"));
}

TEST(StartUp, NeedsTheSettingsAndMustBeAbleToWriteThem) {
    const struct {
        const char* spoil;
        int error;
    } cases[] = {{"DELETE FROM Setup", 3021},
                 {"DELETE FROM MutualFunds", 3021},
                 {"UPDATE MutualFunds SET UTDiv=NULL", 94},
                 {"UPDATE MutualFunds SET UTDiv='three'", 3421},
                 {"DELETE FROM TallowenDefault", 3021}};
    for (const auto& [spoil, error] : cases) {
        const ProgramFolder folder;
        folder.makeClientDb();
        folder.run("Default.Mdb", spoil);
        Assessment record;
        EXPECT_EQ(errorOf([&] { datastore::startUp(folder.path(), record); }), error) << spoil;
    }
    const ProgramFolder folder;
    folder.makeClientDb();
    fs::permissions(folder / "Default.Mdb", fs::perms::owner_read);
    Assessment record;
    {
        const storetest::OrdinaryUser user(folder);
        EXPECT_EQ(errorOf([&] { datastore::startUp(folder.path(), record); }), 3027);
    }
    fs::remove(folder / "Default.Mdb");
    record.client.Name = "kept";
    EXPECT_EQ(errorOf([&] { datastore::ResetAssessment(record, folder.paths()); }), 3024);
    EXPECT_EQ(record.client.Name, "kept"); // a New that fails loses nothing
}

TEST(StartUp, AFolderThatTakesNoJournalEndsALaterStartToo) {
    const ProgramFolder folder;
    Assessment record;
    datastore::startUp(folder.path(), record);
    const std::string settings = storetest::bytesOf(folder / "Default.Mdb");
    EXPECT_EQ(errorOf([&] { datastore::startUp(folder.path(), record); }), 0);
    EXPECT_EQ(storetest::bytesOf(folder / "Default.Mdb"), settings); // the trial write leaves no trace
    fs::permissions(folder.path(), fs::perms::owner_read | fs::perms::owner_exec);
    const storetest::OrdinaryUser user(folder);
    EXPECT_EQ(errorOf([&] { datastore::startUp(folder.path(), record); }), 3051);
}

TEST(StartUp, WorksOnTheDatabasesThatAreShipped) {
    const storetest::Folder folder;
    for (const char* name : {"Default.Mdb", "Print.mdb"})
        storetest::put(folder / name, storetest::bytesOf(fs::path(MARLOWBECK_PROGRAM_DIR) / name));
    Assessment record;
    EXPECT_EQ(datastore::startUp(folder.path(), record).paths.UpDateDBValue, datastore::currentVersion);
    EXPECT_EQ(record.GRINC, 0.5);
    EXPECT_GT(record.funds.AllocationPer, 0);
    EXPECT_EQ(cell(folder / "Print.mdb", "SELECT footv1 FROM HeadFoot"),
              "information supplied by the undersigned client.");
}

TEST(StartUp, GoesOverToAnotherClientDatabaseWholeOrNotAtAll) {
    const ProgramFolder folder;
    Assessment record;
    datastore::Paths paths = datastore::startUp(folder.path(), record).paths;
    fs::create_directory(folder / "practice");
    fs::copy_file(folder / "Data.Mdb", folder / "practice/O'Brien.mdb");
    const auto inOther = [&](const std::string& sql) { store::Database(folder / "practice/O'Brien.mdb").execute(sql); };
    inOther("INSERT INTO CPIDefault(CPI) VALUES(6.5)");
    inOther("UPDATE HeadFoot SET HEADERV0 = 'The other practice'");
    inOther("UPDATE DataSetup SET UpDateDB = 3");
    storetest::put(folder / "no database.mdb", "text");
    for (const auto& [file, error] : {std::pair{"missing.mdb", 3024}, {"no database.mdb", 3343}, {"Print.mdb", 3011}}) {
        record.ClientOnFile = 1;
        EXPECT_EQ(errorOf([&] { datastore::useClientDb(paths, folder / file, record); }), error) << file;
        EXPECT_EQ(paths.DataDbPath, folder / "Data.Mdb") << file;
        EXPECT_EQ(record.ClientOnFile, 1) << file;
    }
    paths.UpDateDBValue = 0;
    datastore::useClientDb(paths, folder / "practice/O'Brien.mdb", record);
    EXPECT_EQ(paths.DataDbPath, folder / "practice/O'Brien.mdb");
    EXPECT_EQ(paths.UpDateDBValue, datastore::currentVersion);
    EXPECT_EQ(record.CPI, 6.5);
    EXPECT_EQ(record.ClientOnFile, 0) << "the key is the other file's";
    EXPECT_EQ(cell(folder / "practice/O'Brien.mdb", "SELECT UpDateDB FROM DataSetup"), current);
    EXPECT_EQ(cell(folder / "Print.mdb", "SELECT HEADERV0 FROM HeadFoot"), "The other practice");
}

} // namespace

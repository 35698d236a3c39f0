#include "datastore/startup.h"

#include "datastore/datastore_support.h"
#include "datastore/reset.h"

namespace {

using namespace datastoretest;

class StartUp : public StartTest {
protected:
    const fs::path dataPath = folder / "DataPath.txt";
};

TEST_F(StartUp, AFirstRunMakesTheClientDatabaseAndReadsTheSettings) {
    record.client.Name = "of an earlier life";
    folder.run("Default.Mdb", "UPDATE MutualFunds SET ESPremCom=1.5, LumpSumPort=18.5, UTAComPortVal=24.5");
    const auto result = start();
    EXPECT_EQ(result.paths.UpDateDBValue, datastore::currentVersion);
    EXPECT_EQ(result.paths.DataDbPath, file);
    EXPECT_EQ(storetest::bytesOf(dataPath), "\"" + (file).string() + "\"\r\n");
    EXPECT_EQ(in("SELECT UpDateDB FROM DataSetup"), current);
    EXPECT_EQ(in("SELECT count(*)||footv0||footv1||footv2||HEADERV0 FROM HeadFoot"),
              "1This report was prepared in accordance with information supplied by the undersigned client.");
    EXPECT_EQ(modeOf(file), 0600U);
    EXPECT_EQ(modeOf(dataPath), 0600U);
    EXPECT_EQ(record.client.Name, "");
    EXPECT_EQ(record.GRINC, 0.5);
    EXPECT_EQ(record.CPI, 0);
    EXPECT_EQ(record.funds.ESPremCom, 1.5);
    EXPECT_EQ(record.funds.LumpSumPort, 18.5);
    EXPECT_EQ(record.funds.UTAComPortVal, 24.5);
    run("INSERT INTO CPIDefault(CPI) VALUES(4.25),(9)");
    start();
    EXPECT_EQ(record.CPI, 4.25);
    datastore::ResetAssessment(record, result.paths);
    EXPECT_EQ(record.CPI, 4.25);
    EXPECT_EQ(record.funds.ESPremCom, 0); // only the next start reads them again
}

TEST_F(StartUp, FindsTheClientDatabaseByTheLineOfDataPath) {
    const char* const none = nullptr; // the default one then
    for (const auto& [text, path] : {std::pair{"\"/a/b c.mdb\"\r\n", "/a/b c.mdb"},
                                     {"/a/b,c.mdb", "/a/b,c.mdb"},
                                     {"\xEF\xBB\xBF  \"/Êksteen's/Data.Mdb\"  \nsecond line\n", "/Êksteen's/Data.Mdb"},
                                     {"\t/a/b.mdb \r\n", "/a/b.mdb"},
                                     {"\"/no/end.mdb", "/no/end.mdb"},
                                     {"\"sub\\Data.Mdb\"\r\n", "sub\\Data.Mdb"},
                                     {"", none},
                                     {"\r\n\"/a/b.mdb\"", none},
                                     {"\"\"\r\n", none},
                                     {"  \"  \" \n", none}})
        EXPECT_EQ(datastore::parseDataPath(text).value_or("none"), path == none ? "none" : path) << text;
}

TEST_F(StartUp, UsesTheFilesUnderTheirOwnSpelling) {
    folder.makeClientDb();
    fs::create_directory(folder / "Sub");
    fs::rename(file, folder / "Sub/DATA.MDB");
    fs::rename(settings, folder / "DEFAULT.mdb");
    storetest::put(folder / "datapath.TXT", "Sub\\data.mdb\n"); // relative to the program folder
    const auto paths = start().paths;
    EXPECT_EQ(paths.DataDbPath, folder / "Sub/DATA.MDB");
    EXPECT_EQ(storetest::bytesOf(folder / "datapath.TXT"), "Sub\\data.mdb\n"); // a start never rewrites it
    EXPECT_FALSE(fs::exists(dataPath));
    fs::rename(folder / "Sub/DATA.MDB", folder / "DATA.MDB");
    storetest::put(folder / "datapath.TXT", "\"\"\r\n");
    EXPECT_EQ(start().paths.DataDbPath, folder / "DATA.MDB");
    EXPECT_EQ(storetest::bytesOf(folder / "datapath.TXT"), "\"" + (folder / "DATA.MDB").string() + "\"\r\n");
    EXPECT_FALSE(fs::exists(file));
}

TEST_F(StartUp, AFolderOfANameThatDataPathCannotHoldIsRefusedBeforeAnythingIsWritten) {
    for (const char* name : {"a \"b\"", "a\nb", "a\rb", "a\\b"}) {
        const fs::path program = folder / name / "program";
        fs::create_directories(program);
        for (const fs::path& shipped : {settings, print})
            fs::copy_file(shipped, program / shipped.filename());
        EXPECT_EQ(errorOf([&] { datastore::startUp(program, record); }), 75) << name;
        EXPECT_EQ(std::distance(fs::directory_iterator(program), {}), 2) << name;
        storetest::put(program / "DataPath.txt", (folder / "Mine.Mdb").string()); // needs no DataPath.txt of ours
        EXPECT_EQ(datastore::startUp(program, record).paths.DataDbPath, folder / "Mine.Mdb") << name;
    }
}

TEST_F(StartUp, ADataPathThatCannotBeReadEndsItRatherThanOpenAnEmptyDatabase) {
    const std::pair<int, std::function<void()>> cases[] = {
        {75, [&] { fs::create_directory(dataPath); }},
        {70,
         [&] {
             storetest::put(dataPath, "/remote/Data.Mdb");
             fs::permissions(dataPath, fs::perms::owner_write);
         }},
        {53, [&] { fs::create_symlink("/away/DataPath.txt", dataPath); }}, // a link to a disk that is away
    };
    for (const auto& [error, make] : cases) {
        make();
        const storetest::OrdinaryUser user(folder);
        EXPECT_EQ(startError(), error);
        EXPECT_FALSE(fs::exists(file)) << error;
        fs::remove(dataPath);
    }
}

TEST_F(StartUp, ACopiedFolderIsToldOfAndOpensWhatItsLineNames) {
    const fs::path original = folder / "program", copy = folder / "copy", share = folder / "share";
    const fs::path mine = original / "Data.Mdb", copied = copy / "Data.Mdb", shared = share / "Data.Mdb";
    const std::tuple<const char*, bool, std::function<void()>> cases[] = {
        {"the folder itself", false, [&] { fs::remove(copy / "DataPath.txt"); }},
        {"a copy", true, [] {}},
        {"a copy whose original has lost its clients", true, [&] { fs::remove(mine); }},
        {"a copy without clients", false, [&] { fs::remove(copied); }},
        {"a line set by hand, an old file left behind", false,
         [&] { storetest::put(copy / "DataPath.txt", shared.string()); }},
        {"a copy of a folder whose clients lie on a share", true,
         [&] {
             datastore::writeDataPath(original, shared);
             fs::copy_file(original / "DataPath.txt", copy / "DataPath.txt", fs::copy_options::overwrite_existing);
         }},
        {"the same file through a link", false,
         [&] {
             fs::remove(copied);
             fs::create_symlink(mine, copied);
         }},
    };
    for (const auto& [what, isTold, prepare] : cases) {
        for (const fs::path& place : {original, copy, share}) {
            fs::remove_all(place);
            fs::create_directory(place);
        }
        for (const fs::path& shipped : {settings, print})
            fs::copy_file(shipped, original / shipped.filename());
        EXPECT_EQ(datastore::startUp(original, record).notice, "") << what;
        fs::copy(original, copy, fs::copy_options::recursive);
        fs::copy_file(mine, shared);
        prepare();
        const std::string line = storetest::bytesOf(copy / "DataPath.txt");
        const datastore::StartUpResult result = datastore::startUp(copy, record);
        EXPECT_EQ(!result.notice.empty(), isTold) << what << "\n" << result.notice;
        if (!isTold) continue;
        EXPECT_EQ(result.paths.DataDbPath.string(), datastore::parseDataPath(line)) << what;
        EXPECT_EQ(storetest::bytesOf(copy / "DataPath.txt"), line) << what;
        for (const fs::path& named : {result.paths.DataDbPath, copied})
            EXPECT_NE(result.notice.find(named.string()), std::string::npos) << what;
        fs::remove(copy / "DataPath.txt"); // as the notice advises
        EXPECT_EQ(datastore::startUp(copy, record).paths.DataDbPath, copied) << what;
    }
}

TEST_F(StartUp, ClearsWhatAKilledStartLeftAndNothingElse) {
    const std::pair<const char*, bool> files[] = {
        {".DataPath.txt.aZ09bc", false}, {".Default.Mdb.000000", false}, {".guide.md.abcdef", false},
        {".Lonrepa.rpt.QQQQQQ", false},  {".DataPath.txt.abcde", true},  {".DataPath.txt.abc-ef", true},
        {"DataPath.txt.abcdef", true},   {".notes.abcdef", true},        {".bashrc", true}};
    for (const auto& [name, stays] : files)
        storetest::put(folder / name, "x");
    start();
    for (const auto& [name, stays] : files)
        EXPECT_EQ(fs::exists(folder / name), stays) << name;
}

TEST_F(StartUp, CreatesWhatIsMissingButNeverInAMissingFolder) {
    fs::create_directory(folder / "Elsewhere");
    storetest::put(dataPath, "\"" + (folder / "Elsewhere/Mine.Mdb").string() + "\"\r\n");
    start();
    EXPECT_EQ(rowsOf(folder / "Elsewhere/Mine.Mdb", "SELECT UpDateDB FROM DataSetup"), current);
    for (const std::string& path :
         {"\"" + (folder / "gone/Data.Mdb").string() + "\"", std::string("C:\\Data\\Data.Mdb")}) {
        storetest::put(dataPath, path);
        EXPECT_EQ(startError(), 3044) << path;
        EXPECT_EQ(storetest::bytesOf(dataPath), path);
    }
    EXPECT_FALSE(fs::exists(folder / "gone"));
    EXPECT_FALSE(fs::exists(folder / "C:"));
    EXPECT_FALSE(fs::exists(file));
}

TEST_F(StartUp, NeedsTheSettingsAndMustBeAbleToWriteThem) {
    folder.makeClientDb();
    const std::string whole = storetest::bytesOf(settings);
    for (const auto& [spoil, error] : {std::pair{"DELETE FROM Setup", 3021},
                                       {"UPDATE MutualFunds SET UTDiv=NULL", 94},
                                       {"DELETE FROM TallowenDefault", 3021}}) {
        folder.run("Default.Mdb", spoil);
        EXPECT_EQ(startError(), error) << spoil;
        storetest::put(settings, whole);
    }
    fs::permissions(settings, fs::perms::owner_read);
    {
        const storetest::OrdinaryUser user(folder);
        EXPECT_EQ(startError(), 3027);
    }
    fs::remove(settings);
    EXPECT_EQ(startError(), 3024);
    record.client.Name = "kept";
    EXPECT_EQ(errorOf([&] { datastore::ResetAssessment(record, folder.paths()); }), 3024);
    EXPECT_EQ(record.client.Name, "kept"); // a failed New loses nothing
}

TEST_F(StartUp, AFolderThatMayNotBeWrittenEndsTheFirstStartAndALaterOne) {
    for (const bool isFirst : {true, false}) {
        if (!isFirst) start();
        const std::string before = storetest::bytesOf(settings);
        EXPECT_EQ(isFirst ? 0 : startError(), 0);
        EXPECT_EQ(storetest::bytesOf(settings), before); // the trial write changes nothing
        fs::permissions(folder.path(), fs::perms::owner_read | fs::perms::owner_exec);
        {
            const storetest::OrdinaryUser user(folder);
            std::string told;
            const auto tell = [&](const std::string&, const std::string& text) { told += text; };
            EXPECT_EQ(errorOf([&] { datastore::startUp(folder.path(), record, tell); }), 3051);
            EXPECT_EQ(told.find("Cannot Update " + file.string()), isFirst ? 0 : std::string::npos);
        }
        EXPECT_NE(fs::exists(dataPath), isFirst);
        fs::permissions(folder.path(), fs::perms::owner_all);
    }
}

TEST_F(StartUp, GoesOverToAnotherClientDatabaseWholeOrNotAtAll) {
    datastore::Paths paths = start().paths;
    const fs::path other = folder / "O'Brien.mdb";
    fs::copy_file(file, other);
    runSql(other, "INSERT INTO CPIDefault(CPI) VALUES(6.5); UPDATE DataSetup SET UpDateDB = 3;"
                  "UPDATE HeadFoot SET HEADERV0 = 'The other practice'");
    storetest::put(folder / "no database.mdb", "text");
    for (const auto& [name, error] : {std::pair{"missing.mdb", 3024}, {"no database.mdb", 3343}, {"Print.mdb", 3011}}) {
        record.ClientOnFile = 1;
        EXPECT_EQ(errorOf([&] { datastore::useClientDb(paths, folder / name, record); }), error) << name;
        EXPECT_EQ(paths.DataDbPath, file) << name;
        EXPECT_EQ(record.ClientOnFile, 1) << name;
    }
    paths.UpDateDBValue = 0;
    datastore::useClientDb(paths, other, record);
    EXPECT_EQ(paths.DataDbPath, other);
    EXPECT_EQ(paths.UpDateDBValue, datastore::currentVersion);
    EXPECT_EQ(record.CPI, 6.5);
    EXPECT_EQ(record.ClientOnFile, 0) << "the key is the other file's";
    EXPECT_EQ(rowsOf(other, "SELECT UpDateDB FROM DataSetup"), current);
    EXPECT_EQ(rowsOf(print, "SELECT HEADERV0 FROM HeadFoot"), "The other practice");
    runSql(other, "DELETE FROM HeadFoot"); // a file that has lost its lines gets the usual ones
    datastore::useClientDb(paths, other, record);
    EXPECT_EQ(rowsOf(print, "SELECT HEADERV0||footv0 FROM HeadFoot"), "This report was prepared in accordance with ");
}

} // namespace

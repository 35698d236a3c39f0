#include "assessment/filetexts.h"

#include <sys/resource.h>

#include <csignal>
#include <random>

#include "datastore/datastore_support.h"
#include "datastore/save.h"

/// A text is shown to the client whom it was written on, and to nobody else, whatever other programs do to the file.
namespace {

using namespace datastoretest;
using datastore::Save;

constexpr const char* counted = "SELECT count(*), count(DISTINCT Mark), min(length(Mark)) FROM ClientFileTexts";

class FileTextsTest : public ClientFileTest {
protected:
    FileTextsTest() { record.client.Name = record.details.CLName = "Botha"; }
    void saveWith(Assessment& client, const assessment::FileTexts& written) const {
        client.fileTexts = written;
        client.ClientChanged = 1;
        Save(client, file);
    }
    const assessment::FileTexts texts{"what he told us", "", longText("recommended", 20000), "nothing", "yes"};
};

TEST_F(FileTextsTest, TheirTableComesWithTheFirstAndTheirRowGoesWithTheLast) {
    const std::string schema = "SELECT sql FROM sqlite_master ORDER BY name";
    const std::string required = in(schema);
    saveWith(record, {});
    EXPECT_EQ(in(schema), required);
    saveWith(record, texts);
    EXPECT_EQ(loaded().fileTexts, texts);
    record.ClientOnFile = 0; // Save As
    saveWith(record, texts);
    EXPECT_EQ(in(counted), "2|2|32");
    const std::string with = in(schema);
    saveWith(record, {"one", "", "", "", ""}); // nothing in the file counts as another's change
    saveWith(record, {});
    EXPECT_EQ(in(counted), "1|1|32");
    EXPECT_EQ(in(schema), with);
    EXPECT_EQ(loaded(1).fileTexts, texts);
    EXPECT_TRUE(loaded(2).fileTexts.isEmpty());
    run("UPDATE DataSetup SET UpDateDB=3");
    start();
    EXPECT_EQ(loaded(1).fileTexts, texts);
}

TEST_F(FileTextsTest, AreShownOnlyWhereKeyAndMarkAgree) {
    const assessment::FileTexts none, own{"of the new one", "", "", "", ""}, cut{"", "", "", "", "yes"};
    saveWith(record, texts);
    const std::string before = storetest::bytesOf(file);
    const std::string stranger = "INSERT INTO ClientFileTexts(DCLNO,Mark,Basis) SELECT 1,'other','a stranger''s';"
                                 "UPDATE ClientFileTexts SET rowid=-rowid;";
    for (const auto& [change, shown] :
         {std::pair<std::string, const assessment::FileTexts&>{"", texts},
          {stranger, texts},
          // Another program deletes the client and gives his key to somebody else.
          {"DELETE FROM PersDetails; DELETE FROM Data; INSERT INTO Data(DCLNO) VALUES(1);"
           "INSERT INTO PersDetails(DCLNO,Name) VALUES(1,'Botha')",
           none},
          {"UPDATE PersDetails SET FileTextsMark='another'", none},
          {"UPDATE PersDetails SET FileTextsMark=''; UPDATE ClientFileTexts SET Mark=''", none},
          {"UPDATE ClientFileTexts SET DCLNO=2", none},
          {"ALTER TABLE PersDetails DROP COLUMN FileTextsMark", none},
          {"ALTER TABLE ClientFileTexts DROP COLUMN Mark", none},
          {"DROP INDEX ClientFileTexts_DCLNOIndex; ALTER TABLE ClientFileTexts DROP COLUMN DCLNO", none},
          {"DROP TABLE ClientFileTexts", none},
          {"ALTER TABLE ClientFileTexts DROP COLUMN Basis; ALTER TABLE ClientFileTexts DROP COLUMN Recommendation;"
           "ALTER TABLE ClientFileTexts DROP COLUMN Replacement",
           cut}}) {
        storetest::put(file, before);
        run(change);
        Assessment found = loaded();
        EXPECT_EQ(found.fileTexts, shown) << change;
        saveWith(found, own);
        EXPECT_EQ(loaded().fileTexts, own) << change;
        EXPECT_EQ(in("SELECT group_concat(Basis) FROM ClientFileTexts WHERE DCLNO=1"), "of the new one") << change;
    }
    Assessment found = loaded();
    run("UPDATE ClientFileTexts SET Decision='no'");
    EXPECT_THROW(saveWith(found, texts), datastore::ChangedInFile);
}

TEST_F(FileTextsTest, AFailingFirstSaveLeavesTheFileWithoutThem) {
    saveWith(record, {});
    const std::string before = dump(file);
    const auto expectOldOrNew = [&](const char* what) {
        const bool isNew = !loaded().fileTexts.isEmpty();
        EXPECT_TRUE(isNew ? loaded().fileTexts == texts : dump(file) == before) << what;
        return isNew;
    };
    rlimit limit{};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    const rlimit full{fs::file_size(file), limit.rlim_max};
    std::signal(SIGXFSZ, SIG_IGN);
    ::setrlimit(RLIMIT_FSIZE, &full);
    Assessment client = record;
    EXPECT_THROW(saveWith(client, texts), store::Error);
    ::setrlimit(RLIMIT_FSIZE, &limit);
    EXPECT_EQ(client.ClientChanged, 1);
    EXPECT_FALSE(expectOldOrNew("full disk"));
    const std::string bytes = storetest::bytesOf(file);
    std::mt19937 random(20261123);
    int saved = 0;
    for (int round = 0; round < 40 || (saved == 0 && round < 200); ++round) {
        storetest::put(file, bytes);
        client = loaded();
        storetest::runAndKill(
            [&](auto ready) {
                ready();
                saveWith(client, texts);
                ::pause();
            },
            [&] { ::usleep(static_cast<useconds_t>(random() % 30000)); });
        saved += expectOldOrNew("killed") ? 1 : 0;
    }
    EXPECT_GT(saved, 0);
}

} // namespace

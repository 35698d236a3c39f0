#include "assessment/filetexts.h"

#include "datastore/datastore_support.h"
#include "datastore/save.h"

/// A text is shown to the client whom it was written on, and to nobody else, whatever other programs do to the file.
namespace {

using namespace datastoretest;
using datastore::Save;

constexpr const char* counted = "SELECT count(*), count(DISTINCT Mark), min(length(Mark)) FROM ClientFileTexts";

class FileTextsTest : public ClientFileTest {
protected:
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
    saveWith(record, {"one", "", "", "", ""}); // nothing in the file counts as another's change
    saveWith(record, {});
    EXPECT_EQ(in(counted), "1|1|32");
    EXPECT_TRUE(loaded(1).fileTexts == texts && loaded(2).fileTexts.isEmpty());
}

TEST_F(FileTextsTest, AreShownOnlyWhereKeyAndMarkAgree) {
    const assessment::FileTexts none, own{"new", "", "", "", ""}, cut{"", "", texts.recommendation, "nothing", "yes"};
    saveWith(record, texts);
    const std::string before = storetest::bytesOf(file);
    const std::string stranger = "INSERT INTO ClientFileTexts(rowid,DCLNO,Mark,Basis) VALUES(-1,1,'other','his')";
    for (const auto& [change, shown] :
         {std::pair<std::string, const assessment::FileTexts&>{"", texts},
          {stranger, texts},
          // Another program deletes the client and gives his key to somebody else.
          {"DELETE FROM PersDetails; INSERT INTO PersDetails(DCLNO) VALUES(1)", none},
          {"UPDATE PersDetails SET FileTextsMark='another'", none},
          {"UPDATE PersDetails SET FileTextsMark=''; UPDATE ClientFileTexts SET Mark=''", none},
          {"UPDATE ClientFileTexts SET DCLNO=2", none},
          {"ALTER TABLE PersDetails DROP COLUMN FileTextsMark", none},
          {"ALTER TABLE ClientFileTexts DROP COLUMN Mark", none},
          {"DROP INDEX ClientFileTexts_DCLNOIndex; ALTER TABLE ClientFileTexts DROP COLUMN DCLNO", none},
          {"DROP TABLE ClientFileTexts", none},
          {"ALTER TABLE ClientFileTexts DROP COLUMN Basis", cut}}) {
        storetest::put(file, before);
        run(change);
        Assessment found = loaded();
        EXPECT_EQ(found.fileTexts, shown) << change;
        saveWith(found, own);
        EXPECT_EQ(loaded().fileTexts, own) << change;
        EXPECT_EQ(in("SELECT group_concat(Basis) FROM ClientFileTexts WHERE DCLNO=1"), "new") << change;
    }
    Assessment found = loaded();
    run("UPDATE ClientFileTexts SET Decision='no'");
    EXPECT_THROW(saveWith(found, texts), datastore::ChangedInFile);
}

TEST_F(FileTextsTest, ASaveThatFailsWithTheTableMadeLeavesTheFileWithoutIt) {
    saveWith(record, {});
    run("CREATE TRIGGER t BEFORE UPDATE ON PersDetails WHEN (SELECT count(*) FROM sqlite_master WHERE "
        "name='ClientFileTexts')=1 BEGIN SELECT RAISE(ABORT,'no'); END");
    const std::string before = dump(file);
    EXPECT_EQ(errorOf([&] { saveWith(record, texts); }), 3000);
    EXPECT_EQ(dump(file), before);
}

} // namespace

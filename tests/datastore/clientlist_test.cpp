#include "datastore/clientlist.h"

#include "base/fold.h"
#include "datastore/datastore_support.h"

namespace {

using namespace datastoretest;

class ClientListTest : public ::testing::Test {
protected:
    ClientListTest() { folder.makeClientDb(); }
    void add(const std::string& values) const {
        folder.run("Data.Mdb", "INSERT INTO PersDetails(DCLNO,CLName,BirthDate,Description) VALUES " + values);
    }
    ProgramFolder folder;
    fs::path file = folder / "Data.Mdb";
};

TEST_F(ClientListTest, IsInTheOrderOfSurnamesWithoutCaseAndAccents) {
    add("(1,'eksteen',0,''),(2,'Zulu',0,''),(3,'Êksteen',0,''),(4,NULL,0,''),(5,'EKSTEEN',0,''),"
        "(6,'Ṱhoho-Nḓou',0,''),(7,'O''Brien',0,''),(8,'Thoko',0,''),(9,'',0,''),(10,'Tho',0,''),"
        "(11,'Müller-Öst',0,''),(12,'Muller',0,''),(13,'ekstee',0,''),(14,'Łukasiewicz',0,''),(15,'Ekste\u0301en',0,''"
        ")");
    std::string order;
    for (const auto& client : datastore::readClientList(file))
        order += std::to_string(static_cast<int>(client.DCLNO)) + " ";
    EXPECT_EQ(order, "4 9 13 1 3 5 15 14 12 11 7 10 6 8 2 ");
}

TEST_F(ClientListTest, ShowsABirthDateAfterDayNoughtOnly) {
    add("(1,'a',-36522,'d'),(2,'b',0,'d'),(3,'c',NULL,NULL),(4,'d',-1000,''),(5,'e',1,'<b>&\"x\"')");
    const char* lines[] = {"a  d", "b  d", "c  ", "d  ", "e  31/12/1899  <b>&\"x\""};
    const auto clients = datastore::readClientList(file);
    ASSERT_EQ(clients.size(), std::size(lines));
    for (std::size_t i = 0; i < clients.size(); ++i)
        EXPECT_EQ(datastore::lineText(clients[i]), lines[i]);
}

TEST_F(ClientListTest, ReadsAFileWithoutDescriptionsAndAnEmptyOne) {
    EXPECT_TRUE(datastore::readClientList(file).empty());
    add("(1,'O''Brien',46082,'gone')");
    folder.run("Data.Mdb", "ALTER TABLE PersDetails DROP COLUMN Description");
    EXPECT_EQ(datastore::lineText(datastore::readClientList(file).at(0)), "O'Brien  01/03/2026  ");
    folder.run("Data.Mdb", "DROP INDEX PersDetails_CLName; ALTER TABLE PersDetails DROP COLUMN CLName");
    EXPECT_EQ(errorOf([&] { datastore::readClientList(file); }), 3265);
}

TEST(Fold, DropsCaseAndAccentsOfLatinLettersOnly) {
    const std::pair<const char*, const char*> cases[] = {
        {"ÊKSTEEN", "eksteen"},
        {"Ṱhoho-Nḓou", "thoho-ndou"},
        {"Ḽiṋa", "lina"},
        {"Šárka Čapek", "sarka capek"},
        {"Strauß", "strauss"},
        {"ÆØÅ", "aeoa"},
        {"×÷", "×÷"},
        {"Жук", "Жук"},
        {"e\u0301\u0323t", "et"},
        {"𝄞A", "𝄞a"},
        {"\xC3", "\xC3"},
        {"", ""},
        {"Łódź", "lodz"},
        {"Nguyễn", "nguyen"},
        {"ǅ", "dz"},
        {"\xE1\xB9", "\xE1\xB9"},
    };
    for (const auto& [text, plain] : cases)
        EXPECT_EQ(base::folded(text), plain);
}

} // namespace

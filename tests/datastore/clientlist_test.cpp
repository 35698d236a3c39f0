#include "datastore/clientlist.h"

#include "base/fold.h"
#include "datastore/datastore_support.h"

namespace {

using namespace datastoretest;

class ClientListTest : public ClientFileTest {
protected:
    void add(const std::string& values) const {
        run("INSERT INTO PersDetails(DCLNO,CLName,BirthDate,Description) VALUES " + values);
    }
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

TEST_F(ClientListTest, ReadsAFileWithoutDescriptionsAndAnEmptyOne) {
    EXPECT_TRUE(datastore::readClientList(file).empty());
    add("(1,'O''Brien',46082,'gone')");
    run("ALTER TABLE PersDetails DROP COLUMN Description");
    EXPECT_EQ(datastore::lineText(datastore::readClientList(file).at(0)), "O'Brien  01/03/2026  ");
    run("DROP INDEX PersDetails_CLName; ALTER TABLE PersDetails DROP COLUMN CLName");
    EXPECT_EQ(errorOf([&] { datastore::readClientList(file); }), 3265);
}

TEST_F(ClientListTest, FindsEveryWordInAnyOrderInWhatIsKnownOfAClient) {
    run("INSERT INTO PersDetails(DCLNO,CLName,CFName,CInit,Name,IDNumber,CTelWork,CTelHome,CCell,CFaxWork,"
        "CFaxHome,CEMail,Description) VALUES "
        "(1,'Botha','Jan','J.P.','Mr J.P. Botha','5502285009087','012 345-6789','(021) 555 0000','0825550101',"
        "'011-999-1111','0119992222','jan@botha.example','farm'),"
        "(2,'Botha','Sanet','S','Mrs S Botha','600101 0001 08 3','','','','','','','farm of Jan'),"
        "(3,'Êksteen','','K L','Mej K L Êksteen',NULL,NULL,NULL,'+27 82 555 0101',NULL,NULL,NULL,NULL)");
    const auto clients = datastore::readClientList(file);
    EXPECT_EQ(clients[0].firstNames + "|" + clients[2].firstNames, "Jan|K L");
    EXPECT_EQ(clients[0].IDNumber, "5502285009087");
    const datastore::ClientSearch search(clients);
    struct Case {
        const char* found;
        std::vector<const char*> searches;
    };
    for (const Case& expected :
         {Case{"123", {"", " \t "}},
          {"12", {"botha jan"}},
          {"1", {"JAN BOTHA @", "jp", "J.P. botha", "jan@botha.example", "082 jan farm botha 5502", "5502285"}},
          {"1", {"0123456789", "012 345 6789", "012-345-6789", "0215550000", "082-555-0101", "9991111", "0119992222"}},
          {"2", {"farm of", "sanet farm", "mrs", "6001010001083"}},
          {"3", {"êkst", "2782555", "+27", "k.l."}},
          {"", {"jan eksteen", "%", "nobody"}}})
        for (const char* words : expected.searches) {
            std::string found;
            for (const std::size_t place : search.find(words))
                found += std::to_string(static_cast<int>(clients[place].DCLNO));
            EXPECT_EQ(found, expected.found) << words;
        }
    EXPECT_EQ(datastore::readClientLine(file, 3)->Name, "Mej K L Êksteen");
    EXPECT_FALSE(datastore::readClientLine(file, 4));
}

TEST(Fold, DropsCaseAndAccentsOfLatinLettersOnly) {
    for (const auto& [text, plain] : {std::pair{"ÊKSTEEN", "eksteen"},
                                      {"Ṱhoho-Nḓou", "thoho-ndou"},
                                      {"Ḽiṋa Šárka", "lina sarka"},
                                      {"Strauß Łódź ǅ Nguyễn", "strauss lodz dz nguyen"},
                                      {"ÆØÅ×÷", "aeoa×÷"},
                                      {"e\u0301\u0323t", "et"},
                                      {"𝄞A", "𝄞a"},
                                      {"\xE1\xB9", "\xE1\xB9"},
                                      {"", ""}})
        EXPECT_EQ(base::folded(text), plain);
}

} // namespace

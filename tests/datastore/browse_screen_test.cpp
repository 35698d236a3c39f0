#include <QClipboard>

#include "datastore/save.h"
#include "shell/running_program.h"

namespace {

using screenkit::Answer;
using shelltest::RunningProgram;

constexpr const char* oBrien = "O'Brien";
constexpr const char* accents = "Êksteen";
constexpr const char* hooks = "Ṱhoho-Nḓou";
constexpr const char* markup = "<b>&\"x\"";

class Browse : public testing::Test {
protected:
    Browse() {
        // In the order of entry, to which no sort order below is equal.
        for (const auto& [surname, title, born, description] :
             {std::tuple{hooks, "Prof", "", "farm"},
              {oBrien, "Mr", "17/03/1960", "met at the show"},
              {accents, "Mev", "31/12/1899", "met at the church"}, // day number 1: the first date that a line shows
              {markup, "", "", ""},
              {"eksteen", "Mnr", "30/12/1899", "the second of that name"}}) {
            assessment::Assessment client;
            client.details.CLName = surname;
            client.details.CTitle = title;
            client.details.Description = description;
            client.client.Name = std::string(title) + "  " + surname;
            client.client.BirthDate = base::parseDate(born).value_or(base::NoDate);
            datastore::Save(client, run.folder / "Data.Mdb");
        }
        run.menu("mnuBrowse");
    }
    screenkit::Grid* list() { return run.control<screenkit::Grid>("List1", "frmBrowse"); }
    std::string column(int number, int role = Qt::DisplayRole) {
        QStringList all;
        for (int row = 0; row < list()->model()->rowCount(); ++row)
            all << list()->model()->index(row, number).data(role).toString();
        return all.join('|').toStdString();
    }
    QPoint placeOf(int row) { return list()->visualRect(list()->model()->index(row, 0)).center(); }
    void search(const QString& text) {
        run.enter("txtSearch", text);
        RunningProgram::settle();
    }
    void load(const QString& text) {
        search(text);
        run.key(Qt::Key_Return);
    }
    void borrow(double amount) { // behind the list, where it is open
        run.menu("mnuLoansCalc");
        run.type("numPrinAmount", QString::number(amount));
    }

    RunningProgram run;
};

TEST_F(Browse, ShowsAllBySurnameAndLoadsTheOneChosenByKeyOrMouse) {
    EXPECT_EQ(run.front()->windowTitle(), "Browse Through Database.");
    EXPECT_EQ(column(0, Qt::AccessibleTextRole),
              "<b>&\"x\"  |Êksteen  31/12/1899  met at the church|eksteen  the second of that name|"
              "O'Brien  17/03/1960  met at the show|Ṱhoho-Nḓou  farm");
    EXPECT_EQ(run.shown("txtName"), "  <b>&\"x\""); // the first is shown, but none is chosen
    EXPECT_FALSE(list()->selectionModel()->hasSelection());
    for (int press = 1; press <= 2; ++press) { // also if the list already has the focus
        run.click("cmdOK");
        EXPECT_EQ(run.focused(), "List1");
        EXPECT_TRUE(run.isOpen("frmBrowse"));
    }
    EXPECT_EQ(run.record().ClientOnFile, 0);
    run.key(Qt::Key_Down); // the first, not the second
    EXPECT_EQ(run.shown("txtName"), "  <b>&\"x\"");
    run.key(Qt::Key_Down);
    run.expectShown("txtName Mev  Êksteen, txtDescription met at the church, dtBirthDate 31/12/1899");
    run.key(Qt::Key_Return);
    EXPECT_EQ(run.record().details.CLName, accents);

    run.menu("mnuBrowse");
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, placeOf(3));
    run.expectShown("txtName Mr  O'Brien, dtBirthDate 17/03/1960");
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, placeOf(4));
    QTest::mouseDClick(list()->viewport(), Qt::LeftButton, {}, placeOf(4));
    RunningProgram::settle();
    EXPECT_FALSE(run.isOpen("frmBrowse"));
    EXPECT_EQ(run.record().details.CLName, hooks);
    EXPECT_EQ(run.record().ClientOnFile, 1);
    EXPECT_EQ(run.record().ClientChanged, 0);
    EXPECT_EQ(run.window().screens().size(), 1);
}

TEST_F(Browse, TheSearchFieldNarrowsTheListAndIsEmptiedByEscape) {
    for (const auto& [words, found] : {std::pair{"at mev met", 1}, {"EKSTEEN", 2}, {"nobody", 0}}) {
        search(words);
        EXPECT_EQ(list()->model()->rowCount(), found) << words;
    }
    EXPECT_EQ(run.shown("txtName"), ""); // no client is shown beside an empty list
    run.key(Qt::Key_Escape);
    EXPECT_EQ(run.shown("txtSearch"), "");
    EXPECT_EQ(list()->model()->rowCount(), 5);
    EXPECT_FALSE(list()->selectionModel()->hasSelection());
    EXPECT_TRUE(run.isOpen("frmBrowse"));
    run.key(Qt::Key_Down);
    EXPECT_EQ(run.focused(), "List1");
    EXPECT_EQ(list()->picked(), std::vector<std::size_t>{0});
}

TEST_F(Browse, AClientThatVanishedLeavesABlankRecordAndTheList) {
    search(oBrien);
    run.inClients("DELETE FROM [Data] WHERE DCLNO=2");
    EXPECT_TRUE(run.desk.told([] { RunningProgram::key(Qt::Key_Return); }).text.contains("Data.Mdb"));
    EXPECT_TRUE(run.isOpen("frmBrowse"));
    EXPECT_EQ(run.record().ClientOnFile, 0);
    EXPECT_EQ(run.record().details.CLName, "");
    EXPECT_EQ(run.clientName(), "  ");
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(Browse, IsReadAgainInItsOrderWithTheChosenClientStillChosen) {
    list()->setFocus();
    run.key(Qt::Key_4, Qt::ControlModifier); // sorts by the date of birth
    run.key(Qt::Key_End);
    EXPECT_EQ(column(0), "<b>&\"x\"|eksteen|Ṱhoho-Nḓou|Êksteen|O'Brien");
    run.inClients(
        "UPDATE [PersDetails] SET [ReviewDate]=CASE [DCLNO] WHEN 1 THEN 46200 WHEN 2 THEN NULL ELSE -36522 END");
    run.key(Qt::Key_F5);
    EXPECT_EQ(column(4), "||27/06/2026||") << "no date is shown as none";
    run.click("cmdOK");
    EXPECT_EQ(run.record().details.CLName, oBrien);
}

TEST_F(Browse, EditsMadeBehindItAreAskedAboutAtTheLoad) {
    const auto typeBehindIt = [&](double amount) {
        borrow(amount);
        run.screen("frmBrowse")->parentWidget()->setFocus();
        run.window().open("frmBrowse");
        RunningProgram::settle();
    };
    typeBehindIt(5000);
    run.desk.expect(Answer::cancel);
    load(oBrien);
    EXPECT_EQ(run.desk.last().text, "Current changes have not been saved. Do you want to save them. ?");
    EXPECT_EQ(run.desk.last().title, "BROWSE ?");
    EXPECT_TRUE(run.isOpen("frmBrowse"));
    EXPECT_EQ(run.record().loans.Num1, 5000);
    run.click("cmdCancel");

    run.desk.expect(Answer::no); // discarded when the list was opened
    run.menu("mnuBrowse");
    typeBehindIt(7000); // and then more typed
    run.desk.expect(Answer::yes);
    load(oBrien);
    EXPECT_EQ(run.inClients("SELECT [Num1] FROM [Data] WHERE [DCLNO]=6"), "7000");
    EXPECT_EQ(run.record().details.CLName, oBrien);
    EXPECT_EQ(run.record().loans.Num1, 0);
    EXPECT_EQ(run.window().screens().size(), 1); // the client's screens are closed
    assessment::CheckChanges(run.record());
    EXPECT_EQ(run.record().ClientChanged, 0);
}

TEST_F(Browse, AListThatCouldNotBeReadSaysWhyAndFillsWhenItComesToTheFront) {
    namespace fs = std::filesystem;
    const fs::path file = run.folder / "Data.Mdb", away = run.folder / "away";
    const auto why = [&] { return run.control<QLabel>("List1Empty", "frmBrowse")->text(); };
    run.click("cmdCancel");
    fs::rename(file, away);
    run.desk.expect(Answer::ok);
    run.menu("mnuBrowse");
    EXPECT_TRUE(why().contains("The database was not found.")) << why().toStdString();
    run.key(Qt::Key_F5);
    emit qGuiApp->applicationStateChanged(Qt::ApplicationActive);
    EXPECT_EQ(list()->model()->rowCount(), 0);
    for (int way = 0; way < 4; ++way) {
        fs::rename(away, file);
        if (way == 0) run.menu("mnuLoansCalc");
        if (way == 0) run.window().open("frmBrowse");
        if (way == 1) run.key(Qt::Key_F5);
        if (way == 2) run.menu("mnuBrowse");
        if (way == 3) emit qGuiApp->applicationStateChanged(Qt::ApplicationActive);
        RunningProgram::settle();
        EXPECT_EQ(list()->model()->rowCount(), 5) << way;
        run.click("cmdCancel");
        fs::rename(file, away);
        run.desk.expect(Answer::ok);
        run.menu("mnuBrowse");
    }
    fs::rename(away, file);
    run.key(Qt::Key_F5);
    search("nobody");
    EXPECT_TRUE(why().startsWith("No client has all of these words.")) << why().toStdString();
    run.inClients("DELETE FROM [PersDetails]");
    run.key(Qt::Key_F5);
    EXPECT_TRUE(why().startsWith("There are no clients in this file yet.")) << why().toStdString();
    list()->setFocus();
    run.key(Qt::Key_C, Qt::ControlModifier);
}

TEST(BrowsePrompt, GuardsUnsavedChangesAlsoIfTheirSaveFails) {
    RunningProgram run;
    run.menu("mnuBrowse"); // of an empty file rings the bell and loads nothing
    EXPECT_EQ(run.desk.bells, 1);
    run.click("cmdOK");
    EXPECT_TRUE(run.isOpen("frmBrowse"));
    run.click("cmdCancel");
    run.menu("mnuLoansCalc"); // a client without a name: Browse saves it anyway
    run.type("numPrinAmount", "100000");
    EXPECT_EQ(run.asked("mnuRetrieve", Answer::cancel).title, "BROWSE ?");
    EXPECT_FALSE(run.isOpen("frmBrowse"));
    run.inClients("CREATE TRIGGER stop BEFORE INSERT ON [Data] BEGIN SELECT RAISE(ABORT, 'stopped'); END");
    run.desk.expect(Answer::yes);
    run.desk.expect(Answer::ok);
    run.menu("mnuBrowse");
    EXPECT_FALSE(run.isOpen("frmBrowse"));
    EXPECT_EQ(run.record().changed.LoansChanged, 1);
    run.inClients("DROP TRIGGER stop");
    run.asked("mnuBrowse", Answer::yes);
    EXPECT_TRUE(run.isOpen("frmBrowse"));
    EXPECT_EQ(run.inClients("SELECT [DCLNO], [Name], [Num1] FROM [Data]"), "1||100000");
    EXPECT_EQ(run.record().ClientOnFile, 1);
}

} // namespace

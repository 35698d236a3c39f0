#include <QMenu>

#include "shell/recentclients.h"
#include "shell/running_program.h"

namespace {

using screenkit::Answer;
using shelltest::RunningProgram;

class Recent : public testing::Test {
protected:
    /// The File menu's client lines when it opens.
    QStringList lines() {
        auto* file = run.window().findChild<QMenu*>("mnuFile");
        emit file->aboutToShow();
        QStringList all;
        for (const QAction* item : file->actions())
            if (item->objectName().startsWith("mnuRecent")) all << item->text();
        return all;
    }
    void add(const QString& surname) {
        run.saveClient(surname);
        run.menu("mnuNewFile");
    }
    screenkit::TestDesk::Box choose(const char* line, Answer answer) {
        lines();
        return run.asked(line, answer);
    }
    RunningProgram run;
};

TEST_F(Recent, TheFileMenuListsTheFiveOpenedLastAboveExit) {
    EXPECT_EQ(lines(), QStringList());
    for (const char* name : {"Adams", "Botha & Son", "Cele", "Dube", "Evans", "Fourie"})
        add(name);
    EXPECT_EQ(lines(), QStringList({"&1 Fourie", "&2 Evans", "&3 Dube", "&4 Cele", "&5 Botha && Son"}));
    lines();
    run.menu("mnuRecent5");
    EXPECT_EQ(run.front()->objectName(), "frmPersDet");
    EXPECT_EQ(run.record().details.CLName, "Botha & Son");
    run.type("txtCLName", "Botha");
    run.menu("mnuSave");
    EXPECT_EQ(lines().first(), "&1 Botha") << "a client renamed here is still the same";
    const auto items = run.window().findChild<QMenu*>("mnuFile")->actions();
    EXPECT_EQ(items.last()->objectName(), "mnuExit");
    EXPECT_TRUE(items[items.size() - 2]->isSeparator());

    run.type("txtDescription", "new");
    EXPECT_EQ(choose("mnuRecent2", Answer::cancel).title, "BROWSE ?");
    EXPECT_EQ(run.record().details.Description, "new");
    run.asked("mnuNewFile", Answer::yes);
    EXPECT_EQ(lines().first(), "&1 Botha") << "the blank client after that save is none of them";
    run.menu("mnuBrowse");
    run.enter("txtSearch", "Adams");
    run.key(Qt::Key_Return);
    EXPECT_EQ(lines().first(), "&1 Adams");
    EXPECT_EQ(shell::RecentClients("/elsewhere/Data.Mdb").list().size(), 0) << "another file's clients are not these";
}

TEST_F(Recent, AKeyThatNowBelongsToAnotherClientIsReportedAndDropped) {
    for (const char* name : {"Adams", "Botha", "Cele"})
        add(name);
    run.inClients("UPDATE [PersDetails] SET [Name]='Mr Stranger', [BirthDate]=22000 WHERE [DCLNO]=1");
    run.inClients("UPDATE [PersDetails] SET [BirthDate]=22000 WHERE [DCLNO]=2");
    run.inClients("DELETE FROM [PersDetails] WHERE [DCLNO]=3");
    const std::pair<const char*, const char*> cases[] = {
        {"mnuRecent3", "Client 1 of the file is now Mr Stranger, born 25/03/1960."},
        {"mnuRecent2", "Client 2 of the file is now   Botha, born 25/03/1960."},
        {"mnuRecent1", "Client 3 is no longer in the file."}};
    int left = 3;
    for (const auto& [line, says] : cases) {
        const QString told = choose(line, Answer::ok).text;
        EXPECT_TRUE(told.contains(says)) << told.toStdString();
        EXPECT_EQ(run.record().ClientOnFile, 0);
        EXPECT_EQ(lines().size(), --left);
    }
}

} // namespace

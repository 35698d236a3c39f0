#include <QLabel>
#include <QTime>

#include "shell/running_program.h"

namespace {

using screenkit::Answer;
using shelltest::RunningProgram;

/// The part of the main window's caption behind the version.
std::string client(RunningProgram& run) {
    RunningProgram::settle();
    return run.window().windowTitle().section(" Version : 1.00.000", 1).toStdString();
}

std::string saved(RunningProgram& run) { return run.window().findChild<QLabel*>("lblSaved")->text().toStdString(); }

TEST(Caption, NamesTheClientAndMarksWhatIsNotSaved) {
    RunningProgram run;
    EXPECT_EQ(client(run), "");
    run.menu("mnuLoansCalc");
    run.type("numPrinAmount", "100000");
    EXPECT_EQ(client(run), " - New client *");
    run.menu("mnuPersDet");
    run.type("txtCInit", "J");
    run.type("txtCLName", "Botha [*]");
    EXPECT_EQ(client(run), " - J Botha [*][*] *"); // the toolkit shows the doubled mark as it was typed
    EXPECT_EQ(saved(run), "");
    const QString before = QTime::currentTime().toString("HH:mm");
    run.menu("mnuSave");
    EXPECT_EQ(client(run), " - J Botha [*][*]");
    const QString after = QTime::currentTime().toString("HH:mm");
    EXPECT_TRUE(saved(run) == ("Saved " + before).toStdString() || saved(run) == ("Saved " + after).toStdString());

    run.menu("mnuPolInvests");
    run.click("cmdAdd"); // a change that no field makes
    EXPECT_EQ(client(run), " - J Botha [*][*] *");
    run.front()->parentWidget()->showMaximized(); // lends the main window its title
    run.menu("mnuSave");
    EXPECT_EQ(client(run), " - J Botha [*][*] - [Policies & Investments. : Num. 2 of 2]");
    run.menu("mnuNewFile");
    EXPECT_EQ(client(run), "");
    EXPECT_EQ(saved(run), "");
}

} // namespace

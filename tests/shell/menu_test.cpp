#include <gtest/gtest.h>

#include <QMenuBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolBar>
#include <QToolButton>
#include <set>

#include "shell/running_program.h"
#include "shell/screens.h"

namespace {

using screenkit::Answer;
using shelltest::RunningProgram;

/// Leaves of the menus and pop-ups that can be chosen: all others wait for their screens, so that nothing pretends.
const std::set<std::string> working{
    "mnuNewFile",    "mnuBrowse",     "mnuRetrieve",
    "mnuSave",       "mnuSaveAs",     "mnuPrep",
    "mnuPrintSetup", "mnuExit",       "mnuPersDet",
    "mnuLoansCalc",  "mnuCalculator", "mnuViewToolBar",
    "mnuCascade",    "mnuIcon",       "mnuVideoLectures",
    "mnuContents",   "mnuAbout",      "mnuLoansCalcTB",
    "mnuPolInvests", "mnuNARA",       "mnuSubNeedsAnalyses(2)",
    "mnuQuickTax",   "mnuPAYE",
};

QToolBar* toolbar(RunningProgram& run) { return run.window().findChild<QToolBar*>("Toolbar2"); }

void press(RunningProgram& run, const QString& tip) {
    for (QAction* action : toolbar(run)->actions())
        if (action->text() == tip) {
            QTest::mouseClick(toolbar(run)->widgetForAction(action), Qt::LeftButton);
            return RunningProgram::settle();
        }
    FAIL() << tip.toStdString();
}

QPoint placeOf(RunningProgram& run, const QString& screen) { return run.screen(screen)->parentWidget()->pos(); }

TEST(Menu, WhatHasNoScreenYetIsGreyedOut) {
    RunningProgram run;
    std::set<std::string> enabled;
    for (auto* action : run.window().findChildren<QAction*>(QRegularExpression("^mnu")))
        if (action->menu() == nullptr && action->isEnabled()) enabled.insert(action->objectName().toStdString());
    EXPECT_EQ(enabled, working);
    EXPECT_EQ(run.window().menuBar()->actions().size(), 7);
}

TEST(Toolbar, EachButtonHasAPictureATipAndANameForTheBlind) {
    RunningProgram run;
    QStringList enabled;
    for (QAction* action : toolbar(run)->actions()) {
        if (action->isEnabled())
            enabled << action->toolTip();
        else
            EXPECT_EQ(action->toolTip(), action->text() + ": not in this version yet");
        const QString picture = ":/icons/" + action->objectName().mid(3) + ".svg";
        EXPECT_TRUE(QFile::exists(picture)) << picture.toStdString();
        EXPECT_EQ(toolbar(run)->widgetForAction(action)->accessibleName(), action->text());
    }
    EXPECT_EQ(toolbar(run)->actions().size(), 27);
    EXPECT_EQ(enabled, QStringList({"New (Ctrl+N)", "Browse (Ctrl+O)", "Save (Ctrl+S)", "Personal Details",
                                    "Needs Analyses", "Needs Analysis for Retirement", "Policies and Investments",
                                    "Loans", "PAYE", "QuickTax", "Video Lectures"}));
}

TEST(Menu, AScreenOpenedTwiceIsOneScreenInFront) {
    RunningProgram run;
    run.menu("mnuPersDet");
    run.menu("mnuLoansCalc");
    EXPECT_EQ(run.front()->objectName(), "frmLoans");
    run.menu("mnuPersDet");
    EXPECT_EQ(run.window().screens().size(), 2);
    EXPECT_EQ(run.front()->objectName(), "frmPersDet");
    run.front()->parentWidget()->showMinimized();
    RunningProgram::settle();
    press(run, "Personal Details");
    EXPECT_FALSE(run.screen("frmPersDet")->parentWidget()->isMinimized());
    EXPECT_EQ(run.window().screens().size(), 2);
}

// A screen that has to be scrolled opens with the tabs or buttons that it is worked by out of sight.
TEST(Menu, EachScreenIsSeenWholeInTheWindowAsItStarts) {
    RunningProgram run;
    run.window().resize(947, 692); // the screen of the tests has no room for it all
    int opened = 0;
    for (const char* name : shell::clientScreens()) {
        if (shell::screenEntry(name) == nullptr) continue;
        static_cast<screenkit::Shell&>(run.window()).open(name);
        RunningProgram::settle();
        const auto* area = run.screen(name)->findChild<QScrollArea*>(QString(), Qt::FindDirectChildrenOnly);
        ASSERT_NE(area, nullptr) << name;
        EXPECT_EQ(area->verticalScrollBar()->maximum(), 0) << name;
        EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0) << name;
        ++opened;
    }
    EXPECT_GE(opened, 4);
}

TEST(Toolbar, TwoScreensAreCascadedAfterACommandOfItsOwnOnly) {
    RunningProgram run;
    run.menu("mnuPersDet");
    run.menu("mnuLoansCalc");
    EXPECT_EQ(placeOf(run, "frmPersDet"), QPoint(0, 0));
    EXPECT_EQ(placeOf(run, "frmLoans"), QPoint(0, 0));
    press(run, "Personal Details");
    EXPECT_NE(placeOf(run, "frmPersDet"), placeOf(run, "frmLoans"));

    run.menu("mnuPrep"); // with a third screen nothing moves any more
    const QPoint before = placeOf(run, "frmLoans");
    run.screen("frmLoans")->parentWidget()->move(7, 7);
    run.menu("mnuLoansCalcTB");
    EXPECT_EQ(placeOf(run, "frmLoans"), QPoint(7, 7));
    EXPECT_NE(before, QPoint(7, 7));
}

TEST(Toolbar, APopUpsChoiceCascadesToo) {
    RunningProgram run;
    run.menu("mnuPersDet");
    run.menu("mnuLoansCalcTB");
    EXPECT_NE(placeOf(run, "frmPersDet"), placeOf(run, "frmLoans"));
}

TEST(Toolbar, IsOffWhileBrowseOrSaveAsIsOpenWhateverRoadTheyClose) {
    struct Road {
        const char* item;
        const char* screen;
        std::function<void(RunningProgram&)> close;
    };
    const std::vector<Road> roads{
        {"mnuBrowse", "frmBrowse", [](RunningProgram& run) { run.click("cmdCancel"); }},
        {"mnuBrowse", "frmBrowse", [](RunningProgram& run) { run.front()->parentWidget()->close(); }},
        {"mnuBrowse", "frmBrowse", [](RunningProgram& run) { run.menu("mnuNewFile"); }},
        {"mnuBrowse", "frmBrowse",
         [](RunningProgram& run) {
             run.enter("txtSearch", "Botha");
             run.key(Qt::Key_Return);
         }},
        {"mnuSaveAs", "frmSaveFileAs", [](RunningProgram& run) { run.click("cmdCancel"); }},
        {"mnuSaveAs", "frmSaveFileAs", [](RunningProgram& run) { run.front()->parentWidget()->close(); }},
        {"mnuSaveAs", "frmSaveFileAs", [](RunningProgram& run) { run.click("cmdOK"); }},
    };
    RunningProgram run;
    run.saveClient("Botha");
    for (const Road& road : roads) {
        run.menu(road.item);
        ASSERT_TRUE(run.isOpen(road.screen));
        for (QAction* action : toolbar(run)->actions())
            EXPECT_FALSE(toolbar(run)->widgetForAction(action)->isEnabled()) << road.item;
        EXPECT_EQ(toolbar(run)->actions().front()->toolTip(), "New: not while Browse or Save As is open");
        EXPECT_TRUE(run.window().findChild<QAction*>("mnuSave")->isEnabled());
        road.close(run);
        RunningProgram::settle();
        EXPECT_FALSE(run.isOpen(road.screen));
        EXPECT_TRUE(toolbar(run)->isEnabled()) << road.item << " " << (&road - roads.data());
        EXPECT_EQ(toolbar(run)->actions().front()->toolTip(), "New (Ctrl+N)");
    }
}

TEST(Toolbar, StaysOffUntilTheLastOfTwoScreensThatWantItOffIsGone) {
    RunningProgram run;
    run.menu("mnuBrowse");
    run.menu("mnuSaveAs");
    run.click("cmdCancel");
    EXPECT_FALSE(toolbar(run)->isEnabled());
    run.screen("frmBrowse")->drop();
    EXPECT_TRUE(toolbar(run)->isEnabled());
}

TEST(Menu, ViewToolbarKeepsItsCheckMarkTrue) {
    RunningProgram run;
    auto* item = run.window().findChild<QAction*>("mnuViewToolBar");
    for (const bool visible : {false, true, false}) {
        item->trigger();
        EXPECT_EQ(item->isChecked(), visible);
        EXPECT_EQ(toolbar(run)->isVisible(), visible);
    }
    run.menu("mnuLoansCalc");
    run.enter("numIntRate", "60"); // a field that holds every command back
    item->trigger();
    EXPECT_TRUE(item->isChecked());
    EXPECT_TRUE(toolbar(run)->isVisible());
    run.enter("numIntRate", "6");
}

TEST(Menu, CascadeAndArrangeIcons) {
    RunningProgram run;
    run.menu("mnuPersDet");
    run.menu("mnuLoansCalc");
    run.menu("mnuCascade");
    EXPECT_NE(placeOf(run, "frmPersDet"), placeOf(run, "frmLoans"));
    for (const char* name : {"frmPersDet", "frmLoans"})
        run.screen(name)->parentWidget()->showMinimized();
    RunningProgram::settle();
    for (const char* name : {"frmPersDet", "frmLoans"})
        run.screen(name)->parentWidget()->move(30, 10);
    run.menu("mnuIcon");
    const QWidget* area = run.screen("frmLoans")->parentWidget()->parentWidget();
    const QRect one = run.screen("frmPersDet")->parentWidget()->geometry();
    const QRect two = run.screen("frmLoans")->parentWidget()->geometry();
    EXPECT_FALSE(one.intersects(two));
    EXPECT_EQ(std::min(one.left(), two.left()), 0);
    for (const QRect& icon : {one, two})
        EXPECT_EQ(icon.bottom(), area->height() - 1);
}

TEST(Menu, CalculatorSaysSoWhenNoneIsInstalled) {
    RunningProgram run;
    run.menu("mnuCalculator");
    EXPECT_EQ(run.desk.programsStarted, 1);
    run.desk.programStarts = false;
    run.desk.expect(Answer::ok);
    run.menu("mnuCalculator");
    EXPECT_EQ(run.desk.last().text, "The Microsoft Calculator is not installed or in the Windows directory");
}

TEST(Menu, HelpLecturesAndAbout) {
    RunningProgram run;
    run.menu("mnuContents");
    EXPECT_TRUE(run.isOpen("frmBrowser"));
    run.screen("frmBrowser")->parentWidget()->showMaximized(); // lends the main window its title
    run.menu("mnuVideoLectures");
    EXPECT_EQ(run.desk.opened.size(), 1);
    run.desk.expect(Answer::ok);
    run.menu("mnuAbout");
    EXPECT_TRUE(run.desk.last().text.endsWith(" Version : 1.00.000")) << run.desk.last().text.toStdString();
}

TEST(Menu, AnotherClientDatabaseIsTheOneOfEveryScreen) {
    RunningProgram run;
    run.saveClient("Botha");
    run.menu("mnuPolInvests");
    run.menu("mnuPrep");
    run.menu("mnuBrowse");
    const auto other = run.folder / "Other.mdb";
    std::filesystem::copy_file(run.folder / "Data.Mdb", other);
    run.window().useClientDb(other);
    RunningProgram::settle();
    for (const char* holdsTheOldFiles : {"frmBrowse", "frmHeadFoot"})
        EXPECT_FALSE(run.isOpen(holdsTheOldFiles)) << holdsTheOldFiles;
    run.menu("mnuPolInvests");
    run.click("cmdCPI");
    run.type("numCPI", "6.5");
    run.click("cmdCPIOK");
    EXPECT_EQ(shelltest::rowsOf(other, "SELECT CPI FROM CPIDefault"), "6.5");
    run.menu("mnuSave");
    EXPECT_EQ(shelltest::rowsOf(other, "SELECT CLName FROM PersDetails ORDER BY DCLNO"), "Botha\nBotha")
        << "added, not written over the one who has his key there";
    EXPECT_EQ(run.inClients("SELECT count(*) FROM PersDetails"), "1");
    EXPECT_THROW(run.window().useClientDb(run.folder / "missing.mdb"), store::Error);
    EXPECT_EQ(run.program.paths().DataDbPath, other);
}

} // namespace

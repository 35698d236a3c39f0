#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>
#include <set>

#include "shell/running_program.h"

namespace {

using screenkit::Answer;
using shelltest::RunningProgram;

/// The menu items that can be chosen; all others are disabled until their screens exist.
const std::set<std::string> working{
    "mnuNewFile",
    "mnuBrowse",
    "mnuRetrieve",
    "mnuSave",
    "mnuSaveAs",
    "mnuDelete",
    "mnuBackup",
    "mnuRestore",
    "mnuToA",
    "mnuFromA",
    "mnuRemotePath",
    "mnuPrep",
    "mnuClientFile",
    "mnuPrintSetup",
    "mnuExit",
    "mnuPersDet",
    "mnuLoansCalc",
    "mnuCalculator",
    "mnuViewToolBar",
    "mnuCascade",
    "mnuIcon",
    "mnuVideoLectures",
    "mnuContents",
    "mnuAbout",
    "mnuLoansCalcTB",
    "mnuLoansBondBust",
    "mnuLoansBondBustTB",
    "mnuLoansBondAna",
    "mnuLoansBondAnaTB",
    "mnuDebtCon",
    "mnuDebtCon1",
    "mnuPolInvests",
    "mnuNARA",
    "mnuSubNeedsAnalyses(2)",
    "mnuQuickTax",
    "mnuPAYE",
    "mnuSubNeedsAnalyses(0)",
    "mnuNADeath",
    "mnuNADisability",
    "mnuSubNeedsAnalyses(1)",
    "mnuNAEd",
    "mnuSubNeedsAnalyses(3)",
    "mnuInflation",
    "mnuLifeOfCap",
    "mnuInvestComp",
    "mnuOffShore",
    "mnuRealRate",
    "mnuDayBal",
    "mnuDayBal1",
    "mnuNomEffec",
    "mnuNomEffec1",
    "mnuIncShares",
    "mnuLivAnn",
    "mnuKwikQuotes",
    "mnuTaxLumpSum",
    "mnuEstateDutyEstimator",
    "mnuRATaxAdv",
    "mnuTravClaim",
    "mnuCapGainsTAx",
    "mnuReviewDates",
    "mnuBirthdays",
    "mnuPrintBlank",
    "mnuCRM",
    "mnuActPending",
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

TEST(Toolbar, EachButtonHasAPictureATipAndANameForScreenReaders) {
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
    EXPECT_EQ(enabled, QStringList({"New (Ctrl+N)",
                                    "Browse (Ctrl+O)",
                                    "Save (Ctrl+S)",
                                    "Personal Details",
                                    "Kwik-Quotes",
                                    "Needs Analyses",
                                    "Needs Analysis for Disability",
                                    "Needs Analysis for Retirement",
                                    "Policies and Investments",
                                    "Needs Analysis for Education",
                                    "R/F Advantage calculator",
                                    "Estate Duty Estimator",
                                    "Inflation",
                                    "Loans",
                                    "Life of Capital",
                                    "Income From Shares",
                                    "Banking",
                                    "Investment Comparison",
                                    "Offshore Investments",
                                    "Draw Down Annuity",
                                    "Real Rate of Return",
                                    "Capital Gains Tax",
                                    "Tax On Lump Sums",
                                    "PAYE",
                                    "Travel Claim",
                                    "QuickTax",
                                    "Video Lectures"}));
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

TEST(Toolbar, TwoScreensAreCascadedAfterACommandOfItsOwnOrOfItsPopUpsAndIconsSetAtTheFoot) {
    RunningProgram run;
    const auto areApart = [&] { return placeOf(run, "frmPersDet") != placeOf(run, "frmLoans"); };
    run.menu("mnuPersDet");
    run.menu("mnuLoansCalc");
    EXPECT_FALSE(areApart());
    press(run, "Personal Details");
    EXPECT_TRUE(areApart());
    run.screen("frmLoans")->parentWidget()->move(0, 0);
    run.screen("frmPersDet")->parentWidget()->move(0, 0);
    run.menu("mnuLoansCalcTB");
    EXPECT_TRUE(areApart());

    run.menu("mnuPrep"); // with a third screen no window moves
    run.screen("frmLoans")->parentWidget()->move(7, 7);
    run.menu("mnuLoansCalcTB");
    EXPECT_EQ(placeOf(run, "frmLoans"), QPoint(7, 7));

    QWidget* const icons[] = {run.screen("frmPersDet")->parentWidget(), run.screen("frmLoans")->parentWidget()};
    for (QWidget* icon : icons)
        icon->showMinimized();
    RunningProgram::settle();
    for (QWidget* icon : icons)
        icon->move(30, 10);
    run.menu("mnuIcon"); // side by side at the foot
    EXPECT_FALSE(icons[0]->geometry().intersects(icons[1]->geometry()));
    for (const QWidget* icon : icons)
        EXPECT_EQ(icon->geometry().bottom(), icon->parentWidget()->height() - 1);
}

TEST(Toolbar, IsDisabledWhileBrowseOrSaveAsIsOpenHoweverTheyClose) {
    const std::tuple<const char*, const char*, std::function<void(RunningProgram&)>> roads[] = {
        {"mnuBrowse", "frmBrowse", [](RunningProgram& run) { run.menu("mnuNewFile"); }},
        {"mnuBrowse", "frmBrowse", [](RunningProgram& run) { run.loadClient("Botha"); }},
        {"mnuSaveAs", "frmSaveFileAs", [](RunningProgram& run) { run.front()->parentWidget()->close(); }},
        {"mnuSaveAs", "frmSaveFileAs", [](RunningProgram& run) { run.click("cmdOK"); }},
    };
    RunningProgram run;
    run.saveClient("Botha");
    for (const auto& [item, screen, close] : roads) {
        SCOPED_TRACE(item);
        run.menu(item);
        ASSERT_TRUE(run.isOpen(screen));
        for (QAction* action : toolbar(run)->actions())
            EXPECT_FALSE(toolbar(run)->widgetForAction(action)->isEnabled());
        EXPECT_EQ(toolbar(run)->actions().front()->toolTip(), "New: not while a list of clients or Save As is open");
        EXPECT_TRUE(run.window().findChild<QAction*>("mnuSave")->isEnabled());
        close(run);
        RunningProgram::settle();
        EXPECT_FALSE(run.isOpen(screen));
        EXPECT_TRUE(toolbar(run)->isEnabled());
        EXPECT_EQ(toolbar(run)->actions().front()->toolTip(), "New (Ctrl+N)");
    }
    run.menu("mnuBrowse");
    run.menu("mnuSaveAs");
    run.click("cmdCancel");
    EXPECT_FALSE(toolbar(run)->isEnabled()) << "until the last of the two is gone";
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
    run.enter("numIntRate", "60"); // a refused entry, which stops every command
    item->trigger();
    EXPECT_TRUE(item->isChecked());
    EXPECT_TRUE(toolbar(run)->isVisible());
    run.enter("numIntRate", "6");
}

TEST(Menu, CalculatorLecturesAndAbout) {
    RunningProgram run;
    run.menu("mnuCalculator");
    EXPECT_EQ(run.desk.programsStarted, 1);
    run.desk.programStarts = false;
    EXPECT_EQ(run.asked("mnuCalculator", Answer::ok).text,
              "The Microsoft Calculator is not installed or in the Windows directory");
    run.menu("mnuVideoLectures");
    EXPECT_EQ(run.desk.opened.size(), 1);
    run.menu("mnuContents");
    run.screen("frmBrowser")->parentWidget()->showMaximized(); // its title is added to the main window's
    const QString about = run.asked("mnuAbout", Answer::ok).text;
    EXPECT_TRUE(about.endsWith(" Version : 1.00.000")) << about.toStdString();
}

TEST(Menu, EveryScreenUsesTheNewClientDatabase) {
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

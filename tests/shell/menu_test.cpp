#include <gtest/gtest.h>

#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>

#include "shell/running_program.h"

namespace {

using screenkit::Answer;
using shelltest::RunningProgram;

struct Line {
    int depth;
    const char* name;
    const char* caption;
    bool works; ///< false: its screen does not exist yet, so it is greyed out
};

// The menu as the practice knows it, from left to right and top to bottom.
const std::vector<Line> wholeMenu{
    {0, "mnuFile", "&File", true},
    {1, "mnuNewFile", "&New File", true},
    {1, "mnuBrowse", "&Browse Files", true},
    {1, "mnuRetrieve", "&Retrieve File", true},
    {1, "mnuSave", "&Save File", true},
    {1, "mnuSaveAs", "S&ave File As..", true},
    {1, "mnuReviewDates", "Searc&h For Review Dates", false},
    {1, "mnuBirthdays", "Search For Birthda&ys", false},
    {1, "mnuDelete", "&Delete File", false},
    {1, "mnuBackup", "Back Up Database", false},
    {1, "mnuRestore", "Restore Database", false},
    {1, "mnuToFromA", "Copy Client File/s To/From Remote Media", true},
    {2, "mnuToA", "Save TO     Remote Media", false},
    {2, "mnuFromA", "Read FROM    Remote Media", false},
    {1, "mnuPrep", "&Prepared by details", true},
    {1, "mnuPrintSetup", "Printer &Setup", true},
    {1, "mnuPrintBlank", "Print Blank Questionnaires", false},
    {1, "mnuRemotePath", "Remote Database Path", false},
    {1, "mnuExit", "E&xit", true},
    {0, "mnuPersDet", "&Personal Details", true},
    {0, "mnuCalc", "C&alculations", true},
    {1, "mnuKwikQuotes", "&Kwik-Quotes ", false},
    {1, "mnuNADeath", "Needs Analysis for Dea&th", false},
    {1, "mnuNADisability", "Needs Analysis for Disability ", false},
    {1, "mnuNARA", "Needs Analysis for &Retirement", false},
    {1, "mnuPolInvests", "Policies && Investments", false},
    {1, "mnuNAEd", "Needs Analysis for &Education", false},
    {1, "mnuRATaxAdv", "R/F Advantage calculator", false},
    {1, "mnuInflation", "In&flation Calculation", false},
    {1, "mnuEstateDutyEstimator", "Estate Duty Estimator", false},
    {1, "mnuLoans", "&Loans", true},
    {2, "mnuLoansCalc", "Loans &Calculation", true},
    {2, "mnuLoansBondBust", "&Bond Buster", false},
    {2, "mnuLoansBondAna", "Bond Anal&ysis", false},
    {1, "mnuLifeOfCap", "Life of Capital", false},
    {1, "mnuIncShares", "Income From Shares", false},
    {1, "mnuMainBanking", "Ban&king Calculations", true},
    {2, "mnuDayBal", "&Daily Balance", false},
    {2, "mnuNomEffec", "&Nominal/Effective", false},
    {2, "mnuDebtCon", "De&bt Consolidation", false},
    {1, "mnuInvestComp", "Investment &Comparison", false},
    {1, "mnuOffShore", "&OffShore Investments", false},
    {1, "mnuLivAnn", "Draw Down Annuity", false},
    {1, "mnuRealRate", "Real Rate of Return", false},
    {1, "mnuCapGainsTAx", "Capital Gains Tax", false},
    {1, "mnuTaxLumpSum", "Tax On Lump Sums", false},
    {1, "mnuPAYE", "PAYE", false},
    {1, "mnuTravClaim", "Travel Claim", false},
    {1, "mnuQuickTax", "&QuickTax", false},
    {1, "mnuCalculator", "Calc&ulator", true},
    {0, "mnuWindow", "&Window", true},
    {1, "mnuViewToolBar", "&View Toolbar", true},
    {1, "mnuCascade", "&Cascade", true},
    {1, "mnuIcon", "&Arrange Icons", true},
    {1, "mnuVideoLectures", "Video Lectures", true},
    {0, "mnuHelp", "&Help", true},
    {1, "mnuContents", "&Contents", true},
    {1, "mnuAbout", "&About Marlowbeck", true},
    {0, "mnuCRM", "CRM", false},
    {0, "mnuActPending", "Activities Pending", false},
};

std::string shown(int depth, const QString& name, const QString& caption, bool works) {
    return std::string(static_cast<std::size_t>(depth), '>') + name.toStdString() + " \"" + caption.toStdString() +
           (works ? "\"" : "\" greyed");
}

void walk(const QList<QAction*>& actions, int depth, std::vector<std::string>& lines) {
    for (QAction* action : actions) {
        auto* menu = action->menu();
        const QString name = menu != nullptr ? menu->objectName() : action->objectName();
        lines.push_back(shown(depth, name, action->text(), action->isEnabled()));
        if (menu != nullptr) walk(menu->actions(), depth + 1, lines);
    }
}

std::vector<std::string> walked(const QList<QAction*>& actions) {
    std::vector<std::string> lines;
    walk(actions, 0, lines);
    return lines;
}

std::vector<std::string> expected(const std::vector<Line>& lines) {
    std::vector<std::string> all;
    for (const Line& line : lines)
        all.push_back(shown(line.depth, line.name, line.caption, line.works));
    return all;
}

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

TEST(Menu, EveryItemStandsInItsPlaceWithItsCaption) {
    RunningProgram run;
    EXPECT_EQ(walked(run.window().menuBar()->actions()), expected(wholeMenu));
}

TEST(Menu, PopUpsOfTheToolbarAreInNoBar) {
    RunningProgram run;
    const std::vector<std::pair<const char*, std::vector<Line>>> popUps{
        {"mnuBanking",
         {{0, "mnuDayBal1", "&Daily Balance", false},
          {0, "mnuNomEffec1", "&Nominal/Effective", false},
          {0, "mnuDebtCon1", "De&bt Consolidation", false}}},
        {"mnuLoansTB",
         {{0, "mnuLoansCalcTB", "Loans &Calculation", true},
          {0, "mnuLoansBondBustTB", "&Bond Buster", false},
          {0, "mnuLoansBondAnaTB", "Bond Anal&ysis", false}}},
        {"mnuNeedsAnalyses",
         {{0, "mnuSubNeedsAnalyses(0)", "Needs Analysis for Dea&th", false},
          {0, "mnuSubNeedsAnalyses(1)", "Needs Analysis for Disability ", false},
          {0, "mnuSubNeedsAnalyses(2)", "Needs Analysis for &Retirement", false},
          {0, "mnuSubNeedsAnalyses(3)", "Needs Analysis for &Education", false}}},
    };
    for (const auto& [name, lines] : popUps)
        EXPECT_EQ(walked(run.window().findChild<QMenu*>(name)->actions()), expected(lines)) << name;
}

TEST(Toolbar, HasItsButtonsInOrderEachWithAPictureAndATip) {
    RunningProgram run;
    const QStringList tips{"New",
                           "Browse",
                           "Save",
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
                           "Video Lectures"};
    const QStringList works{"New", "Browse", "Save", "Personal Details", "Loans", "Video Lectures"};
    QStringList found, enabled;
    for (QAction* action : toolbar(run)->actions()) {
        found << action->toolTip();
        if (action->isEnabled()) enabled << action->toolTip();
        const std::string picture = action->objectName().mid(3).toStdString() + ".svg";
        EXPECT_TRUE(std::filesystem::exists(std::string(MARLOWBECK_SOURCE_DIR) + "/resources/icons/" + picture))
            << picture;
        EXPECT_EQ(toolbar(run)->widgetForAction(action)->accessibleName(), action->toolTip());
    }
    EXPECT_EQ(found, tips);
    EXPECT_EQ(enabled, works);
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
        EXPECT_TRUE(run.window().findChild<QAction*>("mnuSave")->isEnabled());
        road.close(run);
        RunningProgram::settle();
        EXPECT_FALSE(run.isOpen(road.screen));
        EXPECT_TRUE(toolbar(run)->isEnabled()) << road.item << " " << (&road - roads.data());
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

TEST(Menu, ACommandWaitsUntilTheFieldInHandIsRight) {
    RunningProgram run;
    run.menu("mnuLoansCalc");
    run.enter("numPeriod", "601");
    run.desk.expect(Answer::ok);
    run.menu("mnuPersDet");
    EXPECT_FALSE(run.isOpen("frmPersDet"));
    EXPECT_EQ(run.desk.last().title, "Incorrect Period!");
    EXPECT_EQ(run.focused(), "numPeriod");
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

TEST(Menu, PrinterSetupWithoutAPrinterSaysSo) {
    RunningProgram run;
    run.desk.expect(Answer::ok);
    run.menu("mnuPrintSetup");
    EXPECT_TRUE(run.desk.last().text.contains("printer", Qt::CaseInsensitive));
    run.desk.printTo = QString::fromStdString((run.folder / "chosen.pdf").string());
    run.menu("mnuPrintSetup");
}

} // namespace

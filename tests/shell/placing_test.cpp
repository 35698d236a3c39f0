#include "shell/placing.h"

#include <QMdiArea>
#include <QToolBar>
#include <set>

#include "shell/running_program.h"

namespace {

using shelltest::RunningProgram;

// At a larger scale a screen of 1600 x 1000 offers less space; a panel at the left or top moves the free area.
TEST(Placing, TheMainWindowStartsWithItsFrameInsideTheFreeArea) {
    const QMargins frame(4, 37, 4, 4); // a wide one
    for (const QRect available : {QRect(0, 0, 1024, 700), QRect(0, 0, 1067, 667), QRect(0, 0, 800, 500),
                                  QRect(72, 27, 1208, 773), QRect(0, 0, 1920, 1080), QRect(0, 0, 2560, 1440)}) {
        const QRect window = shell::startGeometry(available);
        const QRect framed(window.topLeft(), window.size().grownBy(frame)); // a window's position includes its frame
        EXPECT_TRUE(available.contains(framed)) << testing::PrintToString(framed.height());
    }
    EXPECT_EQ(shell::startGeometry({0, 0, 1280, 800}), QRect(166, 54, 947, 692));
    EXPECT_EQ(shell::startGeometry({0, 0, 2560, 1440}), QRect(427, 144, 1706, 1152));
}

TEST(Placing, WindowsThatFitAreFullyVisibleHoweverTheyWereOpened) {
    RunningProgram run;
    run.window().resize(947, 692);
    RunningProgram::settle();
    const QRect room = run.window().findChild<QMdiArea*>()->viewport()->rect();
    const auto allInside = [&](const char* when) {
        std::set<std::pair<int, int>> places;
        for (const auto* screen : run.window().screens()) {
            const QRect window = screen->parentWidget()->geometry();
            EXPECT_TRUE(room.contains(window)) << screen->objectName().toStdString() << ' ' << when;
            places.emplace(window.x(), window.y());
        }
        return places.size();
    };
    run.menu("mnuPersDet");
    for (QAction* action : run.window().findChild<QToolBar*>("Toolbar2")->actions())
        if (action->objectName() == "tb_policies") action->trigger();
    RunningProgram::settle();
    EXPECT_EQ(allInside("two from the toolbar"), 2);
    for (const char* item : {"mnuNARA", "mnuLoansCalc", "mnuQuickTax", "mnuPAYE", "mnuPrep"})
        run.menu(item);
    run.menu("mnuCascade");
    EXPECT_EQ(allInside("all"), 7);
    run.screen("frmLoans")->parentWidget()->move(room.bottomRight() - QPoint(90, 60));
    run.menu("mnuLoansCalc");
    allInside("brought to the front");
}

} // namespace

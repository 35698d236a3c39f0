#include "screenkit/kit_screen.h"
#include "shell/mainwindow.h"

namespace screenkit {
namespace {

/// The program's own main window with two of its screens.
struct ActivationTest : testing::Test {
    ActivationTest() {
        window.resize(1200, 800);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        window.exitWithoutAsking();
        bench.record.loans.Num1 = 500;
        bench.record.loans.Num2 = 12;
        bench.record.loans.Num3 = 10;
        window.open("frmPersDet");
        window.open("frmLoans");
        settle();
    }
    ~ActivationTest() override {
        for (Screen* open : window.screens())
            open->drop();
    }
    static void settle() {
        for (int i = 0; i < 5; ++i)
            QCoreApplication::processEvents();
    }
    QLineEdit* field(const char* name) { return window.findChild<QLineEdit*>(name); }
    void away() {
        QWidget other;
        other.show();
        other.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
        settle();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        settle();
    }
    static std::string focus() {
        const auto* widget = QApplication::focusWidget();
        return widget != nullptr ? widget->objectName().toStdString() : std::string();
    }

    TestDesk desk;
    Workbench bench{desk};
    shell::MDIForm1 window{bench.record, bench.paths, desk, bench.reports};
};

TEST_F(ActivationTest, onlyAnotherScreenComingToTheFrontFillsIt) {
    EXPECT_EQ(focus(), "numPrinAmount");
    QTest::keyClicks(field("numPrinAmount"), "1");
    field("numPrinAmount")->setCursorPosition(0);
    bench.record.loans.Num2 = 24; // behind the screen's back: shows when it is filled
    away();
    EXPECT_EQ(field("numPeriod")->text(), "12");
    EXPECT_EQ(field("numPrinAmount")->text(), "1") << "what is being typed is left alone";
    EXPECT_EQ(field("numPrinAmount")->selectedText(), "");
    EXPECT_EQ(focus(), "numPrinAmount");

    window.open("frmPersDet");
    settle();
    EXPECT_EQ(focus(), "txtCTitle");
    EXPECT_EQ(field("numPeriod")->text(), "12");
    window.open("frmLoans");
    settle();
    EXPECT_EQ(field("numPeriod")->text(), "24");
    EXPECT_EQ(field("numPrinAmount")->text(), "1.00");
    EXPECT_EQ(focus(), "numPrinAmount");
    EXPECT_EQ(bench.record.changed.LoansChanged, 1);
    EXPECT_EQ(bench.record.changed.PersDetChanged, 0);
}

TEST_F(ActivationTest, aWrongEntryCallsItsScreenBackToTheFront) {
    field("numPeriod")->setFocus(Qt::TabFocusReason);
    QTest::keyClicks(field("numPeriod"), "700");
    desk.expect(Answer::ok);
    auto* other = window.findChild<QMdiSubWindow*>("frmPersDetWindow");
    other->raise();
    const QPoint title(other->width() / 2, 8);
    other->move(100, 150);
    settle();
    QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, other->mapTo(&window, title));
    QTest::qWait(5);
    EXPECT_TRUE(desk.boxes.empty());
    QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, other->mapTo(&window, title));
    QTest::qWait(40);
    ASSERT_EQ(desk.boxes.size(), 1U);
    EXPECT_EQ(desk.last().title, "Incorrect Period!");
    EXPECT_EQ(focus(), "numPeriod");
    EXPECT_EQ(field("numPeriod")->selectedText(), "700");
    auto* loans = window.findChild<QMdiSubWindow*>("frmLoansWindow");
    EXPECT_EQ(window.findChild<QMdiArea*>()->activeSubWindow(), loans);
}

TEST_F(ActivationTest, aMenuIsNoLeavingButItsCommandsCheck) {
    field("numPeriod")->setFocus(Qt::TabFocusReason);
    QTest::keyClicks(field("numPeriod"), "700");
    QTest::keyClick(window.windowHandle(), Qt::Key_F10);
    settle();
    QTest::keyClick(window.windowHandle(), Qt::Key_Escape);
    settle();
    EXPECT_TRUE(desk.boxes.empty());
    EXPECT_EQ(field("numPeriod")->text(), "700");
    EXPECT_EQ(focus(), "numPeriod");

    desk.expect(Answer::ok);
    window.findChild<QAction*>("mnuAbout")->trigger();
    settle();
    ASSERT_EQ(desk.boxes.size(), 1U);
    EXPECT_EQ(desk.last().title, "Incorrect Period!");
}

} // namespace
} // namespace screenkit

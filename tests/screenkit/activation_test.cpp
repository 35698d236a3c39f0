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
        open("frmPersDet");
        open("frmLoans");
    }
    ~ActivationTest() override {
        for (Screen* open : window.screens())
            open->drop();
    }
    static void settle() {
        for (int i = 0; i < 5; ++i)
            QCoreApplication::processEvents();
    }
    void open(const char* screen) {
        window.open(screen);
        settle();
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
    static QString focus() { return QApplication::focusWidget()->objectName(); }
    /// 700 months are more than a loan may run.
    void enterTooMany() {
        field("numPeriod")->setFocus(Qt::TabFocusReason);
        QTest::keyClicks(field("numPeriod"), "700");
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

    open("frmPersDet");
    EXPECT_EQ(focus(), "txtCTitle");
    EXPECT_EQ(field("numPeriod")->text(), "12");
    open("frmLoans");
    EXPECT_EQ(field("numPeriod")->text(), "24");
    EXPECT_EQ(field("numPrinAmount")->text(), "1.00");
    EXPECT_EQ(focus(), "numPrinAmount");
    EXPECT_EQ(bench.record.changed.LoansChanged, 1);
    EXPECT_EQ(bench.record.changed.PersDetChanged, 0);
}

TEST_F(ActivationTest, aWrongEntryCallsItsScreenBackToTheFront) {
    enterTooMany();
    auto* other = window.findChild<QMdiSubWindow*>("frmPersDetWindow");
    other->raise();
    const QPoint title(other->width() / 2, 8);
    other->move(100, 150);
    settle();
    QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, other->mapTo(&window, title));
    QTest::qWait(5);
    EXPECT_TRUE(desk.boxes.empty());
    const auto box = desk.told([&] {
        QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, other->mapTo(&window, title));
        QTest::qWait(40);
    });
    EXPECT_EQ(box.title, "Incorrect Period!");
    EXPECT_EQ(focus(), "numPeriod");
    EXPECT_EQ(field("numPeriod")->selectedText(), "700");
    EXPECT_EQ(window.findChild<QMdiArea*>()->activeSubWindow()->objectName(), "frmLoansWindow");
}

TEST_F(ActivationTest, aMenuIsNoLeavingButItsCommandsCheck) {
    enterTooMany();
    for (const Qt::Key key : {Qt::Key_F10, Qt::Key_Escape}) {
        QTest::keyClick(window.windowHandle(), key);
        settle();
    }
    EXPECT_TRUE(desk.boxes.empty());
    EXPECT_EQ(field("numPeriod")->text(), "700");
    EXPECT_EQ(focus(), "numPeriod");

    EXPECT_EQ(desk.told([this] { window.findChild<QAction*>("mnuAbout")->trigger(); }).title, "Incorrect Period!");
}

} // namespace
} // namespace screenkit

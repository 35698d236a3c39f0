#include <QMdiArea>

#include "shell/running_program.h"

namespace {

using shelltest::RunningProgram;

/// Two screens, of which the loan is in front and holds a loan.
struct Activation : testing::Test {
    Activation() {
        run.record().loans = {"Monthly repayment", 500, 12, 10, 0};
        run.menu("mnuPersDet");
        run.menu("mnuLoansCalc");
    }
    QLineEdit* field(const char* name) { return run.window().findChild<QLineEdit*>(name); }
    RunningProgram run;
};

TEST_F(Activation, OnlyAnotherScreenComingToTheFrontFillsIt) {
    EXPECT_EQ(run.focused(), "numPrinAmount");
    QTest::keyClicks(field("numPrinAmount"), "1");
    field("numPrinAmount")->setCursorPosition(0);
    run.record().loans.Num2 = 24; // changed without the screen: visible once the screen is filled
    QWidget other;
    other.show();
    for (QWidget* inFront : {&other, static_cast<QWidget*>(&run.window())}) {
        inFront->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(inFront));
        RunningProgram::settle();
    }
    EXPECT_EQ(field("numPeriod")->text(), "12");
    EXPECT_EQ(field("numPrinAmount")->text(), "1") << "what is being typed is left alone";
    EXPECT_EQ(field("numPrinAmount")->selectedText(), "");
    EXPECT_EQ(run.focused(), "numPrinAmount");

    run.menu("mnuPersDet");
    EXPECT_EQ(run.focused(), "txtCTitle");
    EXPECT_EQ(field("numPeriod")->text(), "12");
    run.menu("mnuLoansCalc");
    EXPECT_EQ(field("numPeriod")->text(), "24");
    EXPECT_EQ(field("numPrinAmount")->text(), "1.00");
    EXPECT_EQ(run.focused(), "numPrinAmount");
    EXPECT_EQ(run.record().changed.LoansChanged, 1);
    EXPECT_EQ(run.record().changed.PersDetChanged, 0);
}

TEST_F(Activation, AWrongEntryAllowsAMenuButHoldsUpItsCommandsClosingAndAnotherScreen) {
    run.enter("numPeriod", "700");
    for (const Qt::Key key : {Qt::Key_F10, Qt::Key_Escape}) {
        QTest::keyClick(run.window().windowHandle(), key);
        RunningProgram::settle();
    }
    EXPECT_TRUE(run.desk.boxes.empty());
    EXPECT_EQ(run.shown("numPeriod"), "700");
    EXPECT_EQ(run.focused(), "numPeriod");
    EXPECT_EQ(run.asked("mnuAbout", screenkit::Answer::ok).title, "Incorrect Period!");
    EXPECT_EQ(run.desk.told([this] { run.window().close(); }).title, "Incorrect Period!");
    EXPECT_TRUE(run.window().isVisible());

    auto* other = run.screen("frmPersDet")->parentWidget();
    other->raise();
    other->move(100, 150);
    RunningProgram::settle();
    const QPoint title = other->mapTo(&run.window(), QPoint(other->width() / 2, 8));
    run.desk.boxes.clear();
    QTest::mousePress(run.window().windowHandle(), Qt::LeftButton, {}, title);
    QTest::qWait(5);
    EXPECT_TRUE(run.desk.boxes.empty());
    const auto box = run.desk.told([&] {
        QTest::mouseRelease(run.window().windowHandle(), Qt::LeftButton, {}, title);
        QTest::qWait(40);
    });
    EXPECT_EQ(box.title, "Incorrect Period!");
    EXPECT_EQ(run.focused(), "numPeriod");
    EXPECT_EQ(field("numPeriod")->selectedText(), "700");
    EXPECT_EQ(run.front()->objectName(), "frmLoans");
}

} // namespace

#include "screenkit/realdesk.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "screenkit/trouble.h"

namespace screenkit {
namespace {

TEST(RealDeskTest, boxesAnswerToEscapeEnterAndTheCloseButton) {
    using enum Answer;
    const struct {
        Buttons buttons;
        std::optional<Answer> standard;
        Answer escape, enter;
    } cases[] = {{Buttons::ok, {}, ok, ok},
                 {Buttons::yesNo, {}, no, yes},
                 {Buttons::yesNo, no, no, no}, // a box that must not be answered by mistake
                 {Buttons::yesNoCancel, {}, cancel, yes}};
    QWidget window;
    window.show();
    RealDesk desk(&window);
    const auto answered = [&](const auto& c, const std::function<void(QMessageBox*)>& act) {
        QTimer::singleShot(20, qApp, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            EXPECT_EQ(box->text(), "<b>O'Brien</b>\n& son");
            EXPECT_EQ(box->textFormat(), Qt::PlainText);
            EXPECT_EQ(box->windowTitle(), "NEW ?");
            EXPECT_EQ(box->windowModality(), Qt::ApplicationModal);
            EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::ArrowCursor);
            act(box);
        });
        const BusyCursor busy;
        const Answer answer = desk.box(BoxStyle::question, "<b>O'Brien</b>\n& son", "NEW ?", c.buttons, c.standard);
        EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
        return answer;
    };
    for (const auto& c : cases) {
        EXPECT_EQ(answered(c, [](QMessageBox* box) { QTest::keyClick(box, Qt::Key_Escape); }), c.escape);
        EXPECT_EQ(answered(c, [](QMessageBox* box) { box->close(); }), c.escape);
        EXPECT_EQ(answered(c, [](QMessageBox* box) { QTest::keyClick(box, Qt::Key_Return); }), c.enter);
    }
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

} // namespace
} // namespace screenkit

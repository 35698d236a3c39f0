#include "screenkit/realdesk.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QStandardPaths>
#include <QTemporaryDir>
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
                 {Buttons::okCancel, {}, cancel, ok},
                 {Buttons::okCancel, cancel, cancel, cancel},
                 {Buttons::yesNo, {}, no, yes},
                 {Buttons::yesNo, no, no, no}, // must not be answered by mistake
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

/// Runs `act` on the file dialog and returns the desk's answer.
std::optional<QString> answeredByFileDialog(RealDesk& desk, const std::function<void(QFileDialog&)>& act) {
    QTimer::singleShot(50, qApp, [&] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        act(*dialog);
    });
    return desk.fileToSave("Export Report", "Botha - Loan.pdf", {"PDF (*.pdf)", "ODT (*.odt)"});
}

// A dialog over the wrong window would bring that window to the front.
TEST(RealDeskTest, dialogsBelongToTheWindowThatAsks) {
    QMainWindow main;
    QMainWindow preview;
    main.show();
    preview.show();
    RealDesk desk(&main);
    for (QWidget* asking : {static_cast<QWidget*>(&preview), static_cast<QWidget*>(&main)}) {
        asking->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(asking));
        EXPECT_FALSE(answeredByFileDialog(desk, [&](QFileDialog& dialog) {
            EXPECT_EQ(dialog.parentWidget(), asking);
            dialog.reject();
        }));
        // At once, before the window is active again, as after a failed export.
        QTimer::singleShot(50, qApp, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            EXPECT_EQ(box->parentWidget(), asking);
            box->accept();
        });
        desk.tell(BoxStyle::information, "x", "y");
        EXPECT_TRUE(QTest::qWaitForWindowActive(asking));
    }
}

TEST(RealDeskTest, savingOpensInTheFolderUsedLastWithTheNameProposed) {
    const QTemporaryDir folder;
    QDir(folder.path()).mkdir("clients");
    const QString last = folder.filePath("clients");
    RealDesk desk;
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    const auto accepted = answeredByFileDialog(desk, [&](QFileDialog& dialog) {
        EXPECT_EQ(QFileInfo(dialog.selectedFiles().constFirst()).fileName(), "Botha - Loan.pdf");
        dialog.setDirectory(last);
        dialog.selectNameFilter("ODT (*.odt)");
        emit dialog.filterSelected("ODT (*.odt)");
        dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save)->click();
    });
    EXPECT_EQ(accepted, last + "/Botha - Loan.odt"); // the ending follows the chosen format
    const auto opensIn = [&](const QString& expected) {
        answeredByFileDialog(desk, [&](QFileDialog& dialog) {
            EXPECT_EQ(dialog.directory().canonicalPath(), QDir(expected).canonicalPath());
            dialog.reject();
        });
    };
    opensIn(last);
    QDir(last).removeRecursively(); // a memory stick that was removed
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    opensIn(QDir(documents).exists() ? documents : QDir::homePath());
}

} // namespace
} // namespace screenkit

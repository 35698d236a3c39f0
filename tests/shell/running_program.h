#pragma once

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QTest>
#include <filesystem>
#include <string>

#include "screenkit/screen.h"
#include "screenkit/testdesk.h"
#include "shell/mainwindow.h"
#include "shell/program.h"
#include "store/store_support.h"

namespace shelltest {

/// A program folder for one test: the shipped databases and report definitions, but no client database.
class ProgramFolder : public storetest::Folder {
public:
    ProgramFolder() {
        namespace fs = std::filesystem;
        for (const auto& entry : fs::directory_iterator(MARLOWBECK_PROGRAM_DIR)) {
            const std::string kind = entry.path().extension().string();
            if (kind == ".rpt") fs::copy_file(entry.path(), path() / entry.path().filename());
        }
        for (const char* name : {"Default.Mdb", "Print.mdb", "units.mdb", "Diary.mdb"})
            fs::copy_file(fs::path(MARLOWBECK_DATABASE_DIR) / name, path() / name);
    }
};

using storetest::rowsOf;

/// The program with its real windows, used through control names, keys and mouse clicks.
class RunningProgram {
public:
    explicit RunningProgram(bool startNow = true)
        : program(desk, folder.path(), "marlowbeck-test-" + std::to_string(::getpid())) {
        if (startNow) start();
    }

    bool start() {
        const bool started = program.MDIForm_Load();
        if (started) window().activateWindow();
        settle();
        return started;
    }
    static void settle() {
        QApplication::processEvents();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QApplication::processEvents();
    }

    shell::MDIForm1& window() { return program.window(); }
    assessment::Assessment& record() { return program.record(); }

    /// Triggers a menu item by its name.
    void menu(const QString& name) {
        auto* action = window().findChild<QAction*>(name);
        ASSERT_NE(action, nullptr) << name.toStdString();
        action->trigger();
        settle();
    }
    /// Chooses a menu item that asks one question, answers it and returns the box.
    screenkit::TestDesk::Box asked(const QString& name, screenkit::Answer answer) {
        return desk.asked(answer, [&] { menu(name); });
    }
    /// An open screen; fails the test if it is not open.
    screenkit::Screen* screen(const QString& name) {
        auto* open = qobject_cast<screenkit::Screen*>(window().screen(name));
        EXPECT_NE(open, nullptr) << name.toStdString() << " is not open";
        return open;
    }
    /// A control of the front screen, or of the one named.
    template <class W = QWidget>
    W* control(const QString& name, const QString& screenName = {}) {
        W* found = (screenName.isEmpty() ? front() : screen(screenName))->template findChild<W*>(name);
        EXPECT_NE(found, nullptr) << name.toStdString();
        return found;
    }
    screenkit::Screen* front() {
        for (QMdiSubWindow* child : window().findChildren<QMdiSubWindow*>())
            if (child->isVisible() && child == child->mdiArea()->activeSubWindow())
                return qobject_cast<screenkit::Screen*>(child->widget());
        return nullptr;
    }
    /// Turns to the tab page that contains a control.
    static void turnTo(QWidget* widget) {
        for (QWidget* page = widget; page->parentWidget() != nullptr; page = page->parentWidget()) {
            auto* book = qobject_cast<QTabWidget*>(page->parentWidget()->parentWidget());
            if (book != nullptr && book->indexOf(page) >= 0) book->setCurrentWidget(page);
        }
    }
    /// Replaces a field's text like a user; the focus stays in the field.
    void enter(const QString& name, const QString& text) {
        auto* field = control<QWidget>(name);
        turnTo(field);
        field->setFocus(Qt::TabFocusReason);
        settle();
        QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(field, Qt::Key_Delete);
        keys(field, text);
    }
    /// Types a text, including letters that keyboards lack.
    static void keys(QWidget* field, const QString& text) {
        for (const QChar letter : text)
            if (letter.unicode() < 128)
                QTest::keyClick(field, letter.toLatin1());
            else
                QTest::sendKeyEvent(QTest::Click, field, Qt::Key_unknown, QString(letter), Qt::NoModifier);
    }
    /// Like `enter`, and leaves the field by Tab.
    void type(const QString& name, const QString& text) {
        enter(name, text);
        QTest::keyClick(control<QWidget>(name), Qt::Key_Tab);
        settle();
    }
    /// Several fields one after the other, each with its text: "numComm 1000, silgEdit12 5".
    void typeAll(const QString& entries) {
        for (const QString& entry : entries.split(", "))
            type(entry.section(' ', 0, 0), entry.section(' ', 1));
    }
    /// What fields show, written as in `typeAll`.
    void expectShown(const QString& entries) {
        for (const QString& entry : entries.split(", "))
            EXPECT_EQ(shown(entry.section(' ', 0, 0)), entry.section(' ', 1)) << entry.section(' ', 0, 0).toStdString();
    }
    /// Types a figure that its field refuses: one box says why, and the focus is back in the field.
    void expectRefused(const QString& field, const QString& typed, const QString& told, const QString& title) {
        desk.expect(screenkit::Answer::ok);
        type(field, typed);
        EXPECT_EQ(desk.last().text, told) << typed.toStdString();
        EXPECT_EQ(desk.last().title, title) << typed.toStdString();
        EXPECT_EQ(focused(), field) << typed.toStdString();
    }
    /// The label of a field of the front screen.
    QLabel* captionOf(const QString& field) {
        for (auto* label : front()->findChildren<QLabel*>())
            if (label->buddy() == control(field)) return label;
        return nullptr;
    }
    void click(const QString& name) {
        auto* button = control<QAbstractButton>(name);
        turnTo(button);
        EXPECT_TRUE(button->isVisible()) << name.toStdString();
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
        settle();
    }
    /// Presses a key in the control with the focus.
    static void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QWidget* focused = QApplication::focusWidget();
        ASSERT_NE(focused, nullptr) << "nothing has the focus";
        QTest::keyClick(focused, key, modifiers);
        settle();
    }
    static QString focused() {
        return QApplication::focusWidget() != nullptr ? QApplication::focusWidget()->objectName() : QString();
    }
    bool isOpen(const QString& name) { return window().screen(name) != nullptr; }
    QString shown(const QString& name) { return control<QLineEdit>(name)->text(); }
    /// What a table shows, row by row.
    static std::vector<QStringList> cells(const QAbstractItemView* table) {
        std::vector<QStringList> rows(static_cast<std::size_t>(table->model()->rowCount()));
        for (std::size_t row = 0; row < rows.size(); ++row)
            for (int column = 0; column < table->model()->columnCount(); ++column)
                rows[row] << table->model()->index(static_cast<int>(row), column).data().toString();
        return rows;
    }
    std::string inClients(const std::string& sql) { return rowsOf(folder / "Data.Mdb", sql); }
    std::string inPrint(const std::string& sql) { return rowsOf(folder / "Print.mdb", sql); }
    std::string clientName() { return window().findChild<QLabel*>("StatusBar1.Panels(2)")->text().toStdString(); }

    /// Finds a client in the list and loads him.
    void loadClient(const QString& words) {
        menu("mnuBrowse");
        enter("txtSearch", words);
        key(Qt::Key_Return);
    }
    /// Records a client with only a name, and saves it.
    void saveClient(const QString& surname) {
        menu("mnuNewFile");
        type("txtCLName", surname);
        menu("mnuSave");
    }

    ProgramFolder folder;
    screenkit::TestDesk desk;
    shell::Program program;
};

} // namespace shelltest

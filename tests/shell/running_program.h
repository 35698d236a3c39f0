#pragma once

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QTest>
#include <filesystem>
#include <string>

#include "screenkit/screen.h"
#include "screenkit/testdesk.h"
#include "shell/mainwindow.h"
#include "shell/program.h"
#include "store/store_support.h"

namespace shelltest {

/// A program folder of a test's own: the shipped databases and report definitions, no client database yet.
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

/// The program with its real windows, driven by control names, keys and mouse clicks.
class RunningProgram {
public:
    explicit RunningProgram(bool startNow = true)
        : program(desk, folder.path(), "marlowbeck-test-" + std::to_string(::getpid())) {
        if (startNow) start();
    }

    bool start() {
        const bool started = program.MDIForm_Load();
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
    /// An open screen; fails the test if it is not open.
    screenkit::Screen* screen(const QString& name) {
        auto* open = qobject_cast<screenkit::Screen*>(window().screen(name));
        EXPECT_NE(open, nullptr) << name.toStdString() << " is not open";
        return open;
    }
    /// A control of the screen in front (or of the one named).
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
    /// Replaces a field's text as a user does, then leaves it by Tab.
    void type(const QString& name, const QString& text) {
        auto* field = control<QWidget>(name);
        field->setFocus(Qt::TabFocusReason);
        settle();
        if (auto* line = qobject_cast<QLineEdit*>(field)) line->selectAll();
        if (text.isEmpty()) QTest::keyClick(field, Qt::Key_Delete);
        QTest::keyClicks(field, text);
        QTest::keyClick(field, Qt::Key_Tab);
        settle();
    }
    void click(const QString& name) {
        QTest::mouseClick(control<QAbstractButton>(name), Qt::LeftButton);
        settle();
    }
    QString shown(const QString& name) { return control<QLineEdit>(name)->text(); }
    std::string clientName() { return window().findChild<QLabel*>("StatusBar1.Panels(2)")->text().toStdString(); }

    ProgramFolder folder;
    screenkit::TestDesk desk;
    shell::Program program;
};

} // namespace shelltest

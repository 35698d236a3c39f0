#pragma once

#include <QString>
#include <QWidget>
#include <span>

#include "shell/program.h"
#include "tour/desk.h"

namespace reports {
class PreviewWindow;
}
namespace screenkit {
class Screen;
}

namespace tour {

/// A field and what is typed into it.
struct Entry {
    const char* field;
    const char* text;
};

/// The user's hands on one run of the program: they find what is on the screen by its name, click it and type. Each
/// move ends the tour if its target cannot be seen or used, or if the program asked something unexpected.
class Hands {
public:
    Hands(Desk& desk, shell::Program& program) : m_desk(desk), m_program(program) {}

    /// Picks a menu item by mouse, e.g. {"mnuFile", "mnuPrep"}.
    void menu(const QStringList& names);
    /// Presses a key wherever the focus is.
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
    /// Clicks a button, an option or a check box.
    void click(const QString& name);
    /// Clicks into a field, types over what it holds and leaves it by `leave`.
    void type(const QString& name, const QString& text, Qt::Key leave = Qt::Key_Tab);
    /// Types into each field in turn; ends the tour at one that does not show what was typed.
    void enter(std::span<const Entry> entries);
    /// Types wherever the focus is, which may move with the first letter.
    void write(const QString& text);
    /// Turns to the page of a tabbed screen that holds this control.
    void turnTo(const QString& name);

    /// The text of a field of the screen in front.
    QString shown(const QString& name);
    double figure(const QString& name);
    /// Ends the tour unless the field shows this, to the rand.
    void expectFigure(const QString& name, double expected);
    screenkit::Screen* front();
    /// Ends the tour unless this screen is in front.
    void expectFront(const QString& screen);
    /// The report window opened last, in front of all others.
    reports::PreviewWindow* preview();
    /// Closes it with Escape and goes back to the report window below it, or to the main window.
    void closePreview();

    shell::MDIForm1& window();
    assessment::Assessment& record() { return m_program.record(); }
    Desk& desk() { return m_desk; }

    template <class W>
    W* control(const QString& name) {
        auto* found = qobject_cast<W*>(find(name));
        if (found == nullptr) lost(name);
        return found;
    }
    void settle();

private:
    QWidget* find(const QString& name);
    [[noreturn]] void lost(const QString& name);
    /// Back to a window; without a desktop's window manager a closed menu or window would stay active.
    void toFront(QWidget& window);
    /// Ends the tour unless the control can be seen and used.
    void reach(QWidget* control);

    Desk& m_desk;
    shell::Program& m_program;
};

} // namespace tour

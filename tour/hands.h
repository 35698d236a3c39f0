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

/// A field and the text to type into it.
struct Entry {
    const char* field;
    const char* text;
};

/// Plays the user in one run of the program: finds controls by name, clicks and types. Each action ends the tour if its
/// control is hidden or disabled, or if the program asked something unexpected.
class Hands {
public:
    Hands(Desk& desk, shell::Program& program) : m_desk(desk), m_program(program) {}

    /// Chooses a menu item by mouse, e.g. {"mnuFile", "mnuPrep"}.
    void menu(const QStringList& names);
    /// Presses a key in the control with the focus.
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
    /// Clicks a button, an option or a check box.
    void click(const QString& name);
    /// Clicks into a field, replaces its content, and leaves it with the key `leave`.
    void type(const QString& name, const QString& text, Qt::Key leave = Qt::Key_Tab);
    /// Types into each field in turn; ends the tour if a field does not show what was typed.
    void enter(std::span<const Entry> entries);
    /// Types into the control with the focus; the focus may move at the first letter.
    void write(const QString& text);
    /// Turns to the page that contains this control.
    void turnTo(const QString& name);

    /// The text of a field on the front screen.
    QString shown(const QString& name);
    double figure(const QString& name);
    /// Ends the tour unless the field shows this amount, to the rand.
    void expectFigure(const QString& name, double expected);
    screenkit::Screen* front();
    /// Ends the tour unless this screen is in front.
    void expectFront(const QString& screen);
    /// The report window opened last, brought to the front.
    reports::PreviewWindow* preview();
    /// Closes it with Escape and returns to the report window below it, or to the main window.
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
    /// Activates a window. Without a window manager a closed menu or window would stay active.
    void toFront(QWidget& window);
    /// Ends the tour unless the control is visible and enabled.
    void reach(QWidget* control);

    Desk& m_desk;
    shell::Program& m_program;
};

} // namespace tour

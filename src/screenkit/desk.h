#pragma once

#include <QDate>
#include <QString>
#include <QStringList>
#include <optional>

class QPrinter;
class QWidget;

namespace screenkit {

/// Where a report goes: a window of its own, or straight to the session's printer.
enum class Destination { preview = 0, printer = 1 };

enum class BoxStyle { plain, information, question, warning, critical };
enum class Answer { ok, yes, no, cancel };
enum class Buttons { ok, okCancel, yesNo, yesNoCancel };

/// Everything that a screen asks of the user or of the desktop outside its own window. The program's desk shows real
/// boxes; a test's desk answers from a queue and keeps the words. Boxes are modal to the whole program and always show
/// the normal cursor.
class Desk {
public:
    virtual ~Desk() = default;

    /// Escape or the close button means Cancel where there is Cancel, No in Yes/No, OK where there is only OK.
    /// defaultAnswer: the button that Enter presses; by default the first.
    virtual Answer box(BoxStyle style, const QString& text, const QString& title, Buttons buttons,
                       std::optional<Answer> defaultAnswer = {}) = 0;

    /// A file to open or a name to save under; nothing when the user cancels. filters: "PDF (*.pdf)" and the like,
    /// the first being chosen at the start. For saving the file dialog itself asks before overwriting; it opens in the
    /// folder that the user saved in last, with `suggested`, a file's name, proposed.
    virtual std::optional<QString> fileToOpen(const QString& title, const QString& folder,
                                              const QStringList& filters) = 0;
    virtual std::optional<QString> fileToSave(const QString& title, const QString& suggested,
                                              const QStringList& filters) = 0;
    /// One line of text asked for in a box.
    virtual std::optional<QString> input(const QString& text, const QString& title, const QString& initial) = 0;
    /// The system's print dialog on the session's printer; false when cancelled.
    virtual bool choosePrinter(QPrinter& printer) = 0;
    /// True if a printer is installed.
    virtual bool hasPrinter() = 0;

    virtual void bell() = 0;
    virtual QDate today() = 0;
    /// Hands an address or a document to the desktop; failure is silent.
    virtual void openOnDesktop(const QString& address) = 0;
    /// Starts the first of these programs that is in PATH, detached; false if none starts.
    virtual bool startProgram(const QStringList& candidates) = 0;

    // The box that most screens want: one button, nothing to decide.
    void tell(BoxStyle style, const QString& text, const QString& title) { box(style, text, title, Buttons::ok); }
};

} // namespace screenkit

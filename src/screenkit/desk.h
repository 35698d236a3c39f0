#pragma once

#include <QDate>
#include <QString>
#include <QStringList>
#include <optional>

class QPrinter;
class QWidget;

namespace screenkit {

/// Where a report goes: a preview window, or directly to the session's printer.
enum class Destination { preview = 0, printer = 1 };

enum class BoxStyle { plain, information, question, warning, critical };
enum class Answer { ok, yes, no, cancel };
enum class Buttons { ok, okCancel, yesNo, yesNoCancel };

/// Everything that a screen asks of the user or of the desktop outside its own window. The program's desk shows real
/// message boxes; a test's desk answers from a queue and records the texts. Boxes block the whole program and always
/// show the normal cursor.
class Desk {
public:
    virtual ~Desk() = default;

    /// Escape or the close button means Cancel if there is Cancel, No in Yes/No, OK if there is only OK. defaultAnswer:
    /// the button that Enter presses; the first one if not given.
    virtual Answer box(BoxStyle style, const QString& text, const QString& title, Buttons buttons,
                       std::optional<Answer> defaultAnswer = {}) = 0;

    /// A file to open or a name to save under; nothing if the user cancels. filters: "PDF (*.pdf)" and the like; the
    /// first one is preselected. When saving, the file dialog itself asks before overwriting; it opens in the folder
    /// last saved in, with the file name `suggested`.
    virtual std::optional<QString> fileToOpen(const QString& title, const QString& folder,
                                              const QStringList& filters) = 0;
    virtual std::optional<QString> fileToSave(const QString& title, const QString& suggested,
                                              const QStringList& filters) = 0;
    /// Asks for one line of text in a box.
    virtual std::optional<QString> input(const QString& text, const QString& title, const QString& initial) = 0;
    /// The system's print dialog for the session's printer; false if cancelled.
    virtual bool choosePrinter(QPrinter& printer) = 0;
    /// True if a printer is installed.
    virtual bool hasPrinter() = 0;

    virtual void bell() = 0;
    virtual QDate today() = 0;
    /// Opens an address or a document with the desktop's program for it; failure is silent.
    virtual void openOnDesktop(const QString& address) = 0;
    /// Starts the first of these programs that is found in PATH, detached; false if none starts.
    virtual bool startProgram(const QStringList& candidates) = 0;

    // The most common box: one button, no decision.
    void tell(BoxStyle style, const QString& text, const QString& title) { box(style, text, title, Buttons::ok); }
};

} // namespace screenkit

#include "screenkit/realdesk.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QUrl>

#include "screenkit/savefile.h"
#include "screenkit/trouble.h"
#include "screenkit/usersettings.h"

namespace screenkit {

namespace {

QMessageBox::Icon icon(BoxStyle style) {
    switch (style) {
    case BoxStyle::information: return QMessageBox::Information;
    case BoxStyle::question: return QMessageBox::Question;
    case BoxStyle::warning: return QMessageBox::Warning;
    case BoxStyle::critical: return QMessageBox::Critical;
    case BoxStyle::plain: break;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons standard(Buttons buttons) {
    switch (buttons) {
    case Buttons::okCancel: return QMessageBox::Ok | QMessageBox::Cancel;
    case Buttons::yesNo: return QMessageBox::Yes | QMessageBox::No;
    case Buttons::yesNoCancel: return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case Buttons::ok: break;
    }
    return QMessageBox::Ok;
}

QMessageBox::StandardButton standard(Answer answer) {
    switch (answer) {
    case Answer::yes: return QMessageBox::Yes;
    case Answer::no: return QMessageBox::No;
    case Answer::cancel: return QMessageBox::Cancel;
    case Answer::ok: break;
    }
    return QMessageBox::Ok;
}

QMessageBox::StandardButton escape(Buttons buttons) {
    if (buttons == Buttons::yesNoCancel || buttons == Buttons::okCancel) return QMessageBox::Cancel;
    return buttons == Buttons::yesNo ? QMessageBox::No : QMessageBox::Ok;
}

Answer first(Buttons buttons) {
    return buttons == Buttons::ok || buttons == Buttons::okCancel ? Answer::ok : Answer::yes;
}

/// The window in which the user asked for the box or dialog. A dialog over another window would bring that one to the
/// front, and the next key would go to the client there. Directly after a dialog no window is active: then it is the
/// window that asked last.
class AskingWindow {
public:
    AskingWindow(QPointer<QWidget>& last, QWidget* otherwise) : m_window(QApplication::activeWindow()) {
        if (!m_window && last && last->isVisible()) m_window = last;
        if (!m_window) m_window = otherwise;
        last = m_window;
    }
    ~AskingWindow() {
        if (m_window && m_window->isVisible()) m_window->activateWindow();
    }
    AskingWindow(const AskingWindow&) = delete;
    AskingWindow& operator=(const AskingWindow&) = delete;

    QWidget* widget() const { return m_window; }

private:
    QPointer<QWidget> m_window;
};

const char* const folderKey = "saveFolder";

/// The folder used last; at first the user's documents.
QString saveFolder() {
    const QStringList folders{userSettings().value(folderKey).toString(),
                              QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)};
    for (const QString& folder : folders)
        if (!folder.isEmpty() && QDir(folder).exists()) return folder;
    return QDir::homePath();
}

/// Keeps the ending of the file name in step with the chosen kind: adds it, or replaces another kind's.
void followKind(QFileDialog& dialog, const QStringList& filters) {
    const auto follow = [&dialog, filters](const QString& chosen) {
        dialog.setDefaultSuffix(endingOf(chosen).mid(1)); // without the point, which the dialog adds
        const QFileInfo file(dialog.selectedFiles().value(0));
        for (const QString& filter : filters)
            if (file.fileName().endsWith(endingOf(filter), Qt::CaseInsensitive) &&
                !file.fileName().endsWith(endingOf(chosen), Qt::CaseInsensitive))
                dialog.selectFile(file.completeBaseName() + endingOf(chosen));
    };
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, follow);
    follow(dialog.selectedNameFilter());
}

} // namespace

Answer RealDesk::box(BoxStyle style, const QString& text, const QString& title, Buttons buttons,
                     std::optional<Answer> defaultAnswer) {
    const NormalCursor cursor;
    const AskingWindow asking(m_lastAsking, m_window);
    QMessageBox box(icon(style), title, text, standard(buttons), asking.widget());
    box.setTextFormat(Qt::PlainText); // a client's name may look like markup
    box.setWindowModality(Qt::ApplicationModal);
    box.setEscapeButton(escape(buttons));
    box.setDefaultButton(standard(defaultAnswer.value_or(first(buttons))));
    switch (box.exec()) {
    case QMessageBox::Yes: return Answer::yes;
    case QMessageBox::No: return Answer::no;
    case QMessageBox::Cancel: return Answer::cancel;
    default: return Answer::ok;
    }
}

std::optional<QString> RealDesk::fileToOpen(const QString& title, const QString& folder, const QStringList& filters) {
    const NormalCursor cursor;
    const AskingWindow asking(m_lastAsking, m_window);
    const QString file = QFileDialog::getOpenFileName(asking.widget(), title, folder, filters.join(";;"));
    return file.isEmpty() ? std::nullopt : std::optional(file);
}

std::optional<QString> RealDesk::fileToSave(const QString& title, const QString& suggested,
                                            const QStringList& filters) {
    const NormalCursor cursor;
    const AskingWindow asking(m_lastAsking, m_window);
    QFileDialog dialog(asking.widget(), title, saveFolder());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters(filters);
    dialog.selectFile(suggested);
    followKind(dialog, filters); // before the dialog asks about replacing a file
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
    const QString file = dialog.selectedFiles().constFirst();
    // A backup on a memory stick must not move the folder of the reports.
    if (QFileInfo(suggested).isRelative()) userSettings().setValue(folderKey, QFileInfo(file).absolutePath());
    return file;
}

std::optional<QString> RealDesk::input(const QString& text, const QString& title, const QString& initial) {
    const NormalCursor cursor;
    const AskingWindow asking(m_lastAsking, m_window);
    bool accepted = false;
    const QString line = QInputDialog::getText(asking.widget(), title, text, QLineEdit::Normal, initial, &accepted);
    return accepted ? std::optional(line) : std::nullopt;
}

bool RealDesk::choosePrinter(QPrinter& printer) {
    const NormalCursor cursor;
    const AskingWindow asking(m_lastAsking, m_window);
    return QPrintDialog(&printer, asking.widget()).exec() == QDialog::Accepted;
}

bool RealDesk::hasPrinter() { return !QPrinterInfo::availablePrinterNames().isEmpty(); }
void RealDesk::bell() { QApplication::beep(); }
QDate RealDesk::today() { return QDate::currentDate(); }
void RealDesk::openOnDesktop(const QString& address) { QDesktopServices::openUrl(QUrl::fromUserInput(address)); }

bool RealDesk::startProgram(const QStringList& candidates) {
    for (const QString& name : candidates) {
        const QString program = QStandardPaths::findExecutable(name);
        if (!program.isEmpty() && QProcess::startDetached(program, {})) return true;
    }
    return false;
}

} // namespace screenkit

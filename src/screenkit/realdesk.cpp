#include "screenkit/realdesk.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QUrl>

#include "screenkit/trouble.h"

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
    if (buttons == Buttons::yesNoCancel) return QMessageBox::Cancel;
    return buttons == Buttons::yesNo ? QMessageBox::No : QMessageBox::Ok;
}

} // namespace

Answer RealDesk::box(BoxStyle style, const QString& text, const QString& title, Buttons buttons,
                     std::optional<Answer> defaultAnswer) {
    const NormalCursor cursor;
    QMessageBox box(icon(style), title, text, standard(buttons), m_window);
    box.setTextFormat(Qt::PlainText); // a client's name may hold what looks like markup
    box.setWindowModality(Qt::ApplicationModal);
    box.setEscapeButton(escape(buttons));
    box.setDefaultButton(standard(defaultAnswer.value_or(buttons == Buttons::ok ? Answer::ok : Answer::yes)));
    switch (box.exec()) {
    case QMessageBox::Yes: return Answer::yes;
    case QMessageBox::No: return Answer::no;
    case QMessageBox::Cancel: return Answer::cancel;
    default: return Answer::ok;
    }
}

std::optional<QString> RealDesk::fileToOpen(const QString& title, const QString& folder, const QStringList& filters) {
    const NormalCursor cursor;
    const QString file = QFileDialog::getOpenFileName(m_window, title, folder, filters.join(";;"));
    return file.isEmpty() ? std::nullopt : std::optional(file);
}

std::optional<QString> RealDesk::fileToSave(const QString& title, const QString& suggested,
                                            const QStringList& filters) {
    const NormalCursor cursor;
    QFileDialog dialog(m_window, title, suggested);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters(filters);
    // A bare name gets the ending of the kind that is chosen, before the dialog asks about replacing a file.
    const auto follow = [&dialog](const QString& filter) {
        static const QRegularExpression ending(R"(\*\.(\w+))");
        dialog.setDefaultSuffix(ending.match(filter).captured(1));
    };
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, follow);
    follow(dialog.selectedNameFilter());
    dialog.selectFile(suggested);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
    return dialog.selectedFiles().constFirst();
}

std::optional<QString> RealDesk::input(const QString& text, const QString& title, const QString& initial) {
    const NormalCursor cursor;
    bool accepted = false;
    const QString line = QInputDialog::getText(m_window, title, text, QLineEdit::Normal, initial, &accepted);
    return accepted ? std::optional(line) : std::nullopt;
}

bool RealDesk::choosePrinter(QPrinter& printer) {
    const NormalCursor cursor;
    return QPrintDialog(&printer, m_window).exec() == QDialog::Accepted;
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

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

class QLabel;

namespace screenkit {

class Desk;

/// The ending that a filter of a file dialog names, with its point: "PDF (*.pdf)" to ".pdf".
QString endingOf(const QString& filter);

/// Asks under which name to save. A name without an ending of the filters ("PDF (*.pdf)") gets that of the first, and
/// the user is asked before that replaces a file. Nothing if the user changes his mind.
std::optional<QString> askWhereToSave(Desk& desk, const QString& title, const QString& proposed,
                                      const QStringList& filters);

/// Makes the file's bytes and writes them whole or not at all; a failure shows the box of guarded(desk, what, ...).
bool saveBytes(Desk& desk, const QString& what, const QString& fileName, const std::function<QByteArray()>& bytes);

/// A line that says where a file was saved, with a link that opens it. It never makes its window wider.
QLabel* newSavedLine(Desk& desk);
/// Shows the file there, and tells a screen reader.
void showSaved(QLabel& line, const QString& fileName);

} // namespace screenkit

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

class QLabel;

namespace screenkit {

class Desk;

/// The ending in a filter of a file dialog, with its point: ".pdf" for "PDF (*.pdf)".
QString endingOf(const QString& filter);

/// Asks for the name to save under. A name without the ending of a filter ("PDF (*.pdf)") gets that of the first, and
/// the user is asked before that replaces a file. Nothing if the user cancels.
std::optional<QString> askWhereToSave(Desk& desk, const QString& title, const QString& proposed,
                                      const QStringList& filters);

/// Makes the file's bytes and writes them completely or not at all; a failure shows the box of guarded(desk, what).
bool saveBytes(Desk& desk, const QString& what, const QString& fileName, const std::function<QByteArray()>& bytes);

/// A line that says where a file was saved, with a link that opens it. It never widens its window.
QLabel* newSavedLine(Desk& desk);
/// Shows the file's name in the line, and tells a screen reader.
void showSaved(QLabel& line, const QString& fileName);

} // namespace screenkit

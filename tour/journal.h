#pragma once

#include <QString>

class QPixmap;
class QWidget;

/// The output of the tour: lines on the terminal, and numbered pictures in the current folder.
namespace tour {

void say(const QString& line);

/// Ends the tour because something is wrong. Throws; never call it from inside a signal or an event.
[[noreturn]] void fail(const QString& why);
void check(bool holds, const QString& otherwise);

/// Saves a picture as NN-name.png with the next free number. An empty or single-coloured one ends the tour.
void picture(const QPixmap& pixels, const QString& name);
void picture(QWidget* window, const QString& name);

} // namespace tour

#pragma once

#include <QString>

class QPixmap;
class QWidget;

/// What the tour tells and shows: lines on the terminal, numbered pictures in the folder that it runs in.
namespace tour {

void say(const QString& line);

/// Ends the tour: something is not as it should be. Throws; never call it from inside a signal or an event.
[[noreturn]] void fail(const QString& why);
void check(bool holds, const QString& otherwise);

/// Saves a picture as NN-name.png, numbered on from those in the folder. An empty or single-coloured one ends the tour.
void picture(const QPixmap& pixels, const QString& name);
void picture(QWidget* window, const QString& name);

} // namespace tour

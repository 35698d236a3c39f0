#pragma once

#include <QRect>

class QMdiArea;
class QMdiSubWindow;

/// Positions of windows. Child windows are placed in the coordinates of their area.
namespace shell {

/// The main window at start-up, without its frame, centred in the area that panels and docks leave free: its usual
/// size, or two thirds of a large screen; with its frame never larger than the area.
QRect startGeometry(const QRect& available);

/// Places a new window at the top left, in the size that its screen asks for, or as much of it as fits.
void placeAtTopLeft(QMdiArea* area, QMdiSubWindow* window);

/// Moves a window that comes to the front fully into view, if it fits.
void bringIntoView(QMdiArea* area, QMdiSubWindow* window);

/// Places windows one behind the other, from the top left down, each fully visible if it fits; closer together if there
/// is little space.
void cascade(QMdiArea* area);

/// Places the minimised windows in rows from the bottom left.
void arrangeIcons(QMdiArea* area);

} // namespace shell

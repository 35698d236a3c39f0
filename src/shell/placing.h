#pragma once

#include <QRect>

class QMdiArea;
class QMdiSubWindow;

/// Where windows go. Child windows are placed in the coordinates of their area.
namespace shell {

/// The main window at the start, without its frame, in the middle of the room that panels and docks leave free: of its
/// usual size, with two thirds of a large screen's room, and with its frame never larger than the room.
QRect startGeometry(const QRect& available);

/// A window that opens comes to the top left at the size that its screen asks for, as far as there is room.
void placeAtTopLeft(QMdiArea* area, QMdiSubWindow* window);

/// A window that is brought to the front and fits is brought wholly into view.
void bringIntoView(QMdiArea* area, QMdiSubWindow* window);

/// One behind the other, from the top left down, each wholly in view if it fits: where room is short they stand closer.
void cascade(QMdiArea* area);

/// The minimised windows in rows from the bottom left.
void arrangeIcons(QMdiArea* area);

} // namespace shell

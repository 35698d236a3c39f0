#pragma once

class QTabWidget;
class QWidget;

/// Tab pages, worked by key: turning to a page by key also moves the focus into it.
namespace screenkit {

/// A page of a tab widget; `book` is null for a control that is on no page.
struct Page {
    QTabWidget* book = nullptr;
    int index = -1;
};

/// The page that contains a control.
Page pageOf(const QWidget* control);

/// Shows a page and moves the focus to its first entry field; without one to the first control that can have the focus,
/// such as a result; without any to its tab.
void turnToPage(QTabWidget* book, int page);

/// Ctrl+Page Down and Ctrl+Page Up turn to the next and the previous page, cyclically, while the focus is inside
/// `area`.
void turnPagesByKey(QTabWidget* book, QWidget* area);

} // namespace screenkit

#pragma once

class QTabWidget;
class QWidget;

/// Books of tabs, worked by key: whoever turns to a page by key means to go on there.
namespace screenkit {

/// A page of a book; no book for what lies on none.
struct Page {
    QTabWidget* book = nullptr;
    int index = -1;
};

/// The page that a control lies on.
Page pageOf(const QWidget* control);

/// Shows a page and leads the focus to the first control on it that takes entries, or where there is none to the first
/// that can have the focus, such as a result; to its tab if the page has nothing of the kind.
void turnToPage(QTabWidget* book, int page);

/// Ctrl+Page Down and Ctrl+Page Up turn to the next page and to the one before, round and round, from wherever the
/// focus is inside `area`.
void leafByKey(QTabWidget* book, QWidget* area);

} // namespace screenkit

#pragma once

#include <QTextCursor>

#include "screenkit/screen.h"

class QLabel;
class QLineEdit;
class QListWidget;
class QTextBrowser;

namespace shell {

/// A help page from the program's folder: the user's guide, with a table of contents and a search that marks every
/// match and moves between them. A missing page shows one line that says so.
class frmBrowser : public screenkit::Screen {
    Q_OBJECT
public:
    explicit frmBrowser(screenkit::Workplace& workplace);

    /// Scrolls to the chapter with this heading; an unknown heading changes nothing.
    void showChapter(const QString& heading);

protected:
    QWidget* firstField() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildPage();
    void buildSearch();
    void readGuide();
    void search();
    /// Moves by this many matches, cyclically.
    void showHit(int step);
    void bringToTop(const QTextBlock& block);

    QTextBrowser* m_page;
    QListWidget* m_contents;
    QLineEdit* m_search;
    QLabel* m_found;
    QList<QTextCursor> m_hits; ///< the matches of the search
    qsizetype m_hit = 0;
};

} // namespace shell

#pragma once

#include <QTextCursor>

#include "screenkit/screen.h"

class QLabel;
class QLineEdit;
class QListWidget;
class QTextBrowser;

namespace shell {

/// A help page that lies beside the program: the user's guide, with its contents beside it and a search that marks
/// every place and leads from one to the next. A missing page shows one line that says so.
class frmBrowser : public screenkit::Screen {
    Q_OBJECT
public:
    explicit frmBrowser(screenkit::Workplace& workplace);

    /// Brings the chapter of this heading to the top; a heading that is not there changes nothing.
    void showChapter(const QString& heading);

protected:
    QWidget* firstField() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildPage();
    void buildSearch();
    void readGuide();
    void search();
    /// The place that many further on, round and round.
    void showHit(int step);
    void bringToTop(const QTextBlock& block);

    QTextBrowser* m_page;
    QListWidget* m_contents;
    QLineEdit* m_search;
    QLabel* m_found;
    QList<QTextCursor> m_hits; ///< where the text searched for stands
    qsizetype m_hit = 0;
};

} // namespace shell

#include "shell/frmBrowser.h"

#include <QAbstractTextDocumentLayout>
#include <QFile>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTextBlock>
#include <QTextBrowser>

#include "datastore/paths.h"
#include "screenkit/look.h"

namespace shell {

using namespace screenkit;

frmBrowser::frmBrowser(Workplace& workplace)
    : Screen(workplace, "frmBrowser", "Marlowbeck Help", untracked()), m_page(new QTextBrowser),
      m_contents(new QListWidget), m_search(new QLineEdit), m_found(new QLabel) {
    buildPage();
    buildSearch();
    body(column({row({labelled(tr("&Search"), m_search), m_found, spring()}),
                 Item(row({m_contents, Item(m_page, 1)}), 1), row({spring(), okButton()})}));
    readGuide();
}

void frmBrowser::buildPage() {
    const int letter = m_page->fontMetrics().averageCharWidth();
    m_page->setObjectName("brwHelp");
    m_page->setAccessibleName(tr("User's guide"));
    m_page->setMinimumSize(letter * 75, look::lineHeight(m_page) * 24);
    m_page->setOpenLinks(false);
    m_page->setSearchPaths({":/guide"}); // its pictures
    connect(m_page, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) {
        if (link.scheme().isEmpty())
            m_page->scrollToAnchor(link.fragment());
        else
            m_work.desk.openOnDesktop(link.toString());
    });
    m_contents->setObjectName("lstContents");
    m_contents->setAccessibleName(tr("Contents"));
    m_contents->setFixedWidth(letter * 36);
    connect(m_contents, &QListWidget::currentTextChanged, this, &frmBrowser::showChapter);
}

void frmBrowser::buildSearch() {
    m_search->setObjectName("txtSearch");
    m_search->setClearButtonEnabled(true);
    m_search->setMinimumWidth(look::fieldSize(m_search, 30).width());
    m_search->setToolTip(tr("Enter: next match, Shift+Enter: previous match, Escape: clear"));
    m_search->installEventFilter(this);
    m_found->setObjectName("lblFound");
    connect(m_search, &QLineEdit::textChanged, this, &frmBrowser::search);
}

void frmBrowser::readGuide() {
    QFile guide(QString::fromStdString((m_work.paths.programFolder / "guide.md").string()));
    if (guide.open(QIODevice::ReadOnly))
        m_page->setMarkdown(QString::fromUtf8(guide.readAll()));
    else
        m_page->setPlainText(tr("The user's guide, guide.md, is not in the program's folder."));
    for (QTextBlock block = m_page->document()->begin(); block.isValid(); block = block.next())
        if (block.blockFormat().headingLevel() == 2) m_contents->addItem(block.text());
}

void frmBrowser::showChapter(const QString& heading) {
    for (QTextBlock block = m_page->document()->begin(); block.isValid(); block = block.next())
        if (block.blockFormat().headingLevel() > 0 && block.text() == heading) bringToTop(block);
    const auto lines = m_contents->findItems(heading, Qt::MatchExactly);
    if (!lines.isEmpty()) m_contents->setCurrentItem(lines.front());
}

void frmBrowser::bringToTop(const QTextBlock& block) {
    m_page->setTextCursor(QTextCursor(block)); // a screen reader continues from here
    const double top = m_page->document()->documentLayout()->blockBoundingRect(block).top();
    m_page->verticalScrollBar()->setValue(static_cast<int>(top));
}

void frmBrowser::search() {
    m_hits.clear();
    QList<QTextEdit::ExtraSelection> marks;
    QTextCursor hit(m_page->document());
    const QString wanted = m_search->text();
    while (!wanted.isEmpty() && !(hit = m_page->document()->find(wanted, hit)).isNull()) {
        m_hits << hit;
        marks << QTextEdit::ExtraSelection{hit, {}};
        marks.back().format.setBackground(Qt::yellow);
        marks.back().format.setForeground(Qt::black);
    }
    m_page->setExtraSelections(marks);
    m_hit = 0;
    m_found->setText(wanted.isEmpty() ? QString() : tr("Not found"));
    showHit(0);
}

void frmBrowser::showHit(int step) {
    const qsizetype count = m_hits.size();
    if (count == 0) return;
    m_hit = (m_hit + step + count) % count;
    m_page->setTextCursor(m_hits[m_hit]);
    m_page->ensureCursorVisible();
    m_found->setText(tr("%1 of %2").arg(m_hit + 1).arg(count));
    QTextBlock heading = m_hits[m_hit].block();
    while (heading.isValid() && heading.blockFormat().headingLevel() != 2)
        heading = heading.previous();
    const QSignalBlocker stay(m_contents); // without it, selecting a line would jump to the start of its chapter
    const auto lines = m_contents->findItems(heading.text(), Qt::MatchExactly);
    if (!lines.isEmpty()) m_contents->setCurrentItem(lines.front());
}

bool frmBrowser::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return Screen::eventFilter(watched, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    switch (key->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter: showHit((key->modifiers() & Qt::ShiftModifier) != 0 ? -1 : 1); return true;
    case Qt::Key_Escape: m_search->clear(); return true;
    default: return Screen::eventFilter(watched, event);
    }
}

QWidget* frmBrowser::firstField() { return m_page; }

} // namespace shell

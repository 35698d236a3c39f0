#include "shell/frmBrowser.h"

#include <QFile>
#include <QTextBrowser>

#include "datastore/paths.h"
#include "screenkit/look.h"

namespace shell {

using namespace screenkit;

frmBrowser::frmBrowser(Workplace& workplace)
    : Screen(workplace, "frmBrowser", "Marlowbeck Help", untracked()), m_page(new QTextBrowser) {
    m_page->setObjectName("brwHelp");
    m_page->setAccessibleName(tr("User's guide"));
    m_page->setMinimumSize(m_page->fontMetrics().averageCharWidth() * 90, look::lineHeight(m_page) * 26);
    m_page->setOpenLinks(false);
    connect(m_page, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) {
        if (link.scheme().isEmpty())
            m_page->scrollToAnchor(link.fragment());
        else
            m_work.desk.openOnDesktop(link.toString());
    });
    QFile guide(QString::fromStdString((workplace.paths.programFolder / "guide.md").string()));
    if (guide.open(QIODevice::ReadOnly))
        m_page->setMarkdown(QString::fromUtf8(guide.readAll()));
    else
        m_page->setPlainText(tr("The user's guide, guide.md, is not in the program's folder."));
    body(column({Item(m_page, 1), row({spring(), okButton()})}));
}

QWidget* frmBrowser::firstField() { return m_page; }

} // namespace shell

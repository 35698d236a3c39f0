#include "reports/previewwindow.h"

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QScreen>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>
#include <algorithm>

#include "reports/pageview.h"
#include "reports/printing.h"
#include "screenkit/desk.h"
#include "screenkit/icon.h"
#include "screenkit/longwork.h"
#include "screenkit/savefile.h"
#include "screenkit/trouble.h"

namespace reports {
namespace {

/// A field for the page number that ignores the mouse wheel, which scrolls the pages.
class PageField : public QSpinBox {
public:
    using QSpinBox::QSpinBox;

protected:
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};

} // namespace

PreviewWindow::PreviewWindow(std::shared_ptr<const Report> report, screenkit::Desk& desk, PrinterSession& printing,
                             std::function<void()> help)
    : m_report(std::move(report)), m_desk(desk), m_printing(printing), m_help(std::move(help)),
      m_view(new PageView({m_report, &m_report->layout}, this)), m_bar(addToolBar(tr("Report"))),
      m_savedLine(screenkit::newSavedLine(desk)) {
    setObjectName("reportPreview");
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_QuitOnClose, false); // closing the last preview must not end the program
    setWindowTitle(m_report->windowTitle);
    setCentralWidget(m_view);
    m_view->setObjectName("pages");
    m_bar->setObjectName("reportToolBar");
    m_bar->setMovable(false);
    m_bar->setContextMenuPolicy(Qt::PreventContextMenu); // no menu could bring a hidden toolbar back
    setContextMenuPolicy(Qt::PreventContextMenu);
    const int glyph = fontMetrics().height() * 5 / 4;
    m_bar->setIconSize({glyph, glyph});
    addActions();
    statusBar()->addWidget(m_savedLine, 1);
    statusBar()->hide(); // until there is a message
    const QSize room = screen()->availableSize();
    resize(std::min(fontMetrics().height() * 54, room.width() * 95 / 100), room.height() * 88 / 100);
    connect(m_view, &PageView::pageChanged, this, &PreviewWindow::showPage);
    connect(m_view, &PageView::scaleChanged, this, &PreviewWindow::showScale);
    showPage(0);
    showScale(m_view->scale());
    m_view->setFocus();
}

QAction* PreviewWindow::addAction(const char* name, const QString& icon, const QString& text,
                                  const QList<QKeySequence>& keys, std::function<void()> action) {
    auto* made = new QAction(screenkit::icon(icon), text, this);
    made->setObjectName(name);
    made->setShortcuts(keys);
    made->setToolTip(keys.isEmpty() ? text
                                    : QString("%1 (%2)").arg(text, keys.first().toString(QKeySequence::NativeText)));
    connect(made, &QAction::triggered, this, [action = std::move(action)] { action(); });
    QWidget::addAction(made);
    return made;
}

void PreviewWindow::addActions() {
    m_bar->addWidget(exportButton());
    m_bar->addAction(addAction("printReport", "print", tr("Print"), {QKeySequence::Print},
                               [this] { m_printing.chooseAndPrint(*m_report); }));
    m_bar->addSeparator();
    const auto go = [this](int page) { return [this, page] { m_view->showPage(m_view->currentPage() + page); }; };
    const int all = m_report->layout.count();
    m_first = addAction("firstPage", "first-page", tr("First page"), {Qt::Key_Home, Qt::CTRL | Qt::Key_Home}, go(-all));
    m_previous = addAction("previousPage", "previous-page", tr("Previous page"), {Qt::CTRL | Qt::Key_PageUp}, go(-1));
    m_next = addAction("nextPage", "next-page", tr("Next page"), {Qt::CTRL | Qt::Key_PageDown}, go(1));
    m_last = addAction("lastPage", "last-page", tr("Last page"), {Qt::Key_End, Qt::CTRL | Qt::Key_End}, go(all));
    m_bar->addActions({m_first, m_previous});
    addPageField();
    m_bar->addActions({m_next, m_last});
    m_bar->addSeparator();
    m_bar->addAction(
        addAction("zoomOut", "zoom-out", tr("Zoom out"), {QKeySequence::ZoomOut}, [this] { zoomBy(0.8); }));
    m_bar->addWidget(zoomButton());
    m_bar->addAction(addAction("zoomIn", "zoom-in", tr("Zoom in"), {QKeySequence::ZoomIn, Qt::CTRL | Qt::Key_Equal},
                               [this] { zoomBy(1.25); }));
    m_pageWidth = addAction("pageWidth", "page-width", tr("Page width"), {Qt::CTRL | Qt::Key_2},
                            [this] { m_view->setZoom(PageView::Zoom::pageWidth); });
    m_wholePage = addAction("wholePage", "whole-page", tr("Whole page"), {Qt::CTRL | Qt::Key_0},
                            [this] { m_view->setZoom(PageView::Zoom::wholePage); });
    for (QAction* fit : {m_pageWidth, m_wholePage})
        fit->setCheckable(true);
    m_bar->addActions({m_pageWidth, m_wholePage});
    addAction("realSize", {}, tr("Real size"), {Qt::CTRL | Qt::Key_1}, [this] { m_view->setScale(1); });
    addAction("closePreview", {}, tr("Close"), {Qt::Key_Escape, QKeySequence::Close}, [this] { close(); });
    if (m_help) addAction("help", {}, tr("Help"), {QKeySequence::HelpContents}, m_help);
}

/// The suitcase button: a click exports under a name that the user chooses; its arrow lists the formats.
QToolButton* PreviewWindow::exportButton() {
    auto* button = new QToolButton;
    button->setObjectName("exportButton");
    button->setDefaultAction(
        addAction("exportReport", "suitcase", tr("Export Report"), {Qt::CTRL | Qt::Key_E}, [this] { exportReport(); }));
    button->setToolTip(tr("Export Report"));
    button->setAccessibleName(tr("Export Report"));
    button->setPopupMode(QToolButton::MenuButtonPopup);
    auto* menu = new QMenu(button);
    for (const Format format : formatsOf(*m_report))
        menu->addAction(exportFilters({format}).first(), this, [this, format] { exportReport(format); });
    button->setMenu(menu);
    return button;
}

void PreviewWindow::addPageField() {
    m_pageField = new PageField;
    m_pageField->setObjectName("pageField");
    m_pageField->setAccessibleName(tr("Page"));
    m_pageField->setButtonSymbols(QAbstractSpinBox::NoButtons);
    m_pageField->setAlignment(Qt::AlignCenter);
    m_pageField->setKeyboardTracking(false);
    m_pageField->setRange(1, m_report->layout.count());
    m_pageField->setPrefix(tr("Page "));
    m_pageField->setSuffix(tr(" of %1").arg(m_report->layout.count()));
    m_pageField->setToolTip(tr("The page in view"));
    connect(m_pageField, &QSpinBox::valueChanged, this, [this](int page) { m_view->showPage(page - 1); });
    m_bar->addWidget(m_pageField);
}

QToolButton* PreviewWindow::zoomButton() {
    m_zoomButton = new QToolButton;
    m_zoomButton->setObjectName("zoomButton");
    m_zoomButton->setAccessibleName(tr("Zoom"));
    m_zoomButton->setToolTip(tr("Zoom"));
    m_zoomButton->setPopupMode(QToolButton::InstantPopup);
    auto* menu = new QMenu(m_zoomButton);
    for (const int percent : {50, 75, 100, 125, 150, 200, 300, 400})
        menu->addAction(tr("%1 %").arg(percent), this, [this, percent] { m_view->setScale(percent / 100.0); });
    m_zoomButton->setMenu(menu);
    m_zoomButton->setMinimumWidth(fontMetrics().horizontalAdvance("8000 %") + fontMetrics().height());
    return m_zoomButton;
}

void PreviewWindow::showPage(int page) {
    const QSignalBlocker quiet(m_pageField);
    m_pageField->setValue(page + 1);
    for (QAction* back : {m_first, m_previous})
        back->setEnabled(page > 0);
    for (QAction* on : {m_next, m_last})
        on->setEnabled(page + 1 < m_report->layout.count());
}

void PreviewWindow::showScale(double scale) {
    m_zoomButton->setText(tr("%1 %").arg(qRound(scale * 100)));
    m_pageWidth->setChecked(m_view->zoomMode() == PageView::Zoom::pageWidth);
    m_wholePage->setChecked(m_view->zoomMode() == PageView::Zoom::wholePage);
}

void PreviewWindow::zoomBy(double factor) { m_view->setScale(m_view->scale() * factor); }

bool PreviewWindow::exportReport(Format first) {
    std::vector<Format> formats = formatsOf(*m_report);
    const auto chosen = std::find(formats.begin(), formats.end(), first);
    std::rotate(formats.begin(), chosen, std::next(chosen));
    const QStringList filters = exportFilters(formats);
    const Content& content = m_report->content;
    const QString& client = m_report->fileClient.isEmpty() ? content.client : m_report->fileClient;
    const QString& title = m_report->fileTitle.isEmpty() ? content.title : m_report->fileTitle;
    const QString proposed = proposedFileName(client, title, endingOf(first));
    const std::optional<QString> name = screenkit::askWhereToSave(m_desk, tr("Export Report"), proposed, filters);
    return name && exportTo(*name);
}

bool PreviewWindow::agreesToNoPassword() {
    return m_desk.box(screenkit::BoxStyle::question,
                      tr("Only a PDF file can carry the password. Anyone can open and read this file.\n"
                         "Do you want to save it without the password ?"),
                      tr("Export Report"), screenkit::Buttons::yesNo, screenkit::Answer::no) == screenkit::Answer::yes;
}

bool PreviewWindow::exportTo(const QString& fileName) {
    const Format format = formatOf(fileName).value_or(Format::pdf);
    if (!m_report->password.isEmpty() && format != Format::pdf && !agreesToNoPassword()) return false;
    QByteArray bytes;
    bool goesOn = true;
    const bool made = screenkit::guarded(m_desk, tr("export the report"), [&] {
        goesOn = screenkit::runLongWork(tr("Exporting the report"), [&](const store::Progress& progress) {
            bytes = exported(*m_report, format, progress);
        });
    });
    if (!made || !goesOn) return false;
    if (!screenkit::saveBytes(m_desk, tr("export the report"), fileName, [&] { return bytes; })) return false;
    screenkit::showSaved(*m_savedLine, fileName);
    statusBar()->show();
    return true;
}

} // namespace reports

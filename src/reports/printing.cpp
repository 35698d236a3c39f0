#include "reports/printing.h"

#include <QPainter>
#include <QPrinter>
#include <algorithm>

#include "reports/export.h"
#include "screenkit/desk.h"
#include "screenkit/trouble.h"
#include "store/error.h"

namespace reports {
namespace {

/// The first and last page chosen in the print dialog, from 0; all pages if none were chosen.
std::pair<int, int> pagesAskedFor(const QPrinter& printer, int count) {
    if (printer.printRange() != QPrinter::PageRange || printer.fromPage() < 1) return {0, count - 1};
    const int to = printer.toPage() < 1 ? count : printer.toPage();
    return {std::min(printer.fromPage(), count) - 1, std::min(to, count) - 1};
}

/// A page is laid out for A4. On other paper it is scaled as a whole, so that the page breaks stay the same.
void fitToPaper(QPainter& painter, const QPrinter& printer) {
    const QRectF paper = printer.paperRect(QPrinter::DevicePixel);
    const QSizeF page = Layout::pageSize();
    const double scale = std::min(paper.width() / page.width(), paper.height() / page.height());
    painter.resetTransform();
    painter.translate((paper.width() - page.width() * scale) / 2, 0);
    painter.scale(scale, scale);
}

} // namespace

PrinterSession::PrinterSession(screenkit::Desk& desk, std::function<std::unique_ptr<QPrinter>()> factory)
    : m_desk(desk), m_factory(std::move(factory)) {
    if (!m_factory) m_factory = [] { return std::make_unique<QPrinter>(QPrinter::HighResolution); };
}

PrinterSession::~PrinterSession() = default;

QPrinter& PrinterSession::printer() {
    if (!m_printer) {
        m_printer = m_factory();
        m_printer->setPageSize(QPageSize(QPageSize::A4));
        m_printer->setCreator("Marlowbeck");
    }
    return *m_printer;
}

bool PrinterSession::available() {
    if (m_desk.hasPrinter()) return true;
    m_desk.tell(screenkit::BoxStyle::warning,
                QObject::tr("No printer is installed on this computer.\nThe report can still be viewed, and exported "
                            "from its window as PDF, HTML, ODT, CSV or XLSX."),
                "Marlowbeck");
    return false;
}

bool PrinterSession::choose() { return available() && m_desk.choosePrinter(printer()); }

bool PrinterSession::print(const Report& report, int copies) {
    if (!available()) return false;
    printer().setPrintRange(QPrinter::AllPages);
    printer().setCopyCount(std::clamp(copies, 1, 99));
    const bool sent = send(report);
    printer().setCopyCount(1);
    return sent;
}

bool PrinterSession::chooseAndPrint(const Report& report) {
    if (!available()) return false;
    printer().setFromTo(0, 0);
    return choose() && send(report);
}

bool PrinterSession::send(const Report& report) {
    return screenkit::guarded(m_desk, QObject::tr("print the report"), [&] {
        const screenkit::BusyCursor busy;
        printer().setDocName(documentTitle(report.content));
        printer().setFullPage(true);
        printer().setPageOrientation(QPageLayout::Portrait);
        QPainter painter;
        if (!painter.begin(&printer()))
            throw store::Error(store::Number::deviceError, printer().printerName().toStdString(),
                               "The printer could not be started.", "Check the printer, or choose another one.");
        const auto [first, last] = pagesAskedFor(printer(), report.layout.count());
        for (int page = first; page <= last; ++page) {
            if (page > first) printer().newPage();
            fitToPaper(painter, printer());
            report.layout.paint(painter, page);
        }
        if (!painter.end() || printer().printerState() == QPrinter::Error)
            throw store::Error(store::Number::deviceError, printer().printerName().toStdString(),
                               "The printer stopped before the end.", "Check the printer and try again.");
    });
}

} // namespace reports

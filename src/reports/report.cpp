#include "reports/report.h"

#include <QPrinter>
#include <algorithm>

#include "datastore/paths.h"
#include "reports/export.h"
#include "reports/previewwindow.h"
#include "reports/printing.h"
#include "reports/snapshot.h"
#include "screenkit/desk.h"
#include "screenkit/trouble.h"
#include "store/error.h"

namespace reports {
Engine::Engine(screenkit::Desk& desk, std::filesystem::path programFolder, PrinterFactory printerFactory)
    : m_desk(desk), m_programFolder(std::move(programFolder)),
      m_printing(std::make_unique<PrinterSession>(desk, std::move(printerFactory))) {}

Engine::~Engine() { closePreviews(); }

bool Engine::run(const QString& definition, const QString& title, Destination destination) {
    const int copies = CopiesToPrinter;
    CopiesToPrinter = 1;
    std::shared_ptr<const Report> report;
    const bool made = screenkit::guarded(m_desk, QObject::tr("produce the report %1").arg(definition), [&] {
        const screenkit::BusyCursor busy;
        report = prepare(definition, title);
        if (destination == Destination::preview) show(report);
    });
    if (!made || destination == Destination::preview) return made;
    return m_printing->print(*report, copies);
}

std::shared_ptr<const Report> Engine::prepare(const QString& definition, const QString& title) const {
    auto report = std::make_shared<Report>();
    report->content = filledFrom(m_programFolder, definition, datastore::printDbPath(m_programFolder), m_desk.today());
    report->windowTitle = title.isEmpty() ? report->content.title : title;
    report->layout = layOut(report->content);
    return report;
}

QByteArray Engine::pdf(const QString& definition, const QString& title) const {
    return toPdf(*prepare(definition, title));
}

QString Engine::practice() const {
    try {
        return practiceOf(Snapshot(datastore::printDbPath(m_programFolder), {}).headerLines());
    } catch (const store::Error&) {
        return {}; // only a graph file's author: it can be missing
    }
}

void Engine::show(std::shared_ptr<const Report> report) {
    m_previews.erase(std::remove(m_previews.begin(), m_previews.end(), nullptr), m_previews.end());
    auto* window = new PreviewWindow(std::move(report), m_desk, *m_printing, m_help);
    m_previews.emplace_back(window);
    window->show();
}

std::vector<PreviewWindow*> Engine::previews() const {
    std::vector<PreviewWindow*> open;
    for (const QPointer<PreviewWindow>& window : m_previews)
        if (window && window->isVisible()) open.push_back(window);
    return open;
}

void Engine::closePreviews() {
    for (const QPointer<PreviewWindow>& window : m_previews)
        delete window.data();
    m_previews.clear();
}

void Engine::setUpPrinter() { m_printing->choose(); }

QPrinter& Engine::printer() { return m_printing->printer(); }

} // namespace reports

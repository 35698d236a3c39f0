#pragma once

#include <QByteArray>
#include <QPointer>
#include <QString>
#include <filesystem>
#include <functional>
#include <memory>
#include <vector>

#include "screenkit/desk.h"

class QPrinter;

namespace reports {

class PreviewWindow;
class PrinterSession;
struct Report;

using screenkit::Destination;

/// Creates the session's printer; a test creates one that prints into a PDF file.
using PrinterFactory = std::function<std::unique_ptr<QPrinter>()>;

/// Runs report definitions (`*.rpt` in the program folder) on the rows of Print.mdb beside them.
///
/// A screen writes its rows with datastore::PrintFeed, then calls run(). The rows are read once, when the report is
/// run: later printouts do not change an open preview. Previews are separate windows; several may be open. They stay
/// open when the screen closes, until the engine is destroyed.
class Engine {
public:
    Engine(screenkit::Desk& desk, std::filesystem::path programFolder, PrinterFactory printerFactory = {});
    ~Engine();
    Engine(const Engine&) = delete;
    Engine& operator=(const Engine&) = delete;

    /// Number of copies of the next run to the printer, 1 to 99; reset to 1 after every run, even a failed one.
    int CopiesToPrinter = 1;

    /// definition: the file's name, with or without a separator before it, matched without case ("\Lonrepa.rpt").
    /// title: the preview window's title, used unchanged; if empty, the definition's own title. A missing or invalid
    /// definition, an unknown field or table, a missing Print.mdb or a missing printer shows one message and returns
    /// false.
    bool run(const QString& definition, const QString& title, Destination destination);

    /// Prepares the report without a window or message. Throws store::Error, which names the file.
    std::shared_ptr<const Report> prepare(const QString& definition, const QString& title = {}) const;
    /// The report's pages as a PDF. Throws store::Error.
    QByteArray pdf(const QString& definition, const QString& title = {}) const;

    /// Shows a finished report or document in a window of its own.
    void show(std::shared_ptr<const Report> report);
    /// The open previews, oldest first.
    std::vector<PreviewWindow*> previews() const;
    void closePreviews();

    /// Sets what F1 does in a preview; without it F1 does nothing there.
    void setHelp(std::function<void()> help) { m_help = std::move(help); }

    /// Printer Setup of the menu: shows the system's print dialog; its settings last for the session. If no printer is
    /// installed, a warning says so.
    void setUpPrinter();
    /// The practice's name, as author of exported files; empty if there is none or Print.mdb can't be read.
    QString practice() const;
    /// The session's printer, for other printouts (graphs).
    QPrinter& printer();

private:
    screenkit::Desk& m_desk;
    std::filesystem::path m_programFolder;
    std::unique_ptr<PrinterSession> m_printing;
    std::vector<QPointer<PreviewWindow>> m_previews;
    std::function<void()> m_help;
};

} // namespace reports

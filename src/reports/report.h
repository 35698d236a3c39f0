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

/// Makes the session's printer; a test makes one that prints into a PDF file.
using PrinterFactory = std::function<std::unique_ptr<QPrinter>()>;

/// Runs report definitions (`*.rpt` in the program folder) against the rows of Print.mdb beside them.
///
/// A screen writes its rows with datastore::PrintFeed, then calls run(). The rows are read once, when the report is
/// run: a later feed never changes a preview that is open. Previews are windows of their own, several at a time; they
/// outlive the screen and end with the engine.
class Engine {
public:
    Engine(screenkit::Desk& desk, std::filesystem::path programFolder, PrinterFactory printerFactory = {});
    ~Engine();
    Engine(const Engine&) = delete;
    Engine& operator=(const Engine&) = delete;

    /// Copies of the next run that goes to the printer, 1 to 99; back to 1 after every run, also one that failed.
    int CopiesToPrinter = 1;

    /// definition: the file's name, with or without a separator before it, matched without case ("\Lonrepa.rpt").
    /// title: the preview window's title, letter for letter; empty: the definition's own title.
    /// A missing or broken definition, an unknown field or table, a missing Print.mdb and a missing printer each show
    /// one box and give false; the program goes on.
    bool run(const QString& definition, const QString& title, Destination destination);

    /// The report itself, without a window or a box. Throws store::Error, which names the file.
    std::shared_ptr<const Report> prepare(const QString& definition, const QString& title = {}) const;
    /// Its pages as a PDF. Throws store::Error.
    QByteArray pdf(const QString& definition, const QString& title = {}) const;

    /// The open previews, oldest first.
    std::vector<PreviewWindow*> previews() const;
    void closePreviews();

    /// What F1 does in a preview; by itself it does nothing there.
    void setHelp(std::function<void()> help) { m_help = std::move(help); }

    /// The menu's Printer Setup: the system's print dialog, whose choice lasts for the session. With no printer
    /// installed a warning box says so.
    void setUpPrinter();
    /// The practice, as files of all kinds name their author; empty if it has not said so or Print.mdb can't be read.
    QString practice() const;
    /// The session's printer, for what else prints (graphs).
    QPrinter& printer();

private:
    void show(std::shared_ptr<const Report> report);

    screenkit::Desk& m_desk;
    std::filesystem::path m_programFolder;
    std::unique_ptr<PrinterSession> m_printing;
    std::vector<QPointer<PreviewWindow>> m_previews;
    std::function<void()> m_help;
};

} // namespace reports

#pragma once

#include <QString>
#include <functional>
#include <memory>

class QPrinter;

namespace screenkit {
class Desk;
}

namespace reports {

struct Report;

/// The session's printer: chosen by Printer Setup or from a preview, then used for every printout.
class PrinterSession {
public:
    PrinterSession(screenkit::Desk& desk, std::function<std::unique_ptr<QPrinter>()> factory);
    ~PrinterSession();
    PrinterSession(const PrinterSession&) = delete;
    PrinterSession& operator=(const PrinterSession&) = delete;

    QPrinter& printer();

    /// True if a printer is installed. Otherwise a warning says so and names the alternatives.
    bool available();
    /// Shows the system's print dialog for the session's printer; false if cancelled or if there is no printer.
    bool choose();
    /// Prints on the session's printer without asking. False, after a message, on failure.
    bool print(const Report& report, int copies);
    /// Shows the print dialog, then prints with the settings chosen there.
    bool chooseAndPrint(const Report& report);

private:
    bool send(const Report& report);

    screenkit::Desk& m_desk;
    std::function<std::unique_ptr<QPrinter>()> m_factory;
    std::unique_ptr<QPrinter> m_printer;
};

} // namespace reports

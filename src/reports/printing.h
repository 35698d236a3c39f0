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

/// The session's printer: chosen once by Printer Setup or from a preview, used by every printout after that.
class PrinterSession {
public:
    PrinterSession(screenkit::Desk& desk, std::function<std::unique_ptr<QPrinter>()> factory);
    ~PrinterSession();
    PrinterSession(const PrinterSession&) = delete;
    PrinterSession& operator=(const PrinterSession&) = delete;

    QPrinter& printer();

    /// True if a printer is installed. If none is, a warning box says so, and what can still be done.
    bool available();
    /// The system's print dialog on the session's printer; false if it was cancelled or there is no printer.
    bool choose();
    /// Straight to the session's printer. False, with a box, if that could not be done.
    bool print(const Report& report, int copies);
    /// The print dialog first, then what was chosen there.
    bool chooseAndPrint(const Report& report);

private:
    bool send(const Report& report);

    screenkit::Desk& m_desk;
    std::function<std::unique_ptr<QPrinter>()> m_factory;
    std::unique_ptr<QPrinter> m_printer;
};

} // namespace reports

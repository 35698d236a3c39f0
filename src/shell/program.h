#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "assessment/assessment.h"
#include "datastore/paths.h"

namespace reports {
class Engine;
}
namespace screenkit {
class Desk;
}

namespace shell {

class Instance;
class MDIForm1;

/// One run of the program: the record, the files and the main window, brought up in their order.
class Program {
public:
    /// programFolder: where the databases and report definitions lie. instanceName: see Instance.
    Program(screenkit::Desk& desk, std::filesystem::path programFolder, std::string instanceName = "marlowbeck");
    ~Program();

    /// The whole start: refuses a second instance before any file is touched, shows the window, finds, creates or
    /// brings up to date the files, blanks the record. False if the program must end; the user has been told why.
    bool MDIForm_Load();
    /// True if it was refused because another instance runs: that is no failure.
    bool refused() const { return m_refused; }

    MDIForm1& window() { return *m_window; }
    assessment::Assessment& record() { return m_record; }
    const datastore::Paths& paths() const { return m_paths; }
    reports::Engine& reports() { return *m_reports; }

private:
    void showWindow();
    void checkArithmetic();

    screenkit::Desk& m_desk;
    std::filesystem::path m_programFolder;
    std::string m_instanceName;
    std::unique_ptr<Instance> m_instance;
    bool m_refused = false;
    assessment::Assessment m_record;
    datastore::Paths m_paths;
    std::unique_ptr<reports::Engine> m_reports;
    std::unique_ptr<MDIForm1> m_window;
};

/// Product, maker's line and version, as the main window's caption and the about box show them.
std::string programCaption();

} // namespace shell

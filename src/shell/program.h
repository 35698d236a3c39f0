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

/// One run of the program: creates the record, the files and the main window in this order.
class Program {
public:
    /// programFolder: the folder of the databases and report definitions. instanceName: see Instance.
    Program(screenkit::Desk& desk, std::filesystem::path programFolder, std::string instanceName = "marlowbeck");
    ~Program();

    /// The whole start-up: refuses a second instance before touching any file, shows the window, finds, creates or
    /// updates the files, and blanks the record. False if the program must end; the user has been told why.
    bool MDIForm_Load();
    /// True if the start was refused because another instance runs; this is no failure.
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

/// Product name, description and version, as shown in the main window's caption and the about box.
std::string programCaption();

} // namespace shell

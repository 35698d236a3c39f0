#include "shell/placing.h"
#include "shell/running_program.h"

#include <QProcess>
#include <QScreen>
#include <csignal>
#include <sys/wait.h>

#include "reports/report.h"
#include "shell/instance.h"

namespace {

using shelltest::RunningProgram;
namespace fs = std::filesystem;

TEST(Start, FirstRunMakesTheClientFileAndStandsIdle) {
    RunningProgram run;
    EXPECT_TRUE(fs::exists(run.folder / "Data.Mdb"));
    EXPECT_EQ(storetest::bytesOf(run.folder / "DataPath.txt"), "\"" + (run.folder / "Data.Mdb").string() + "\"\r\n");
    EXPECT_TRUE(run.window().isVisible());
    EXPECT_TRUE(run.window().screens().isEmpty());
    EXPECT_EQ(run.record().ClientOnFile, 0);
    EXPECT_EQ(run.record().changed.InflationChanged, 0);
    EXPECT_EQ(run.record().inflation.PresCostInflation, 0);
    EXPECT_GT(run.record().funds.ESPremCom, 0); // read once, at the start
}

TEST(Start, SecondInstanceIsRefusedBeforeAnyFileIsTouched) {
    RunningProgram first;
    RunningProgram second(false);
    const auto box = second.desk.told([&] { EXPECT_FALSE(second.start()); });
    EXPECT_TRUE(second.program.refused());
    EXPECT_EQ(box.title, "Marlowbeck Currently Loaded!!!!!");
    EXPECT_FALSE(fs::exists(second.folder / "DataPath.txt"));
    EXPECT_FALSE(fs::exists(second.folder / "Data.Mdb"));
}

TEST(Start, WindowHasItsCaptionSizeAndPlace) {
    RunningProgram run;
    EXPECT_TRUE(run.window().windowTitle().startsWith("Marlowbeck"));
    EXPECT_TRUE(run.window().windowTitle().endsWith(" Version : 1.00.000"));
    EXPECT_EQ(QRect(run.window().pos(), run.window().size()),
              shell::startGeometry(QGuiApplication::primaryScreen()->availableGeometry()));
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

using shelltest::ProgramFolder;
using storetest::put;

/// Damage to a program folder that was started once, and the file that the message must name.
struct Fault {
    const char* file;
    std::function<void(const ProgramFolder&, std::unique_ptr<store::Database>& other)> make;
    const char* number;
};

const std::vector<Fault> faults{
    {"Data.Mdb", [](const auto& folder, auto&) { put(folder / "Data.Mdb", "Dear Sir, thank you for your letter."); },
     "3343"},
    {"Data.Mdb", [](const auto& folder, auto&) { put(folder / "Data.Mdb", ""); }, "3343"},
    {"share/Data.Mdb", // a network drive that is not mounted
     [](const auto& folder, auto&) { put(folder / "DataPath.txt", (folder / "share/Data.Mdb").string()); }, "3044"},
    {"Default.Mdb", [](const auto& folder, auto&) { fs::remove(folder / "Default.Mdb"); }, "3024"},
    {"Print.mdb", // before the first client is saved
     [](const auto& folder, auto&) {
         fs::remove(folder / "Print.mdb");
         fs::remove(folder / "Data.Mdb");
     },
     "3024"},
    {"Data.Mdb", // another program is using it
     [](const auto& folder, auto& other) {
         other = std::make_unique<store::Database>(folder / "Data.Mdb");
         other->execute("BEGIN EXCLUSIVE");
     },
     "3356"},
};

TEST(Start, EndsWithABoxThatNamesTheFileAndTheError) {
    const storetest::Folder earlier;
    fs::copy_file(RunningProgram().folder / "Data.Mdb", earlier / "Data.Mdb");
    for (const Fault& fault : faults) {
        SCOPED_TRACE(testing::Message() << fault.file << ' ' << fault.number);
        RunningProgram run(false);
        fs::copy_file(earlier / "Data.Mdb", run.folder / "Data.Mdb");
        std::unique_ptr<store::Database> other;
        fault.make(run.folder, other);
        const std::string before = storetest::bytesOf(run.folder / "Data.Mdb");
        const auto box = run.desk.told([&] { EXPECT_FALSE(run.start()); });
        EXPECT_FALSE(run.program.refused());
        EXPECT_EQ(box.title, "Marlowbeck");
        EXPECT_EQ(box.style, screenkit::BoxStyle::critical);
        EXPECT_TRUE(box.text.contains(fault.file)) << box.text.toStdString();
        EXPECT_TRUE(box.text.endsWith(QString("(%1)").arg(fault.number))) << box.text.toStdString();
        EXPECT_TRUE(before.empty() || storetest::bytesOf(run.folder / "Data.Mdb") == before);
        EXPECT_FALSE(fs::exists(run.folder / "share"));
    }
}

void eachTable(const fs::path& file, const std::function<void(store::Database&, const std::string& table)>& action) {
    store::Database database(file);
    std::vector<std::string> names;
    store::Statement tables = database.prepare("SELECT name FROM sqlite_master WHERE type='table'");
    while (tables.step())
        names.push_back(tables.text(0));
    for (const std::string& name : names)
        action(database, name);
}

TEST(Start, YesterdaysProgramFolderRunsEveryReportOfToday) {
    RunningProgram run(false);
    for (const char* file : {"Print.mdb", "Default.Mdb"})
        eachTable(run.folder / file, [](store::Database& database, const std::string& table) {
            const auto columns = database.columns(table);
            if (columns.size() > 1)
                database.execute("ALTER TABLE [" + table + "] DROP COLUMN [" + columns[columns.size() / 2].name + "]");
        });
    ASSERT_TRUE(run.start());
    eachTable(run.folder / "Print.mdb", [](store::Database& database, const std::string& table) {
        database.execute("INSERT INTO [" + table + "] DEFAULT VALUES");
    });
    int reports = 0;
    for (const auto& entry : fs::directory_iterator(run.folder.path())) {
        if (entry.path().extension() != ".rpt") continue;
        const std::string definition = storetest::bytesOf(entry.path());
        if (definition.find("<html") == std::string::npos) continue; // included by other definitions
        EXPECT_NO_THROW(run.program.reports().pdf(QString::fromStdString(entry.path().filename().string()), {}))
            << entry.path();
        ++reports;
    }
    EXPECT_GT(reports, 10);
    run.menu("mnuPAYE"); // and the settings are complete
    EXPECT_TRUE(run.isOpen("frmMonthly"));
}

TEST(Start, ACopyOfTheProgramFolderSaysWhoseClientsItOpens) {
    const ProgramFolder original;
    RunningProgram copy(false);
    fs::copy_file(RunningProgram().folder / "Data.Mdb", original / "Data.Mdb");
    fs::copy_file(original / "Data.Mdb", copy.folder / "Data.Mdb");
    put(copy.folder / "DataPath.txt", "\"" + (original / "Data.Mdb").string() + "\"\r\n");
    const auto box = copy.desk.told([&] { EXPECT_TRUE(copy.start()); });
    for (const auto& file : {original / "Data.Mdb", copy.folder / "Data.Mdb"})
        EXPECT_TRUE(box.text.contains(QString::fromStdString(file.string())));
}

struct Ended {
    int code;
    QString out, errors;
};

/// Runs the program itself without a display.
Ended runBare(const QStringList& words, const QString& display = {}) {
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(name);
    if (!display.isEmpty()) environment.insert("DISPLAY", display);
    program.setProcessEnvironment(environment);
    program.start(MARLOWBECK_PROGRAM_DIR "/marlowbeck", words);
    EXPECT_TRUE(program.waitForFinished(30000));
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    return {program.exitCode(), program.readAllStandardOutput(), program.readAllStandardError()};
}

TEST(Start, WithoutADisplaySaysSoInOneLineAndAnswersWhatNeedsNone) {
    for (const char* display : {"", ":4711"}) {
        const Ended ended = runBare({}, display);
        EXPECT_EQ(ended.code, 1) << display;
        EXPECT_EQ(ended.errors.count('\n'), 1) << ended.errors.toStdString();
        EXPECT_TRUE(ended.errors.contains("display"));
    }
    EXPECT_EQ(runBare({"--version"}).out.trimmed().toStdString(), shell::programCaption());
    EXPECT_TRUE(runBare({"--help"}).out.startsWith("Usage: marlowbeck"));
    EXPECT_EQ(runBare({"--help"}).code, 0);
}

/// Another process of this user that is the running instance until it is killed.
class OtherProcess {
public:
    explicit OtherProcess(const std::string& name) {
        int ready[2];
        EXPECT_EQ(::pipe(ready), 0);
        m_process = ::fork();
        if (m_process == 0) {
            const shell::Instance held(name);
            const char answer = held.isFirst() ? '1' : '0';
            if (::write(ready[1], &answer, 1) != 1) ::_exit(1);
            for (;;)
                ::pause();
        }
        char answer = 0;
        EXPECT_EQ(::read(ready[0], &answer, 1), 1);
        EXPECT_EQ(answer, '1');
        ::close(ready[0]);
        ::close(ready[1]);
    }
    void kill() {
        ::kill(m_process, SIGKILL);
        ::waitpid(m_process, nullptr, 0);
    }

private:
    pid_t m_process;
};

TEST(Instance, IsHeldByOneProcessUntilItDiesHoweverItDies) {
    const std::string name = "marlowbeck-instance-" + std::to_string(::getpid());
    OtherProcess first(name);
    for (int attempt = 1; attempt <= 12; ++attempt) // refused starts are never accepted
        EXPECT_FALSE(shell::Instance(name).isFirst()) << attempt;
    EXPECT_TRUE(shell::Instance(name + "-else").isFirst());
    first.kill();
    EXPECT_TRUE(shell::Instance(name).isFirst());
}

} // namespace

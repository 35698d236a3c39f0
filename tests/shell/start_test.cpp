#include "shell/placing.h"
#include "shell/running_program.h"

#include <QProcess>
#include <QScreen>
#include <csignal>
#include <gtest/gtest.h>
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
    second.desk.expect(screenkit::Answer::ok);
    EXPECT_FALSE(second.start());
    EXPECT_TRUE(second.program.refused());
    EXPECT_EQ(second.desk.last().title, "Marlowbeck Currently Loaded!!!!!");
    EXPECT_FALSE(fs::exists(second.folder / "DataPath.txt"));
    EXPECT_FALSE(fs::exists(second.folder / "Data.Mdb"));
}

TEST(Start, MissingSettingsEndItWithABoxThatNamesTheFile) {
    RunningProgram run(false);
    fs::remove(run.folder / "Default.Mdb");
    run.desk.expect(screenkit::Answer::ok);
    EXPECT_FALSE(run.start());
    EXPECT_EQ(run.desk.last().title, "Marlowbeck");
    EXPECT_TRUE(run.desk.last().text.contains("Default.Mdb"));
    EXPECT_TRUE(run.desk.last().text.contains("3024"));
}

TEST(Start, WindowHasItsCaptionSizeAndPlace) {
    RunningProgram run;
    EXPECT_TRUE(run.window().windowTitle().startsWith("Marlowbeck"));
    EXPECT_TRUE(run.window().windowTitle().endsWith(" Version : 1.00.000"));
    EXPECT_EQ(QRect(run.window().pos(), run.window().size()),
              shell::startGeometry(QGuiApplication::primaryScreen()->availableGeometry()));
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

struct Fault {
    const char* what;
    std::function<void(const shelltest::ProgramFolder&)> make;
    const char* file;
    const char* number;
};

const std::vector<Fault> faults{
    {"client file is a letter",
     [](const auto& folder) { storetest::put(folder / "Data.Mdb", "Dear Sir, thank you for your letter of today."); },
     "Data.Mdb", "3343"},
    {"client file is empty", [](const auto& folder) { storetest::put(folder / "Data.Mdb", ""); }, "Data.Mdb", "3343"},
    {"share is not mounted",
     [](const auto& folder) {
         storetest::put(folder / "DataPath.txt", "\"" + (folder / "share/clients/Data.Mdb").string() + "\"\r\n");
     },
     "share/clients/Data.Mdb", "3044"},
    {"settings are missing", [](const auto& folder) { fs::remove(folder / "Default.Mdb"); }, "Default.Mdb", "3024"},
    {"report rows are missing", [](const auto& folder) { fs::remove(folder / "Print.mdb"); }, "Print.mdb", "3024"},
};

TEST(Start, EndsWithABoxThatNamesTheFileAndTheError) {
    for (const Fault& fault : faults) {
        RunningProgram run(false);
        fault.make(run.folder);
        const std::string before = storetest::bytesOf(run.folder / "Data.Mdb");
        run.desk.expect(screenkit::Answer::ok);
        EXPECT_FALSE(run.start()) << fault.what;
        EXPECT_FALSE(run.program.refused());
        EXPECT_EQ(run.desk.last().title, "Marlowbeck");
        EXPECT_EQ(run.desk.last().style, screenkit::BoxStyle::critical);
        EXPECT_TRUE(run.desk.last().text.contains(fault.file)) << run.desk.last().text.toStdString();
        EXPECT_TRUE(run.desk.last().text.endsWith(QString("(%1)").arg(fault.number)))
            << run.desk.last().text.toStdString();
        if (!before.empty()) {
            EXPECT_EQ(storetest::bytesOf(run.folder / "Data.Mdb"), before) << fault.what;
        }
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
        if (definition.find("<html") == std::string::npos) continue; // a piece of others
        EXPECT_NO_THROW(run.program.reports().pdf(QString::fromStdString(entry.path().filename().string()), {}))
            << entry.path();
        ++reports;
    }
    EXPECT_GT(reports, 10);
    run.menu("mnuPAYE"); // and the settings are whole
    EXPECT_TRUE(run.isOpen("frmMonthly"));
}

TEST(Start, ACopyOfTheProgramFolderSaysWhoseClientsItOpens) {
    const shelltest::ProgramFolder original;
    RunningProgram copy(false);
    {
        RunningProgram earlier;
        for (const auto& file : {original / "Data.Mdb", copy.folder / "Data.Mdb"})
            fs::copy_file(earlier.folder / "Data.Mdb", file);
    }
    storetest::put(copy.folder / "DataPath.txt", "\"" + (original / "Data.Mdb").string() + "\"\r\n");
    copy.desk.expect(screenkit::Answer::ok);
    EXPECT_TRUE(copy.start());
    for (const auto& file : {original / "Data.Mdb", copy.folder / "Data.Mdb"})
        EXPECT_TRUE(copy.desk.last().text.contains(QString::fromStdString(file.string())));
}

TEST(Start, AClientFileLockedByAnotherProgramIsNamedAndLeftAlone) {
    RunningProgram run(false);
    {
        RunningProgram earlier(false);
        earlier.start();
        fs::copy_file(earlier.folder / "Data.Mdb", run.folder / "Data.Mdb");
    }
    store::Database other(run.folder / "Data.Mdb");
    other.execute("BEGIN EXCLUSIVE");
    run.desk.expect(screenkit::Answer::ok);
    EXPECT_FALSE(run.start());
    EXPECT_TRUE(run.desk.last().text.contains("Data.Mdb"));
    EXPECT_TRUE(run.desk.last().text.endsWith("(3356)")) << run.desk.last().text.toStdString();
    other.execute("ROLLBACK");
}

struct Ended {
    int code;
    QString out, errors;
};

/// Runs the program itself with no display to show a window on.
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

/// Another process of this user that holds the right to run, until it is killed.
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
    for (int attempt = 1; attempt <= 12; ++attempt) // nobody ever answers the refused ones
        EXPECT_FALSE(shell::Instance(name).isFirst()) << attempt;
    EXPECT_TRUE(shell::Instance(name + "-else").isFirst());
    first.kill();
    EXPECT_TRUE(shell::Instance(name).isFirst());
}

} // namespace

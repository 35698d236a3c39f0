#include "shell/placing.h"
#include "shell/running_program.h"

#include <QProcess>
#include <QScreen>

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
    EXPECT_TRUE(run.window().windowTitle().endsWith(" Version : 1.00.000"));
    EXPECT_EQ(QRect(run.window().pos(), run.window().size()),
              shell::startGeometry(QGuiApplication::primaryScreen()->availableGeometry()));
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_TRUE(run.window().screens().isEmpty());
    EXPECT_EQ(run.record().ClientOnFile, 0);
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

using shelltest::ProgramFolder;
using storetest::put;

TEST(Start, EndsWithABoxThatNamesTheFileAndTheError) {
    RunningProgram run(false);
    const std::string letter = "Dear Sir, thank you for your letter.";
    put(run.folder / "Data.Mdb", letter);
    const auto box = run.desk.told([&] { EXPECT_FALSE(run.start()); });
    EXPECT_FALSE(run.program.refused());
    EXPECT_EQ(box.title, "Marlowbeck");
    EXPECT_EQ(box.style, screenkit::BoxStyle::critical);
    EXPECT_TRUE(box.text.contains("Data.Mdb")) << box.text.toStdString();
    EXPECT_TRUE(box.text.endsWith("(3343)")) << box.text.toStdString();
    EXPECT_EQ(storetest::bytesOf(run.folder / "Data.Mdb"), letter);
}

TEST(Start, YesterdaysProgramFolderRunsEveryReportOfToday) {
    RunningProgram run(false);
    for (const char* file : {"Print.mdb", "Default.Mdb"}) {
        store::Database database(run.folder / file);
        for (const std::string& table : storetest::tablesOf(database)) {
            const auto columns = database.columns(table);
            if (columns.size() > 1)
                database.execute("ALTER TABLE [" + table + "] DROP COLUMN [" + columns[columns.size() / 2].name + "]");
        }
    }
    ASSERT_TRUE(run.start());
    store::Database print(run.folder / "Print.mdb");
    for (const std::string& table : storetest::tablesOf(print))
        print.execute("INSERT INTO [" + table + "] DEFAULT VALUES");
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

/// Runs the program itself without a display, to its end.
void runBare(QProcess& program, const QStringList& words, const QString& display = {}) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(name);
    if (!display.isEmpty()) environment.insert("DISPLAY", display);
    program.setProcessEnvironment(environment);
    program.start(MARLOWBECK_PROGRAM_DIR "/marlowbeck", words);
    EXPECT_TRUE(program.waitForFinished(30000));
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
}

TEST(Start, WithoutADisplaySaysSoInOneLineAndAnswersWhatNeedsNone) {
    QProcess program;
    for (const char* display : {"", ":4711"}) {
        runBare(program, {}, display);
        EXPECT_EQ(program.exitCode(), 1) << display;
        const QByteArray errors = program.readAllStandardError();
        EXPECT_EQ(errors.count('\n'), 1) << errors.toStdString();
        EXPECT_TRUE(errors.contains("display"));
    }
    runBare(program, {"--version"});
    EXPECT_EQ(program.readAllStandardOutput().trimmed().toStdString(), shell::programCaption());
    runBare(program, {"--help"});
    EXPECT_EQ(program.exitCode(), 0);
    EXPECT_TRUE(program.readAllStandardOutput().startsWith("Usage: marlowbeck"));
    // Client files need no display either; here there are no clients, and the second order is incomplete.
    const std::pair<QStringList, int> orders[] = {{{"--client-file", "7", "--to", "/tmp/none.pdf"}, 1},
                                                  {{"--client-file", "7"}, 2}};
    for (const auto& [words, code] : orders) {
        runBare(program, words);
        EXPECT_EQ(program.exitCode(), code);
        const QByteArray errors = program.readAllStandardError();
        EXPECT_EQ(errors.count('\n'), 1) << errors.toStdString();
        EXPECT_TRUE(errors.startsWith("marlowbeck: ")) << errors.toStdString();
    }
}

TEST(Instance, IsHeldByOneProcessUntilItDiesHoweverItDies) {
    const std::string name = "marlowbeck-instance-" + std::to_string(::getpid());
    const auto holdsIt = [&](auto ready) {
        const shell::Instance held(name);
        if (held.isFirst()) ready();
        ::pause();
    };
    storetest::runAndKill(holdsIt, [&] {
        for (int attempt = 1; attempt <= 12; ++attempt) // refused starts are never accepted
            EXPECT_FALSE(shell::Instance(name).isFirst()) << attempt;
        EXPECT_TRUE(shell::Instance(name + "-else").isFirst());
    });
    EXPECT_TRUE(shell::Instance(name).isFirst());
}

} // namespace

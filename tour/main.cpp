#include <unistd.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <clocale>
#include <csignal>
#include <cstdio>
#include <stdexcept>

#include "datastore/programfolder.h"
#include "screenkit/look.h"
#include "shell/mainwindow.h"
#include "tour/journal.h"
#include "tour/steps.h"

/// The guided tour: uses the program's real windows for a whole case, as a user would, and compares every figure with
/// its expected value. At the first error it prints the reason and exits with 1.
namespace {

using tour::Desk;
using tour::Hands;

constexpr unsigned longestTour = 300; // seconds before a hanging tour is ended
const char* const screenFile = "screen.json";
const char* const dark = "dark";
const char* const large = "large";

void ended(int) {
    constexpr char why[] = "the tour hangs: it has taken longer than it may\n";
    [[maybe_unused]] const auto written = ::write(STDERR_FILENO, why, sizeof why - 1);
    ::_exit(EXIT_FAILURE);
}

/// The offscreen platform warns of each window manager feature that it lacks; these warnings are suppressed.
void hidePlatformWarnings(QtMsgType, const QMessageLogContext&, const QString& message) {
    if (!message.startsWith("This plugin does not support")) std::fprintf(stderr, "%s\n", message.toUtf8().constData());
}

/// Sets up an offscreen screen like an adviser's.
void useOffscreen(double scale) {
    QFile file(screenFile);
    tour::check(file.open(QIODevice::WriteOnly), "the folder cannot be written");
    file.write(QString(R"({"screens": [{"name": "tour", "width": %1, "height": %2}]})")
                   .arg(1280 * scale)
                   .arg(800 * scale)
                   .toUtf8());
    qputenv("QT_QPA_PLATFORM", QByteArray("offscreen:configfile=") + screenFile);
}

void useDarkPalette() {
    QPalette palette(QColor(53, 53, 53), QColor(42, 42, 42));
    palette.setColor(QPalette::Base, QColor(35, 35, 35));
    palette.setColor(QPalette::AlternateBase, QColor(45, 45, 45));
    palette.setColor(QPalette::Highlight, QColor(42, 130, 218));
    QApplication::setPalette(palette);
}

/// One run of the program, from start to end.
template <class Steps>
void session(Steps steps) {
    Desk desk;
    shell::Program program(desk, datastore::programFolder(std::filesystem::read_symlink("/proc/self/exe")),
                           "marlowbeck-tour-" + std::to_string(::getpid()));
    const bool started = program.MDIForm_Load();
    desk.checkQuiet();
    tour::check(started, "the program does not start");
    desk.setWindow(&program.window());
    Hands hands(desk, program);
    steps(hands);
    tour::exitProgram(hands);
}

void wholeCase() {
    tour::Seen seen;
    session([&](Hands& hands) {
        tour::startAtEmptyFolder(hands);
        tour::recordClient(hands);
        tour::setPracticeLines(hands);
        tour::save(hands);
        tour::solveLoan(hands);
        tour::showCharges(hands);
        tour::showTables(hands);
        tour::showGraph(hands);
        tour::exportLoanReport(hands);
        tour::exportPersonalDetails(hands);
        tour::recordRetirement(hands);
        tour::showRetirementYears(hands);
        tour::exportRetirementReports(hands);
        tour::needsOnDeath(hands);
        tour::needsOnDisability(hands);
        tour::planEducation(hands);
        tour::seeInflation(hands);
        tour::lastCapital(hands);
        tour::quote(hands);
        tour::findPremium(hands);
        tour::compareOffers(hands);
        tour::investOffshore(hands);
        tour::convertRate(hands);
        tour::balanceADeposit(hands);
        tour::measureReturns(hands);
        tour::drawFromShares(hands);
        tour::bustBond(hands);
        tour::analyseBond(hands);
        tour::consolidateDebts(hands);
        tour::taxAMonth(hands);
        tour::taxAYear(hands);
        tour::taxLumpSums(hands);
        tour::estimateEstate(hands);
        tour::seeFundingAdvantage(hands);
        tour::taxTheYearsGains(hands);
        tour::claimTravel(hands);
        tour::makeClientFile(hands);
        tour::save(hands);
        seen = tour::look(hands);
    });
    session([&](Hands& hands) {
        tour::findClient(hands);
        tour::compare(hands, seen);
        tour::followClientsUp(hands);
        tour::drawDown(hands);
        tour::careForClients(hands);
    });
}

/// The same client with other settings: "dark" or "large".
void anotherLook(const QString& name) {
    session([&](Hands& hands) {
        tour::findClient(hands);
        tour::picture(&hands.window(), "client-" + name);
        tour::showLoan(hands, "loan-" + name);
        tour::showNeeds(hands, name);
        tour::showDebts(hands, name);
    });
}

/// Scale and palette are fixed when a process starts, so each further setting needs its own process.
void startAgainAs(const QString& name) {
    tour::say("The same under another look: " + name + ".");
    QProcess again;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    if (name == large) environment.insert("QT_SCALE_FACTOR", "2");
    again.setProcessEnvironment(environment);
    again.setProcessChannelMode(QProcess::ForwardedChannels);
    again.start(QApplication::applicationFilePath(), {name});
    tour::check(again.waitForFinished(-1) && again.exitStatus() == QProcess::NormalExit && again.exitCode() == 0,
                "the tour under the look " + name + " failed");
}

} // namespace

int main(int argc, char** argv) try {
    std::signal(SIGALRM, ended);
    ::alarm(longestTour);
    qInstallMessageHandler(hidePlatformWarnings);
    const QString look = argc > 1 ? argv[1] : "";
    useOffscreen(look == large ? 2 : 1);
    QApplication application(argc, argv);
    QFile::remove(screenFile);
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setApplicationName("marlowbeck");
    QApplication::setQuitOnLastWindowClosed(false); // the program starts twice in one tour
    screenkit::look::apply(application);
    if (!look.isEmpty()) {
        if (look == dark) useDarkPalette();
        anotherLook(look);
        return EXIT_SUCCESS;
    }
    QElapsedTimer clock;
    clock.start();
    wholeCase();
    startAgainAs(dark);
    startAgainAs(large);
    tour::say(QString("The tour is done: every figure is right. It took %1 s.")
                  .arg(static_cast<double>(clock.elapsed()) / 1000, 0, 'f', 1));
    return EXIT_SUCCESS;
} catch (const std::exception& error) {
    std::fprintf(stderr, "the tour ends here: %s\n", error.what());
    return EXIT_FAILURE;
}

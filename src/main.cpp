#include <QApplication>
#include <QTimer>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string_view>

#include "datastore/programfolder.h"
#include "screenkit/look.h"
#include "screenkit/realdesk.h"
#include "screenkit/trouble.h"
#include "shell/clientfiles.h"
#include "shell/mainwindow.h"
#include "shell/program.h"

namespace {

constexpr const char* help = "Usage: marlowbeck [--help | --version]\n"
                             "       marlowbeck --client-file KEY --to FILE.pdf\n"
                             "       marlowbeck --all --to FOLDER\n"
                             "Workstation for financial advisers. It needs a desktop to show its window on; its files "
                             "are in its program folder,\n"
                             "as the guide (F1) explains.\n";

/// Questions that need no window are answered without one.
bool answered(int argc, char** argv) {
    for (int i = 1; i < argc; ++i) {
        const std::string_view word = argv[i];
        if (word == "--help" || word == "-h") return std::fputs(help, stdout) >= 0;
        if (word == "--version" || word == "-v") return std::puts(shell::programCaption().c_str()) >= 0;
    }
    return false;
}

/// Without a display the toolkit would print a page of advice on its plug-ins and abort; this prints one line instead.
void endWithoutDisplay(QtMsgType type, const QMessageLogContext&, const QString& text) {
    if (type != QtFatalMsg) return;
    if (text.contains("platform plugin"))
        std::fputs("marlowbeck: there is no display here to show its window on; start it from a desktop session.\n",
                   stderr);
    else
        std::fprintf(stderr, "marlowbeck: %s\n", text.toUtf8().constData());
    std::_Exit(EXIT_FAILURE);
}

void setUp(QApplication& application) {
    std::setlocale(LC_NUMERIC, "C"); // the toolkit has set the system's locale; figures here always use the same form
    QApplication::setApplicationName("marlowbeck");
    QApplication::setDesktopFileName("marlowbeck");
    screenkit::look::apply(application);
}

/// Makes client files and ends: 0 if all are written, 1 if any failed.
int makeClientFiles(const shell::ClientFileOrder& order, int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");   // no display is needed
    qInstallMessageHandler(endWithoutDisplay); // a server's night run needs none of the toolkit's advice on sessions
    QApplication application(argc, argv);
    setUp(application);
    bool failed = false;
    const auto tell = [&failed](const std::string& line) {
        failed = true;
        std::fprintf(stderr, "marlowbeck: %s\n", line.c_str());
    };
    try {
        const auto folder = datastore::programFolder(std::filesystem::read_symlink("/proc/self/exe"));
        shell::writeClientFiles(order, folder, screenkit::RealDesk().today(), tell);
    } catch (const std::exception& error) {
        tell(error.what());
    }
    return failed ? EXIT_FAILURE : EXIT_SUCCESS;
}

} // namespace

int main(int argc, char** argv) {
    if (answered(argc, argv)) return EXIT_SUCCESS;
    constexpr int wrongWords = 2;
    try {
        if (const auto order = shell::clientFileOrder({argv + 1, argv + argc}))
            return makeClientFiles(*order, argc, argv);
    } catch (const std::invalid_argument& fault) {
        std::fprintf(stderr, "marlowbeck: %s\n", fault.what());
        return wrongWords;
    }
    const QtMessageHandler usual = qInstallMessageHandler(endWithoutDisplay);
    QApplication application(argc, argv);
    qInstallMessageHandler(usual);
    setUp(application);

    screenkit::RealDesk desk;
    std::filesystem::path folder;
    const bool found = screenkit::guarded(desk, QObject::tr("start"), [&] {
        folder = datastore::programFolder(std::filesystem::read_symlink("/proc/self/exe"));
    });
    if (!found) return EXIT_FAILURE;

    shell::Program program(desk, folder);
    QTimer::singleShot(0, &application, [&] {
        const bool started = program.MDIForm_Load();
        if (started) {
            desk.setWindow(&program.window());
            return;
        }
        QApplication::exit(program.refused() ? EXIT_SUCCESS : EXIT_FAILURE);
    });
    return QApplication::exec();
}

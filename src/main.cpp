#include <QApplication>
#include <QTimer>
#include <clocale>
#include <filesystem>

#include "datastore/programfolder.h"
#include "screenkit/look.h"
#include "screenkit/realdesk.h"
#include "screenkit/trouble.h"
#include "shell/mainwindow.h"
#include "shell/program.h"

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C"); // the toolkit has taken the system's; figures here have one form
    QApplication::setApplicationName("marlowbeck");
    QApplication::setDesktopFileName("marlowbeck");
    screenkit::look::apply(application);

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

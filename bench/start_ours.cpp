// The program's own start, which ends once the window is painted and the files are checked. It is a separate program,
// so that the shipped one needs no switch for it.
#include "painted.h"

#include <QApplication>
#include <QTimer>
#include <clocale>
#include <cstdlib>
#include <filesystem>

#include "screenkit/look.h"
#include "screenkit/realdesk.h"
#include "shell/mainwindow.h"
#include "shell/program.h"

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setApplicationName("marlowbeck");
    QApplication::setDesktopFileName("marlowbeck");
    screenkit::look::apply(application);
    screenkit::RealDesk desk;
    shell::Program program(desk, std::filesystem::read_symlink("/proc/self/exe").parent_path(), "marlowbeck-bench");
    bench::Painted painted;
    QTimer::singleShot(0, &application, [&] {
        if (!program.MDIForm_Load()) std::_Exit(EXIT_FAILURE);
        painted.wait();
        bench::reportMemoryAndExit();
    });
    return QApplication::exec();
}

// The floor of a start: an empty window with an MDI area and a menu, using Qt alone.
#include "painted.h"

#include <QApplication>
#include <QMainWindow>
#include <QMdiArea>
#include <QMenuBar>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QMainWindow window;
    window.setCentralWidget(new QMdiArea);
    window.menuBar()->addMenu("File")->addAction("Exit");
    window.resize(947, 692);
    bench::Painted painted;
    window.show();
    painted.wait();
    bench::reportMemoryAndExit();
}

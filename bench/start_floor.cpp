// The least that could be called this program: an empty window with an MDI area and a menu, on the toolkit alone.
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
    bench::tellAndLeave();
}

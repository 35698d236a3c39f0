#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>
#include <clocale>
#include <gtest/gtest.h>

#include "screenkit/look.h"

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const QTemporaryDir settings; // what a test lets the program remember is not the user's
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
    screenkit::look::apply(application); // sizes and colours as the user has them, whichever test comes first
    std::setlocale(LC_NUMERIC, "C");
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>
#include <clocale>
#include <gtest/gtest.h>

#include "screenkit/look.h"

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const QTemporaryDir settings; // keeps the tests away from the user's own settings
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
    screenkit::look::apply(application); // the user's sizes and colours, whichever test runs first
    std::setlocale(LC_NUMERIC, "C");
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}

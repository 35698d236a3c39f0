#pragma once

#include <QStringList>

#include "datastore/paths.h"
#include "reports/report.h"
#include "screenkit/desk.h"
#include "screenkit/workplace.h"

namespace screenkit {

/// A main window that only records what screens ask of it.
class RecordingShell : public Shell {
public:
    void open(const QString& screen) override { opened << screen; }
    QWidget* screen(const QString&) override { return nullptr; }
    bool exists(const QString&) override { return false; }
    void refillScreens() override {}
    void showClientName() override { ++namesShown; }
    void announce(const QString& said) override { announced << said; }
    void enableToolbar(bool on) override { toolbar = on; }
    bool Save() override { return false; }
    bool openClient(double) override { return false; }
    void CLEARLOAD() override {}
    void useClientDb(const std::filesystem::path&) override {}

    QStringList opened;
    QStringList announced;
    int namesShown = 0;
    bool toolbar = true;
};

/// Everything that a single screen needs in a test.
struct Workbench {
    explicit Workbench(Desk& desk) : reports(desk, {}), workplace{record, paths, desk, reports, shell} {}

    assessment::Assessment record;
    datastore::Paths paths;
    RecordingShell shell;
    reports::Engine reports;
    Workplace workplace;
};

} // namespace screenkit

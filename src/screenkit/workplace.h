#pragma once

#include <QString>
#include <filesystem>

#include "assessment/assessment.h"
#include "screenkit/lent.h"

class QWidget;

namespace datastore {
struct Paths;
}
namespace reports {
class Engine;
}

namespace screenkit {

class Desk;

/// What a screen can ask of the main window.
class Shell {
public:
    virtual ~Shell() = default;
    /// Opens a screen by name at the top left, or brings an open one to the front.
    virtual void open(const QString& screen) = 0;
    /// The screen if it is open, perhaps behind others.
    virtual QWidget* screen(const QString& name) = 0;
    /// True if a screen of this name exists.
    virtual bool exists(const QString& screen) = 0;
    /// Fills every open screen from the record again.
    virtual void refillScreens() = 0;
    /// Shows the client's display name in the status bar.
    virtual void showClientName() = 0;
    /// Has a screen reader say this once.
    virtual void announce(const QString& said) = 0;
    /// Enables or disables all toolbar buttons; menus stay enabled.
    virtual void enableToolbar(bool on) = 0;
    /// Saves the client to the file; if a new client was asked for, then blanks the record. On failure
    /// tells the user and returns false.
    virtual bool Save() = 0;
    /// Loads the client of this key in place of the current one and shows it; asks about unsaved changes first. False
    /// if the user cancelled or was told of a failure.
    virtual bool openClient(double key) = 0;
    /// Closes the client's screens, so that they fill themselves when opened again.
    virtual void CLEARLOAD() = 0;
    /// Switches to the clients of another file, or to those of the same one after it was replaced: `Workplace::paths`
    /// then gives the new file to every screen, and screens that show clients of the previous file are closed. If it
    /// throws store::Error, nothing is changed (see datastore::useClientDb).
    virtual void useClientDb(const std::filesystem::path& dataDbPath) = 0;
};

/// What a screen works with: the client's record, the files, and the ways to reach the user and the printer. It
/// outlives every screen.
struct Workplace {
    assessment::Assessment& record;
    const datastore::Paths& paths; ///< changed by Shell::useClientDb alone
    Desk& desk;
    reports::Engine& reports;
    Shell& shell;
    LentFigures lent = {}; ///< figures of one screen that another screen's calculations overwrite
};

} // namespace screenkit

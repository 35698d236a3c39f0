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

/// What a screen may ask of the main window.
class Shell {
public:
    virtual ~Shell() = default;
    /// Opens a screen by its name at the top left, or brings it to the front if it is open.
    virtual void open(const QString& screen) = 0;
    /// The screen if it is open, built but perhaps behind others.
    virtual QWidget* screen(const QString& name) = 0;
    /// True if there is such a screen.
    virtual bool exists(const QString& screen) = 0;
    /// Fills every open screen from the record again.
    virtual void refillScreens() = 0;
    /// Shows the client's display name in the status bar.
    virtual void showClientName() = 0;
    /// Has a screen reader say this, once.
    virtual void announce(const QString& said) = 0;
    /// All toolbar buttons on or off; menus stay.
    virtual void enableToolbar(bool on) = 0;
    /// Writes the client to the file; afterwards, if a new client was asked for, blanks it. Shows what went wrong and
    /// gives false.
    virtual bool Save() = 0;
    /// Loads the client of this key in the place of the present one and shows him; asks about unsaved changes first.
    /// False if it did not come to that: the user stopped it, or has been told why not.
    virtual bool openClient(double key) = 0;
    /// Closes the client's screens, so that each fills itself afresh when it is opened next.
    virtual void CLEARLOAD() = 0;
    /// Goes over to the clients of another file, or to those of the same one after it was replaced: from here on
    /// `Workplace::paths` says so to every screen, and screens that hold lines of the file before are closed. Throws
    /// store::Error; all is as before then (see datastore::useClientDb).
    virtual void useClientDb(const std::filesystem::path& dataDbPath) = 0;
};

/// The table that a screen works at: the client's record, the files, and the ways out to the user and to paper. It
/// outlives every screen.
struct Workplace {
    assessment::Assessment& record;
    const datastore::Paths& paths; ///< changed by Shell::useClientDb alone
    Desk& desk;
    reports::Engine& reports;
    Shell& shell;
    LentFigures lent = {}; ///< figures of one screen that another's calculation works over
};

} // namespace screenkit

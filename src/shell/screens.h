#pragma once

#include <QString>
#include <span>

namespace screenkit {
class Screen;
struct Workplace;
} // namespace screenkit

namespace shell {

/// How to build a screen, and the heading of its chapter in the user's guide. A screen is built when it is opened and
/// destroyed when it is closed.
struct ScreenEntry {
    const char* name;
    screenkit::Screen* (*build)(screenkit::Workplace&);
    const char* chapter;
};

/// The entry of a screen; nothing if the screen does not exist yet (its menu item is disabled).
const ScreenEntry* screenEntry(const QString& name);

/// All existing screens.
std::span<const ScreenEntry> screenEntries();

/// The screens that are closed together with the client, in closing order. A few other screens that show the record
/// stay open and are filled again.
std::span<const char* const> clientScreens();

/// The screens that hold keys or rows of the client database: after a change of the file they would write them into the
/// wrong one.
std::span<const char* const> screensOfTheFile();

} // namespace shell

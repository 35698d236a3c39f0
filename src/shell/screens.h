#pragma once

#include <QString>
#include <span>

namespace screenkit {
class Screen;
struct Workplace;
} // namespace screenkit

namespace shell {

/// How a screen is built, and the heading of its chapter in the user's guide. Screens are built when they are first
/// opened and gone when they are closed.
struct ScreenEntry {
    const char* name;
    screenkit::Screen* (*build)(screenkit::Workplace&);
    const char* chapter;
};

/// The entry of a screen; nothing while it does not exist yet (its menu item is greyed out).
const ScreenEntry* screenEntry(const QString& name);

/// All screens that exist.
std::span<const ScreenEntry> screenEntries();

/// The screens that go when the client goes, in the order in which they are closed. A few that show the record are not
/// among them: they stay open and are filled again.
std::span<const char* const> clientScreens();

/// The screens that hold keys or lines of the client database, and would write them into another one.
std::span<const char* const> screensOfTheFile();

} // namespace shell

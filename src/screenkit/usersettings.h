#pragma once

#include <QSettings>

namespace screenkit {

/// What the program remembers for this user only, such as the folder used last: a file in the user's own settings
/// folder. No figure of a client depends on it; if it can't be read or written, the program works without it.
inline QSettings userSettings() {
    return QSettings(QSettings::IniFormat, QSettings::UserScope, "marlowbeck", "marlowbeck");
}

} // namespace screenkit

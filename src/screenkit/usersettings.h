#pragma once

#include <QSettings>

namespace screenkit {

/// What the program remembers for this user alone, such as the folder used last: a file in the user's own settings
/// folder. Nothing that a client's figures depend on; where it can't be read or written the program works without.
inline QSettings userSettings() {
    return QSettings(QSettings::IniFormat, QSettings::UserScope, "marlowbeck", "marlowbeck");
}

} // namespace screenkit

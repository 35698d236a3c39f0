#pragma once

#include <QString>

namespace screenkit {

/// A page of Marlowbeck's makers, which opens in the user's browser; path: "/lectures".
inline QString pageOfTheMakers(const QString& path) { return "https://www.marlowbeck.example" + path; }

} // namespace screenkit

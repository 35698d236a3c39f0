#pragma once

#include <QWidget>

namespace screenkit {

inline constexpr const char* passedByEnter = "passedByEnter";

/// Enter does not stop at this control on its way from field to field; Tab does. For a second view of the same entries.
inline void letEnterPass(QWidget* control) { control->setProperty(passedByEnter, true); }

} // namespace screenkit

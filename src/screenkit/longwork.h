#pragma once

#include <QString>
#include <functional>

#include "store/progress.h"

namespace screenkit {

/// Runs long work. If it takes longer than a moment, a box in front of all windows shows what is done (`what`, "Backing
/// up your clients"), how far it is, and Cancel; the windows go on being painted and take no entries. False if the user
/// cancelled, and the work has left everything as it was. What the work throws passes on.
bool runLongWork(const QString& what, const std::function<void(const store::Progress&)>& work);

} // namespace screenkit

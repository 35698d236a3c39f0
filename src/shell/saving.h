#pragma once

#include <optional>

#include "datastore/save.h"
#include "screenkit/workplace.h"

namespace shell {

/// Saves the client. If the file holds another client under its key, nothing is written and Save As is offered. If
/// another program has changed the client in the file, the user is asked whether to overwrite that. Nothing if it was
/// not saved: the user has been told why, and the record is unchanged.
std::optional<datastore::Saved> saveClient(screenkit::Workplace& work);

} // namespace shell

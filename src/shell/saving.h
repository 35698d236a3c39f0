#pragma once

#include <optional>

#include "datastore/save.h"
#include "screenkit/workplace.h"

namespace shell {

/// Saves the client. Where the file holds another client under its key, nothing is written and Save As is offered;
/// where another program has changed the client in the file, the user is asked whether to write over that.
/// Nothing if it was not saved: the user has been told why, and the record is as it was.
std::optional<datastore::Saved> saveClient(screenkit::Workplace& work);

} // namespace shell

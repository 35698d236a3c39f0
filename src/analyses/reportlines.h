#pragma once

#include <vector>

#include "analyses/yearrun.h"
#include "datastore/printfeed.h"

/// Parts of a row of Print.mdb that the reports of several analyses have in common. Of a part that is not asked for
/// every line is blank, so that none is left over from an earlier printout.
namespace analyses {

/// Heading, colon and text of the notes.
datastore::Row notesLines(bool included, const std::string& notes);

/// The premium's block, blank: no premium can be solved yet.
datastore::Row noPremium();

/// The rows of the amortisation.
std::vector<datastore::Row> amortisationRows(const std::vector<ShownYear>& years);

} // namespace analyses

#pragma once

#include <vector>

#include "analyses/yearrun.h"
#include "datastore/printfeed.h"
#include "finance/capitalpremium.h"

/// Parts of a row of Print.mdb that the reports of several analyses share. If a part is not wanted, each of its lines
/// is blank, so that nothing remains of an earlier printout.
namespace analyses {

/// Heading, colon and text of the notes.
datastore::Row notesLines(bool included, const std::string& notes);

/// The block for the premium: blank unless it is included and solved.
datastore::Row premiumLines(bool included, const assessment::CapitalPremium& premium,
                            const finance::PremiumWords& words);

/// The rows of the amortisation.
std::vector<datastore::Row> amortisationRows(const std::vector<ShownYear>& years);

} // namespace analyses

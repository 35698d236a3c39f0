#pragma once

#include <vector>

#include "calculators/amortisation.h"
#include "datastore/printfeed.h"

namespace calculators {

/// Makes these lines the rows of the table `Amort`, from which a report prints an amortisation.
void feedAmortisation(datastore::PrintFeed& feed, const std::vector<AmortisationRow>& lines);

/// The same with the table that was chosen, if any: no lines if the loan has none to show.
void feedAmortisation(datastore::PrintFeed& feed, const RepaidLoan& loan, const AmortisationChoice& choice);

} // namespace calculators

#include "calculators/amortisationfeed.h"

namespace calculators {

void feedAmortisation(datastore::PrintFeed& feed, const std::vector<AmortisationRow>& lines) {
    std::vector<datastore::Row> rows;
    rows.reserve(lines.size());
    for (const AmortisationRow& line : lines)
        rows.push_back({{"Year", static_cast<double>(line.number)},
                        {"Capital", line.capital},
                        {"Interest", line.interest},
                        {"Required", line.balance}});
    feed.replace("Amort", rows);
}

void feedAmortisation(datastore::PrintFeed& feed, const RepaidLoan& loan, const AmortisationChoice& choice) {
    if (!choice.included) return;
    feedAmortisation(feed, loan.hasMonths() ? chosenRows(loan, choice) : std::vector<AmortisationRow>{});
}

} // namespace calculators

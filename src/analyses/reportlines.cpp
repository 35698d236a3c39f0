#include "analyses/reportlines.h"

namespace analyses {

datastore::Row notesLines(bool included, const std::string& notes) {
    return {{"NotesHeading", included ? "Notes" : ""},
            {"NotesColon", included ? ":" : ""},
            {"Notes", included ? notes : std::string()}};
}

datastore::Row noPremium() {
    datastore::Row row;
    for (const char* text : {"PremHeading", "PremGRText", "PremPEscText", "ALTEMVText", "PremPeriodText", "PremAnsText",
                             "PremColonText", "PremPAText", "PremYears"})
        row.push_back({text, ""});
    for (const char* number : {"PremGR", "PremPEsc", "ALTEMV", "PremPeriod", "PremAns"})
        row.push_back({number, 0});
    return row;
}

std::vector<datastore::Row> amortisationRows(const std::vector<ShownYear>& years) {
    std::vector<datastore::Row> rows;
    rows.reserve(years.size());
    for (const ShownYear& year : years)
        rows.push_back({{"Year", year.number},
                        {"Capital", year.capital},
                        {"Interest", year.interest},
                        {"Required", year.required},
                        {"Available", year.available}});
    return rows;
}

} // namespace analyses

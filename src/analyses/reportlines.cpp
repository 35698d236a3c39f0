#include "analyses/reportlines.h"

namespace analyses {

datastore::Row notesLines(bool included, const std::string& notes) {
    return {{"NotesHeading", included ? "Notes" : ""},
            {"NotesColon", included ? ":" : ""},
            {"Notes", included ? notes : std::string()}};
}

datastore::Row premiumLines(bool included, const assessment::CapitalPremium& premium,
                            const finance::PremiumWords& words) {
    const auto text = [included](const char* said) { return included ? said : ""; };
    const auto figure = [included](double value) { return included ? value : 0; };
    return {{"PremHeading", text("Premium Calculation (Using Unit Trust)")},
            {"ALTEMVText", text("Maturity value required")},
            {"ALTEMV", figure(premium.PremTarget)},
            {"PremPeriodText", text(finance::isReduced(premium) ? words.reducedPeriod : words.period)},
            {"PremPeriod", figure(premium.PremTerm)},
            {"PremGRText", text("Growth rate")},
            {"PremGR", figure(premium.PremGrowth)},
            {"PremPEscText", text(words.escalation)},
            {"PremPEsc", figure(premium.PremEscalation)},
            {"PremAnsText", text(words.answer)},
            {"PremAns", figure(premium.premium)},
            {"PremColonText", text(":")},
            {"PremPAText", text("% p.a.")},
            {"PremYears", text("year/s")}};
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

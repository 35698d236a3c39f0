#include "calculators/drawdownreport.h"

#include "calculators/amortisationfeed.h"
#include "calculators/drawdowncosts.h"
#include "datastore/settings.h"

namespace calculators {

namespace {

struct SampleYear {
    std::size_t year;
    const char *portfolio, *income;
};

constexpr SampleYear samples[] = {
    {1, "T11", "T21"}, {5, "T12", "T22"}, {10, "T13", "T23"}, {15, "T14", "T24"}, {20, "TY20", "TY21"}};

} // namespace

datastore::Printout feedDrawDown(const std::filesystem::path& printDbPath, const std::string& client,
                                 const assessment::DrawDown& annuity, const assessment::DrawDownPhases& phases,
                                 const assessment::DrawDownCosts& costs, const DrawDownResult& result, bool amortised) {
    datastore::Row row = datastore::rowOf(drawDownCostsTable(), costs);
    const auto& [first, second, further] = phases;
    for (const auto& field : datastore::Row{{"Name", client},
                                            {"LSAmt", annuity.LSAmt},
                                            {"GRLA", annuity.GRLA},
                                            {"MidP", annuity.Midp},
                                            {"ESC", annuity.Esc},
                                            {"Ans", result.NetPercent},
                                            {"Sentence", result.sentence()},
                                            {"FromYear0", first.FromYear},
                                            {"ToYear0", first.ToYear},
                                            {"LAInitDraw0", first.LAInitDraw},
                                            {"Esc0", first.Esc},
                                            {"GRLA0", first.GRLA},
                                            {"FromYear1", second.FromYear},
                                            {"ToYear1", second.ToYear},
                                            {"LAInitDraw1", second.LAInitDraw},
                                            {"Esc1", second.Esc},
                                            {"GRLA1", second.GRLA}})
        row.push_back(field);
    for (const auto& [year, portfolio, income] : samples) {
        row.emplace_back(portfolio, result.YearPortfolio[year]);
        row.emplace_back(income, result.YearIncome[year]);
    }
    datastore::PrintFeed feed(printDbPath, client);
    feed.replace("LivAnn", row);
    if (amortised) feedAmortisation(feed, yearRows(result));
    feed.commit();
    if (amortised) return {"\\ddannA.rpt", "Draw Down Annuities With Amortisation"};
    return {"\\ddann.rpt", "Draw Down Annuities"};
}

} // namespace calculators

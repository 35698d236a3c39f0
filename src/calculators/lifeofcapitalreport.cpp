#include "calculators/lifeofcapitalreport.h"

namespace calculators {

namespace {

std::vector<datastore::Row> yearRows(const finance::CapitalLife& life) {
    std::vector<datastore::Row> rows;
    for (std::size_t year = 1; year <= static_cast<std::size_t>(life.rows()); ++year)
        rows.push_back({{"Year", static_cast<double>(year)},
                        {"Capital", life.years.capital[year]},
                        {"Interest", life.years.earnings[year]},
                        {"Required", life.years.need[year]}});
    return rows;
}

} // namespace

datastore::Printout feedLifeOfCapital(const std::filesystem::path& printDbPath, const std::string& client,
                                      const assessment::LifeOfCapital& inputs, const finance::CapitalLife& life,
                                      bool amortised) {
    datastore::PrintFeed feed(printDbPath, client);
    // The table's columns have the names of a quotation's fields; the report uses them in this order.
    feed.replace("LOcap", {{"LUMPSUM", inputs.CAPI},
                           {"ANNpayment", inputs.MINC},
                           {"regularpayment", inputs.GRTE},
                           {"term", inputs.TXRTE},
                           {"growthrate", inputs.EXCLife},
                           {"LOA", life.sentence()}});
    if (amortised) feed.replace("Amort", yearRows(life));
    feed.commit();
    if (amortised) return {"\\LOCA.rpt", "Life Of Capital Including Amortisation"};
    return {"\\LOC.rpt", "Life Of Capital"};
}

} // namespace calculators

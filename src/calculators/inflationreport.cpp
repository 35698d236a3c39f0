#include "calculators/inflationreport.h"

namespace calculators {

datastore::Printout feedInflation(const std::filesystem::path& printDbPath, const std::string& client,
                                  const assessment::Inflation& inputs, const InflationResult& result) {
    datastore::PrintFeed feed(printDbPath, client);
    feed.replace("Inflation", {{"PresCost", inputs.PresCostInflation},
                               {"Period", static_cast<double>(inputs.PeriodInflation)},
                               {"InflaRate", inputs.IntRateInflation},
                               {"Ans1", result.futureValue},
                               {"ANS2", result.buyingPower}});
    feed.commit();
    // Each screen names the help in its own way; practices know the titles as they are.
    return {"\\Inflatin.rpt", "Inflation - To export printout click on the suitcase button or goto Dunmarrow Help"};
}

} // namespace calculators

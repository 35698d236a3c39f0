#include "calculators/dailybalancereport.h"

#include "base/day.h"
#include "base/rounding.h"

namespace calculators {

datastore::Printout feedDailyBalance(const std::filesystem::path& printDbPath, const std::string& client,
                                     const assessment::DailyBalance& inputs, const DailyBalanceResult& result) {
    datastore::PrintFeed feed(printDbPath, client);
    feed.replace("DailyBal", {{"CapAmount", static_cast<double>(inputs.CapAmount)},
                              {"StartDate", base::reportDate(inputs.StartDateDB)},
                              {"EndDate", base::reportDate(inputs.EndDateDB)},
                              {"IntRate", base::shortestDecimal(inputs.IntRate)},
                              {"ANS1", result.interest},
                              {"ANS2", result.days}});
    feed.commit();
    return {"\\DayBal.rpt", {}};
}

} // namespace calculators

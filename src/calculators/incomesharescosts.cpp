#include "calculators/incomesharescosts.h"

#include <limits>

#include "datastore/settings.h"

namespace calculators {

const assessment::FieldTable<IncomeSharesCosts>& incomeSharesCostsTable() {
    using assessment::Double, assessment::in;
    using Costs = IncomeSharesCosts;
    static const assessment::FieldTable<Costs> table("IncFromShares",
                                                     {{"InitCom", Double, in<&Costs::InitCom>},
                                                      {"InitAdminFee", Double, in<&Costs::InitAdminFee>},
                                                      {"AnnDivBonus", Double, in<&Costs::AnnDivBonus>},
                                                      {"AnnManFee", Double, in<&Costs::AnnManFee>},
                                                      {"TrailComm", Double, in<&Costs::TrailComm>}});
    return table;
}

IncomeSharesCosts readIncomeSharesCosts(const std::filesystem::path& defaultDbPath) {
    const datastore::SettingsRow row = datastore::readSettings(defaultDbPath, incomeSharesCostsTable().name());
    for (const char* share : {"InitCom", "AnnDivBonus", "AnnManFee", "TrailComm"})
        row.requireBetween(share, 0, 100, "a percentage from 0 to 100");
    row.requireBetween("InitAdminFee", 0, std::numeric_limits<double>::max(), "an amount that is not negative");
    IncomeSharesCosts costs;
    row.fill(incomeSharesCostsTable(), &costs);
    return costs;
}

void writeIncomeSharesCosts(const std::filesystem::path& defaultDbPath, const IncomeSharesCosts& costs) {
    datastore::writeSettings(defaultDbPath, incomeSharesCostsTable().name(),
                             datastore::rowOf(incomeSharesCostsTable(), costs));
}

} // namespace calculators

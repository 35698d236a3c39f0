#include "calculators/drawdowncosts.h"

#include <limits>

#include "datastore/settings.h"

namespace calculators {

using assessment::DrawDownCosts;

const assessment::FieldTable<DrawDownCosts>& drawDownCostsTable() {
    using assessment::Double, assessment::in;
    static const assessment::FieldTable<DrawDownCosts> table(
        "livann", {{"BrokerCom", Double, in<&DrawDownCosts::BrokerCom>},
                   {"SetupCosts", Double, in<&DrawDownCosts::SetupCosts>},
                   {"AnnPortFee", Double, in<&DrawDownCosts::AnnPortFee>},
                   {"AnnualDiv", Double, in<&DrawDownCosts::AnnualDiv>},
                   {"TrailComm", Double, in<&DrawDownCosts::TrailComm>},
                   {"MaxIncAllowed", Double, in<&DrawDownCosts::MaxIncAllowed>},
                   {"MinIncAllowed", Double, in<&DrawDownCosts::MinIncAllowed>}});
    return table;
}

DrawDownCosts readDrawDownCosts(const std::filesystem::path& defaultDbPath) {
    const datastore::SettingsRow row = datastore::readSettings(defaultDbPath, drawDownCostsTable().name());
    for (const char* percentage :
         {"BrokerCom", "AnnPortFee", "AnnualDiv", "TrailComm", "MaxIncAllowed", "MinIncAllowed"})
        row.requireBetween(percentage, 0, 100, "a percentage from 0 to 100");
    row.requireBetween("SetupCosts", 0, std::numeric_limits<double>::max(), "an amount that is not negative");
    DrawDownCosts costs;
    row.fill(drawDownCostsTable(), &costs);
    return costs;
}

void writeDrawDownCosts(const std::filesystem::path& defaultDbPath, const DrawDownCosts& costs) {
    datastore::writeSettings(defaultDbPath, drawDownCostsTable().name(), datastore::rowOf(drawDownCostsTable(), costs));
}

} // namespace calculators

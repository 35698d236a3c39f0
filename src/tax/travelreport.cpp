#include "tax/travelreport.h"

#include "base/day.h"

namespace tax {

namespace {

/// What a report says in each language.
struct Words {
    const char *fuel, *fuelExcluded, *maintenance, *maintenanceExcluded;
    const char *deemedReport, *actualReport;
};
constexpr Words words[] = {
    {"Fuel costs", "Fuel costs not included", "Maintenance costs", "Maintenance costs not included", "\\caepnrk.rpt",
     "\\caeprk.rpt"},
    {"Brandstofkoste", "Brandstofkoste uitgesluit", "Instandhouding koste", "Instandhouding koste uitgesluit",
     "\\caapnrk.rpt", "\\caaprk.rpt"},
};

} // namespace

datastore::Printout PrintCarAll1(const std::filesystem::path& printDbPath, const std::string& client,
                                 const assessment::CarAll& car, const TravelClaim& result,
                                 datastore::ReportLanguage language) {
    const Words& say = words[static_cast<std::size_t>(language)];
    datastore::PrintFeed feed(printDbPath, client);
    feed.replace("traveldeduction", {{"TPName", car.employee},
                                     {"CARNO", 1},
                                     {"mta01", car.description},
                                     {"mta03", car.vehicleValue},
                                     {"mta04", car.allowance},
                                     {"mta05", car.closeKm},
                                     {"mta06", car.openKm},
                                     {"mta07", car.businessKm},
                                     {"mta08", car.fuel},
                                     {"mta09", car.repairs},
                                     {"mta10", car.insurance},
                                     {"mta11", car.otherCosts},
                                     {"mta12", car.wearAndTear},
                                     {"mta13", car.leasePayments},
                                     {"mta14", travelDays(car)},
                                     {"DateStart", base::reportDate(car.startDate)},
                                     {"DateEnd", base::reportDate(car.endDate)},
                                     {"tadeduction", result.claim},
                                     {"MTD", result.kilometres.total},
                                     {"MBD", result.kilometres.business},
                                     {"mpd", result.kilometres.privateKm},
                                     {"cv", result.fixedCost},
                                     {"fce", result.fixed},
                                     {"fc", result.fuel},
                                     {"mc", result.maintenance},
                                     {"tatc", result.shownRate()},
                                     {"FCDet", car.includeFuel != 0 ? say.fuel : say.fuelExcluded},
                                     {"MCDet", car.includeMaintenance != 0 ? say.maintenance : say.maintenanceExcluded},
                                     {"totcost", result.totalCosts},
                                     {"pu", result.privateUse}});
    feed.commit();
    return {car.expensesKept == 1 ? say.actualReport : say.deemedReport,
            "Car Allowance - To export printout click on the suitcase button or goto Help"};
}

} // namespace tax

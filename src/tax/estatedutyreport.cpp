#include "tax/estatedutyreport.h"

#include "datastore/settings.h"

namespace tax {

datastore::Printout feedEstateDuty(const std::filesystem::path& printDbPath, const std::string& client,
                                   const assessment::EstateDuty& estate, const EstateDutyRates& rates,
                                   const EstateDutyEstimate& result) {
    datastore::Row row = datastore::rowOf(estateDutyRatesTable(), rates);
    for (const datastore::Field& field : {datastore::Field{"Name", client},
                                          {"PropEstate", estate.PropEstate},
                                          {"PolInvEstate", estate.PolInvEstate},
                                          {"OtherEstate", estate.OtherEstate},
                                          {"TotalEstate", result.totalEstate},
                                          {"LessAccEstate", estate.LessAccEstate},
                                          {"DutEstate", result.dutiable},
                                          {"EstateDuty", result.duty},
                                          {"PropExecutor", estate.PropExecutor},
                                          {"PolInvExecutor", estate.PolInvExecutor},
                                          {"OtherExecutor", estate.OtherExecutor},
                                          {"TotalExecutor", result.totalExecutor},
                                          {"LessAccExecutor", estate.LessAccExecutor},
                                          {"DutExecutor", result.leviable},
                                          {"ExecutorsFees", result.fees}})
        row.push_back(field);
    datastore::PrintFeed feed(printDbPath, client);
    feed.replace(estateDutyRatesTable().name(), row);
    feed.commit();
    return {"\\estatedutyest.rpt", "Estate Duty Estimator"};
}

} // namespace tax

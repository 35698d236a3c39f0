#include "tax/lumpsumreport.h"

#include "assessment/tables.h"
#include "datastore/settings.h"

namespace tax {

datastore::Printout LumpSumsPrint(const std::filesystem::path& printDbPath, const std::string& client,
                                  const assessment::LumpSums& lumpSums, const LumpSumTax& result) {
    constexpr const char* table = "IRP5IncDed";
    datastore::PrintFeed feed(printDbPath, client);
    datastore::Row row = feed.printedOf(table, datastore::rowOf(assessment::lumpSumTaxTable(), lumpSums));
    for (const LumpSumReason reason : lumpSumReasons)
        row.emplace_back("FstLumpTaken" + std::to_string(static_cast<int>(reason)),
                         std::string(chosenReason(lumpSums) == reason ? "T" : ""));
    row.emplace_back("TaxDue", result.taxDue);
    row.emplace_back("Total", result.total);
    row.emplace_back("TaxOnTotal", result.taxOnTotal);
    row.emplace_back("Prior", result.prior);
    row.emplace_back("TaxOnPrior", result.taxOnPrior);
    feed.replace(table, row);
    feed.commit();
    return {"\\LumpSums.rpt", "Lump Sums - To export printout click on the suitcase button or goto Marlowbeck Help"};
}

} // namespace tax

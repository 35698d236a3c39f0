#include "calculators/offshorereport.h"

namespace calculators {

datastore::Printout feedOffShore(const std::filesystem::path& printDbPath, const std::string& client,
                                 const assessment::OffShore& inputs, const OffShoreResult& result) {
    datastore::PrintFeed feed(printDbPath, client);
    feed.replace("OffShore", {{"InvAmount", static_cast<double>(inputs.InvAmount)},
                              {"OSPeriod", static_cast<double>(inputs.OSPeriod)},
                              {"OFInvRate", inputs.OFInvRate},
                              {"LInvRate", inputs.LInvRate},
                              {"OFTaxRate", static_cast<double>(inputs.OFTaxRate)},
                              {"LTaxRate", static_cast<double>(inputs.LTaxRate)},
                              {"LCurrChange", static_cast<double>(inputs.LCurrChange)},
                              {"OSMatVal", result.OSMatVal},
                              {"LMatVal", result.LMatVal},
                              {"OSRealMatVal", result.OSRealMatVal},
                              {"LRealMatVal", result.LRealMatVal}});
    feed.commit();
    return {"\\OffShore.rpt", "Offshore Investments"};
}

} // namespace calculators

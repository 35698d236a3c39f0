#include "calculators/investcomparisonreport.h"

#include "calculators/comparisonscale.h"

namespace calculators {

datastore::Printout feedInvestmentComparison(const std::filesystem::path& printDbPath, const std::string& client,
                                             const assessment::InvestComparison& inputs, double age,
                                             const InvestmentComparison& result) {
    datastore::PrintFeed feed(printDbPath, client);
    feed.replace("InvComp", {{"Name", client},
                             {"Age", age},
                             {"CTaxFreeI", inputs.CTaxFreeI},
                             {"CTaxInc", inputs.CTaxInc},
                             {"AnnAmount", inputs.AnnAmount},
                             {"AnnDet", inputs.AnnDet},
                             {"MonTFAnn", inputs.MonTFAnn},
                             {"MonTAnn", inputs.MonTAnn},
                             {"TotMon", result.TotMon},
                             {"LessMonAnn", result.LessMonAnn},
                             {"MonAfterAnn", result.MonAfterAnn},
                             {"FDAmount", inputs.FDAmount},
                             {"FXInt", inputs.FXInt},
                             {"FXDet", inputs.FXDet},
                             {"FXMonInc", result.deposit.FXMonInc},
                             {"FXLessTax", result.deposit.FXLessTax},
                             {"FXMonAftTax", result.deposit.FXMonAftTax},
                             {"RATE", result.RATE()},
                             {"AgeAt", comparisonAgeAt},
                             {"TaxTablesUsed", comparisonTables}});
    feed.commit();
    return {"\\InvComp.rpt", {}};
}

} // namespace calculators

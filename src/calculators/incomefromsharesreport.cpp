#include "calculators/incomefromsharesreport.h"

#include "base/numberformat.h"
#include "datastore/settings.h"

namespace calculators {

datastore::Printout feedIncomeFromShares(const std::filesystem::path& printDbPath, const std::string& client,
                                         const assessment::IncomeShares& inputs, const IncomeSharesCosts& costs,
                                         const IncomeSharesRun& run, bool commissions) {
    const auto ifAsked = [commissions](const std::string& text) { return commissions ? text : std::string(); };
    datastore::Row row = datastore::rowOf(incomeSharesCostsTable(), costs);
    row.insert(row.end(),
               {{"ComStatement_1", ifAsked("The following commissions are payable…")},
                {"ComStatement_2", ifAsked("A commission amount equal to " + base::plainNumber(costs.InitCom) +
                                           "% of the initial capital amount invested is payable.")},
                {"ComStatement_3", ifAsked("Trail commission of 1/12th of " + base::plainNumber(costs.TrailComm) +
                                           "% of the capital will be paid monthly.")},
                {"InvestAmount", inputs.InvestAmount},
                {"ISGrowthRate", inputs.ISGrowthRate},
                {"InitPercRequire", inputs.InitPercRequire},
                {"AnnIncEsca", inputs.AnnIncEsca},
                {"EffTaxRate", inputs.EffTaxRate},
                {"AnnMonIncShare", inputs.AnnMonIncShare}});
    // The table's columns have the names of a comparison of loans; the report uses them in this order.
    for (const SharesYear& year : run.sampleYears()) {
        const std::string number = std::to_string(year.year);
        row.insert(row.end(), {{"MonRep" + number, static_cast<double>(year.year)},
                               {"IntPaid" + number, year.capital},
                               {"Total" + number, year.tax},
                               {"IncDrawn" + number, year.incomeDrawn}});
    }
    datastore::PrintFeed feed(printDbPath, client);
    feed.replace("IncFromShares", row);
    feed.commit();
    return {"\\IncFromshares.rpt", "Income From Shares"};
}

} // namespace calculators

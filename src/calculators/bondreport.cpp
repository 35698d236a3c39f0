#include "calculators/bondreport.h"

#include "base/rounding.h"

namespace calculators {

datastore::Printout feedBondBuster(const std::filesystem::path& printDbPath, const std::string& client,
                                   const assessment::Bond& bond, const BondBuster& result) {
    const auto afterwards = [&](double figure) {
        return result.extra == ExtraPayment::neverClears ? store::Value{} : store::Value{figure};
    };
    datastore::PrintFeed feed(printDbPath, client);
    feed.replace("BondBust", {{"PAmt", bond.BMBP2},
                              {"Period", static_cast<double>(bond.OMBP3)},
                              {"IntRate", base::shortestDecimal(bond.BMBP4)},
                              {"MonRep", result.BondRep},
                              {"TotIntPaid", result.TotInt},
                              {"TotRep", result.TotPaid},
                              {"XtraPay", result.keptExtra(bond.VOLUN)},
                              {"Xper", afterwards(result.NewTerm)},
                              {"XMonRep", afterwards(result.NewRep)},
                              {"XTotIntPaid", afterwards(result.XTotInt)},
                              {"XTotRep", afterwards(result.XTotPaid)},
                              {"XTotSavings", afterwards(result.Saving)}});
    feed.commit();
    return {"\\BondBust.rpt", "Bond Buster"};
}

datastore::Printout feedBondAnalysis(const std::filesystem::path& printDbPath, const std::string& client,
                                     const assessment::Bond& bond, const BondAnalysis& result) {
    datastore::Row row{{"PAmt", bond.BCMBP2}, {"IntRate", base::shortestDecimal(bond.BCMBP4)}};
    int number = 0;
    for (const BondCost& cost : result.terms) {
        const std::string index = std::to_string(++number);
        row.emplace_back("MonRep" + index, cost.repayment);
        row.emplace_back("IntPaid" + index, cost.interest);
        row.emplace_back("Total" + index, cost.paid);
    }
    datastore::PrintFeed feed(printDbPath, client);
    feed.replace("BondComp", row);
    feed.commit();
    return {"\\BondAna.rpt", "Bond Analysis"};
}

} // namespace calculators

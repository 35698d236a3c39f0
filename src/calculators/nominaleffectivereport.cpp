#include "calculators/nominaleffectivereport.h"

namespace calculators {

bool isPrintable(const assessment::NominalEffective& inputs, const NominalEffectiveResult& result) {
    return result.isFinite() && result.IntEarned > 0 && inputs.PeriodNomEff > 0;
}

std::optional<datastore::Printout> feedNominalEffective(const std::filesystem::path& printDbPath,
                                                        const std::string& client,
                                                        const assessment::NominalEffective& inputs,
                                                        const NominalEffectiveResult& result) {
    if (!isPrintable(inputs, result)) return {};
    datastore::PrintFeed feed(printDbPath, client);
    feed.replace("NomEffect", {{"Amount", inputs.amount},
                               {"Period", inputs.PeriodNomEff},
                               {"NomRate", inputs.NomRate},
                               {"EffRate", result.EffRate},
                               {"IntEarned", result.IntEarned},
                               {"ActualIntText3", compoundingText(compoundingOf(inputs.IntComp))}});
    feed.commit();
    return datastore::Printout{"\\NomEffec.rpt", "Nominal/Effective"};
}

} // namespace calculators

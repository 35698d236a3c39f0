#include "tax/estateduty.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "datastore/settings.h"

namespace tax {

namespace {

constexpr const char* percentage = "a percentage from 0 to 100";
constexpr const char* amount = "an amount that is not negative";

} // namespace

const assessment::FieldTable<EstateDutyRates>& estateDutyRatesTable() {
    using assessment::Double, assessment::in;
    static const assessment::FieldTable<EstateDutyRates> table(
        "EstateDutyEst", {{"EstateDutyRebate", Double, in<&EstateDutyRates::EstateDutyRebate>},
                          {"RateofTax", Double, in<&EstateDutyRates::RateofTax>},
                          {"ExecFeesRate", Double, in<&EstateDutyRates::ExecFeesRate>},
                          {"RateofTax2", Double, in<&EstateDutyRates::RateofTax2>},
                          {"SndBracket", Double, in<&EstateDutyRates::SndBracket>}});
    return table;
}

EstateDutyRates readEstateDutyRates(const std::filesystem::path& defaultDbPath) {
    const datastore::SettingsRow row = datastore::readSettings(defaultDbPath, estateDutyRatesTable().name());
    for (const char* field : {"RateofTax", "RateofTax2", "ExecFeesRate"})
        row.requireBetween(field, 0, 100, percentage);
    for (const char* field : {"EstateDutyRebate", "SndBracket"})
        row.requireBetween(field, 0, std::numeric_limits<double>::max(), amount);
    EstateDutyRates rates;
    row.fill(estateDutyRatesTable(), &rates);
    return rates;
}

void writeEstateDutyRates(const std::filesystem::path& defaultDbPath, const EstateDutyRates& rates) {
    datastore::writeSettings(defaultDbPath, estateDutyRatesTable().name(),
                             datastore::rowOf(estateDutyRatesTable(), rates));
}

bool EstateDutyEstimate::isFinite() const {
    return std::isfinite(totalEstate) && std::isfinite(duty) && std::isfinite(totalExecutor) && std::isfinite(fees);
}

EstateDutyEstimate estimateEstateDuty(const assessment::EstateDuty& estate, const EstateDutyRates& rates) {
    EstateDutyEstimate result;
    result.totalEstate = estate.PropEstate + estate.PolInvEstate + estate.OtherEstate;
    result.dutiable = std::max(0.0, result.totalEstate - estate.LessAccEstate);
    const double aboveRebate = result.dutiable - rates.EstateDutyRebate;
    result.reachesSecondTier = aboveRebate > rates.SndBracket;
    // The two tiers don't meet, and the second counts the accrual amount again. Both are meant: practices know the
    // estimate as it is.
    const double duty = result.reachesSecondTier
                            ? (rates.SndBracket - rates.EstateDutyRebate) * (rates.RateofTax / 100) +
                                  (result.totalEstate - rates.SndBracket) * (rates.RateofTax2 / 100)
                            : aboveRebate * (rates.RateofTax / 100);
    result.duty = std::max(0.0, duty);
    result.totalExecutor = estate.PropExecutor + estate.PolInvExecutor + estate.OtherExecutor;
    result.leviable = std::max(0.0, result.totalExecutor - estate.LessAccExecutor);
    result.fees = (rates.ExecFeesRate / 100) * result.leviable;
    return result;
}

} // namespace tax

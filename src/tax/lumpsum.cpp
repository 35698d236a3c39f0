#include "tax/lumpsum.h"

#include <algorithm>
#include <iterator>

namespace tax {

using assessment::LumpSums;

double LumpSumTable::taxOn(double total) const {
    const auto band = std::find_if(std::rbegin(bands), std::rend(bands),
                                   [total](const LumpSumBand& each) { return total > each.over; });
    return band == std::rend(bands) ? 0 : (total - band->over) * band->rate + band->taxOnOver;
}

std::span<double, LumpSums::years> amountsOf(LumpSums& lumpSums, LumpSumReason reason) {
    if (reason == LumpSumReason::resignation) return lumpSums.RRExGrtCTY0204;
    return reason == LumpSumReason::retrenchment ? lumpSums.RetrenchmentLumps : lumpSums.RetireDeathAfter;
}

LumpSumReason chosenReason(const LumpSums& lumpSums) {
    const auto chosen = std::find_if(std::begin(lumpSumReasons), std::end(lumpSumReasons), [&](LumpSumReason reason) {
        return lumpSums.FstLumpTaken == static_cast<double>(reason);
    });
    return chosen == std::end(lumpSumReasons) ? LumpSumReason::none : *chosen;
}

LumpSumTax LumpSumCalc(const LumpSums& lumpSums) {
    LumpSumTax result;
    const double resignation = lumpSums.RRExGrtCTY0204[currentLumpSumYear];
    const double retrenchment = lumpSums.RetrenchmentLumps[currentLumpSumYear];
    const double retirement = lumpSums.RetireDeathAfter[currentLumpSumYear];
    for (std::size_t year = firstLumpSumYear; year <= currentLumpSumYear; ++year)
        result.sinceMarch2009 +=
            lumpSums.RRExGrtCTY0204[year] + lumpSums.RetrenchmentLumps[year] + lumpSums.RetireDeathAfter[year];
    result.total = lumpSums.RetireLumpSumBefore + result.sinceMarch2009;

    const LumpSumReason reason = chosenReason(lumpSums);
    const bool isWithdrawal = reason == LumpSumReason::resignation;
    const LumpSumTable& table = isWithdrawal ? withdrawalTable2027 : benefitTable2027;
    // A withdrawal is tested without the lump sums at retirement before, a benefit with them.
    const double tested = isWithdrawal ? result.sinceMarch2009 : result.total;
    const bool isTakenThisYear = resignation > 0 || retrenchment > 0 || retirement > 0;
    if (reason == LumpSumReason::none || !isTakenThisYear || result.sinceMarch2009 <= 0 || tested <= table.freeUpTo)
        return result;

    result.table = &table;
    result.taxOnTotal = table.taxOn(result.total);
    // This year's amounts of the other kind stay among the earlier ones.
    result.prior = isWithdrawal ? result.total - resignation : result.total - retrenchment - retirement;
    result.taxOnPrior = table.taxOn(result.prior);
    result.taxDue = result.taxOnTotal - result.taxOnPrior;
    return result;
}

} // namespace tax

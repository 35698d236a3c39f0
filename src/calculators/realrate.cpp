#include "calculators/realrate.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/finite.h"
#include "calculators/loansearch.h"

namespace calculators {

namespace {

using Answer = RealRate::Answer;

constexpr double monthsToEscalate = 13; ///< the first rise comes with the 13th month

/// A monthly amount, rand, and its rise after each year, percent.
struct Monthly {
    double amount;
    double escalation;
};

int monthsOf(double period) { return period >= 1 ? static_cast<int>(std::min<double>(period, longestPeriod)) : 0; }

/// What these amounts come to in each month: rand.
template <std::size_t Count>
std::vector<double> byMonth(std::array<Monthly, Count> amounts, int months) {
    std::vector<double> sums;
    for (int month = 1; month <= months; ++month) {
        double sum = 0;
        for (Monthly& each : amounts) {
            if (month % 12 == 1 && month > 1) each.amount += each.escalation * each.amount / 100;
            sum += each.amount;
        }
        sums.push_back(sum);
    }
    return sums;
}

/// The money without interest, and then the rate that brings it to the maturity value.
RealRate solve(const MoneyStream& stream, double maturity) {
    constexpr double belowEveryLoss = -999;
    RealRate result;
    result.netPaid = stream.lump;
    for (std::size_t month = 0; month < stream.paid.size(); ++month) {
        result.netPaid += stream.paid[month];
        result.netPaid -= stream.drawn[month];
        result.payments += stream.paid[month];
        result.incomes += stream.drawn[month];
    }
    result.profit = (maturity + result.incomes) - (stream.lump + result.payments);
    result.answer = Answer::tooLarge;
    if (!std::isfinite(result.netPaid) || !std::isfinite(result.profit)) return result;
    result.start = result.netPaid > maturity ? belowEveryLoss : 0;
    const auto found = findReturn(stream, result.start, maturity);
    result.answer = found ? Answer::found : Answer::unreached;
    result.found = found.value_or(FoundReturn{});
    return result;
}

} // namespace

RealRate RRRCalc(assessment::RRROld& inputs) {
    RealRate result;
    if (inputs.SingPremLump != 0 || inputs.MonPrem != 0) {
        if (inputs.Period < monthsToEscalate || inputs.MonPrem == 0) inputs.AnnEsc = 0;
        const int months = monthsOf(inputs.Period);
        const auto paid = byMonth(std::array{Monthly{inputs.MonPrem, inputs.AnnEsc}}, months);
        result = solve({inputs.SingPremLump, paid, std::vector<double>(paid.size())}, inputs.MatVal);
    }
    base::keepFinite(inputs.TotPremPaid, result.netPaid);
    inputs.RRR = result.found.rate;
    return result;
}

RealRate RRRCalc(assessment::RRRNew& inputs) {
    auto& in = inputs;
    const bool pays = in.RegMpay1 != 0 || in.RegMpay2 != 0 || in.RegMpay3 != 0 || in.RegMpay4 != 0;
    if (in.RRRNEWIntLumpInv == 0 && !pays) return {};
    if (in.RRRNEWPeriod < monthsToEscalate || !pays) in.PayEsc1 = in.PayEsc2 = in.PayEsc3 = in.PayEsc4 = 0;
    const int months = monthsOf(in.RRRNEWPeriod);
    return solve({in.RRRNEWIntLumpInv,
                  byMonth<4>({{{in.RegMpay1, in.PayEsc1},
                               {in.RegMpay2, in.PayEsc2},
                               {in.RegMpay3, in.PayEsc3},
                               {in.RegMpay4, in.PayEsc4}}},
                             months),
                  byMonth<4>({{{in.RegMinc1, in.IncEsc1},
                               {in.RegMinc2, in.IncEsc2},
                               {in.RegMinc3, in.IncEsc3},
                               {in.RegMinc4, in.IncEsc4}}},
                             months)},
                 in.RRRNEWMaturityVal);
}

} // namespace calculators

#include "bench.h"
#include "calculators/investcomparison.h"
#include "finance/capitalpremium.h"

namespace {

/// A deposit of one rand beside R1 000 000 a month: the rate that beats it is some 2 x 10^10 steps away.
double breakEven() {
    assessment::InvestComparison offers;
    offers.CTaxInc = 5000000;
    offers.MonTAnn = 1000000;
    offers.FDAmount = 1;
    return bench::milliseconds([&] { bench::keep(calculators::compareInvestments(offers, 40).RATE()); });
}

/// A capital that only the highest premiums reach in 50 years.
double premium() {
    assessment::FundDefaults funds;
    funds.UTCOM = 99.9, funds.UTDiv = 3, funds.UTAMFee = 1, funds.UTAComPortVal = 0.5;
    assessment::CapitalPremium premium;
    finance::carryCapital(premium, 1e14, 50);
    premium.PremGrowth = 0.001;
    return bench::milliseconds([&] { bench::keep(finance::solvePremium(premium, funds).found.premium); });
}

const bench::Register rate({"deposit rate that beats an annuity, 20 000 million steps away", "ms", {}, breakEven, 16});
const bench::Register saved({"premium for a capital, 50 years, worst legal figures", "ms", {}, premium, 16});

} // namespace

#include "bench.h"

#include <algorithm>
#include <cmath>

#include "quotes/premiums.h"
#include "quotes/projection.h"

namespace {

assessment::FundDefaults usualRates() {
    assessment::FundDefaults funds;
    funds.EAPremCom = funds.RAPremCom = funds.UTCOM = funds.UTDiv = 3;
    funds.EIAF = funds.RIAF = 100;
    funds.EAMFee = funds.RAMFee = funds.UTAMFee = 1;
    funds.EAComPortVal = funds.RAComPortVal = funds.UTAComPortVal = 0.5;
    funds.ETaxRate = 30;
    return funds;
}

/// Of all that the fields accept, the searches that try most premiums: out of reach, or only just within it.
double slowestSearch() {
    assessment::FundDefaults dear = usualRates();
    dear.EAPremCom = dear.RAPremCom = dear.UTCOM = 100;
    dear.EAComPortVal = dear.RAComPortVal = 100;
    double worst = 0;
    for (const auto& funds : {usualRates(), dear, assessment::FundDefaults()})
        for (const double target : {0.01, 1e6, 1e13, 9e14, 1e300})
            for (const double growth : {-100.0, 0.001, 12.0, 1e6})
                for (const double escalation : {-100.0, 0.0, 50.0}) {
                    double best = 1e9; // of three tries, since the machine does other work too
                    for (int attempt = 0; attempt < 3; ++attempt)
                        best = std::min(
                            best, bench::milliseconds([&] {
                                const auto found = quotes::FindPremiums({target, 600, growth, escalation}, funds);
                                bench::keep(found.endowment.premium + found.unitTrust.premium);
                            }));
                    worst = std::max(worst, best);
                }
    return worst;
}

double slowestQuote() {
    double worst = 0;
    for (const char* kind : quotes::kindLetters)
        worst = std::max(worst, bench::milliseconds([kind] {
                             const assessment::KwikQuotes inputs{kind, 50000, 6000, 500, 480, 12, 6};
                             bench::keep(quotes::ShowQuote(inputs, usualRates()).numAns2);
                             bench::keep(quotes::InvestProGraphCalc(inputs, usualRates()).value[1]);
                         }));
    return worst;
}

const bench::Register quote({
    .name = "the slowest kind of quotation over 480 months, with its graph: within a frame",
    .floor = {},
    .ours = slowestQuote,
    .goal = 16,
});
const bench::Register search({
    .name = "the slowest search of all three premiums over 600 months: within a frame",
    .floor = {},
    .ours = slowestSearch,
    .goal = 16,
    .rounds = 1,
});

} // namespace

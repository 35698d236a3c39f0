#include "bench.h"
#include "calculators/drawdown.h"
#include "calculators/inflation.h"
#include "finance/lifeofcapital.h"

namespace {

/// A capital that lasts for all 50 years.
double lives() {
    const assessment::LifeOfCapital of{5000000, 10000, 9.5, 18, 3};
    return bench::milliseconds([&] {
        for (int client = 0; client < 1000; ++client)
            bench::keep(finance::LCCalculate(of, finance::moreThanInLifeOfCapital).shown);
    });
}

/// 600 months in two phases; the growth rates change, so that no nominal rate is known before.
double draws() {
    assessment::DrawDownPhases phases{{1, 10, 20000, 5, 98}, {11, 50, 30000, 5, 38}, {}};
    return bench::milliseconds([&] {
        double NomRate = 0;
        phases.phase0.GRLA = phases.phase0.GRLA == 98 ? 98.99 : 98;
        bench::keep(calculators::DrawDownCalc({10000000}, phases, {}, NomRate).DrawYears);
    });
}

double check() {
    return bench::milliseconds([] { bench::keep(calculators::LTLINFL({10000, 10, 10}).buyingPower); });
}

const bench::Register capital({"1 000 lives of capital, 50 years each", "ms", {}, lives, 16});
const bench::Register annuity({"a draw-down annuity over 600 months", "ms", {}, draws, 16});
const bench::Register inflation({"arithmetic that the start-up checks", "ms", {}, check, 1});

} // namespace

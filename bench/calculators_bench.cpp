#include "bench.h"
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

double check() {
    return bench::milliseconds([] { bench::keep(calculators::LTLINFL({10000, 10, 10}).buyingPower); });
}

const bench::Register capital({"1 000 lives of capital, 50 years each", "ms", {}, lives, 16});
const bench::Register inflation({"arithmetic that the start-up checks", "ms", {}, check, 1});

} // namespace

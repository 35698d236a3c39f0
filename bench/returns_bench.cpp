#include "bench.h"
#include "calculators/realrate.h"

namespace {

/// A stream that ends in debt, and a maturity value just above the highest that it reaches: every rate must be refused.
double returns() {
    assessment::RRRNew stream;
    stream.RRRNEWPeriod = 240, stream.RegMpay1 = 1000, stream.PayEsc1 = 12, stream.RegMinc1 = 1500;
    stream.RRRNEWMaturityVal = 1079200;
    return bench::milliseconds([&] { bench::keep(calculators::RRRCalc(stream).found.rate); });
}

const bench::Register rate({"real rate of return, 100 000 rates refused", "ms", {}, returns, 16});

} // namespace

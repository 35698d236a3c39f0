#include "finance/lifeofcapital.h"

#include <algorithm>
#include <cmath>

namespace finance {

namespace {

constexpr const char* lasts = "Will provide required income for";

double earningsOn(double capital, const assessment::LifeOfCapital& of) {
    const double gross = of.GRTE * capital / 100;
    return (100 - of.TXRTE) * gross / 100;
}

CapitalYears carried(const assessment::LifeOfCapital& of, double escalation) {
    CapitalYears years;
    if (of.CAPI == 0 || of.MINC == 0 || of.GRTE == 0) return years;
    auto& [capital, earnings, need, lookedAt] = years;
    std::size_t y = 1;
    capital[y] = of.CAPI;
    earnings[y] = earningsOn(of.CAPI, of);
    need[y] = of.MINC * 12;
    do {
        ++y;
        need[y] = need[y - 1] + escalation * need[y - 1] / 100;
        capital[y] = capital[y - 1] + (earnings[y - 1] - need[y - 1]);
        earnings[y] = earningsOn(capital[y], of);
    } while (y < CapitalYears::lastYear && capital[y] + earnings[y] >= need[y]);
    lookedAt = static_cast<int>(y);
    return years;
}

bool isFinite(const CapitalYears& years) {
    const auto last = static_cast<std::size_t>(years.lookedAt);
    return std::isfinite(years.capital[last]) && std::isfinite(years.earnings[last]) && std::isfinite(years.need[last]);
}

} // namespace

CapitalYears FINDTERMLIFE(const assessment::LifeOfCapital& of) { return carried(of, of.EXCLife); }

CapitalYears FINDTERM(const assessment::LifeOfCapital& of, double PaymentEscalation) {
    return carried(of, PaymentEscalation);
}

CapitalLife LCCalculate(const assessment::LifeOfCapital& of, const MoreThan& more) {
    CapitalLife life;
    life.years = FINDTERMLIFE(of);
    life.result = std::max(life.years.lookedAt - 1, 0);
    life.isMore = life.result >= more.from;
    life.shown = life.isMore ? more.shown : life.result;
    life.caption = life.isMore ? lasts + std::string(" more than ") : lasts;
    life.isFinite = isFinite(life.years);
    return life;
}

std::string CapitalLife::sentence() const {
    return lasts + std::string(isMore ? " more than " : " ") + std::to_string(shown) + " years.";
}

} // namespace finance

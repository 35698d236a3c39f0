#include "calculators/returnsearch.h"

#include <cstdint>
#include <functional>

#include "finance/stepping.h"

namespace calculators {

namespace {

constexpr double percentOfAMonth = 1200; ///< a rate in percent a year, divided by this, is a month's share
constexpr double fineStep = 0.001;

/// No value at a rate between these two is higher.
///
/// Month by month this takes the better rate: the higher one for money, the lower one for a debt. A month's value is
/// never lower for a higher balance, since even -999 percent leaves part of it; so what is too high stays too high. The
/// margin exceeds the rounding errors of a month.
double highestBetween(const MoneyStream& stream, double lower, double upper) {
    constexpr double margin = 1e-13;
    const double ofMoney = (1 + upper / percentOfAMonth) * (1 + margin);
    const double ofDebt = (1 + lower / percentOfAMonth) * (1 - margin);
    double value = stream.lump;
    for (std::size_t month = 0; month < stream.paid.size(); ++month) {
        value += stream.paid[month];
        value -= stream.drawn[month];
        value *= value >= 0 ? ofMoney : ofDebt;
    }
    return value;
}

class Search {
public:
    Search(const MoneyStream& stream, double target, std::function<double(std::int64_t)> rateOf)
        : m_stream(stream), m_target(target), m_rateOf(std::move(rateOf)) {}

    /// The first of these steps whose rate reaches the target.
    std::optional<std::int64_t> first(std::int64_t from, std::int64_t to) const {
        if (from == to) return valueAt(m_stream, m_rateOf(from)) < m_target ? std::nullopt : std::optional(from);
        if (highestBetween(m_stream, m_rateOf(from), m_rateOf(to)) < m_target) return {};
        const std::int64_t middle = from + (to - from) / 2;
        const auto found = first(from, middle);
        return found ? found : first(middle + 1, to);
    }

private:
    const MoneyStream& m_stream;
    double m_target;
    std::function<double(std::int64_t)> m_rateOf; ///< never lower for a later step
};

} // namespace

double valueAt(const MoneyStream& stream, double rate) {
    double value = stream.lump;
    for (std::size_t month = 0; month < stream.paid.size(); ++month) {
        value += stream.paid[month];
        value -= stream.drawn[month];
        value += rate * value / percentOfAMonth;
    }
    return value;
}

std::optional<FoundReturn> findReturn(const MoneyStream& stream, double start, double target) {
    const Search coarse(stream, target, [start](std::int64_t steps) { return start + static_cast<double>(steps); });
    const auto whole = coarse.first(1, static_cast<std::int64_t>(highestReturn - start));
    if (!whole) return {};
    const double wholeRate = start + static_cast<double>(*whole) - 1;
    const auto fineRate = [wholeRate](std::int64_t steps) { return finance::stepped(wholeRate, fineStep, steps); };
    const Search fine(stream, target, fineRate);
    // Rounding errors may keep the thousandth step a hair from the next whole rate, and the value there below the
    // target: then the search goes on, as far as whole rates are tried.
    const auto found = fine.first(1, static_cast<std::int64_t>((highestReturn - wholeRate) / fineStep));
    if (!found) return {};
    return FoundReturn{fineRate(*found), wholeRate};
}

} // namespace calculators

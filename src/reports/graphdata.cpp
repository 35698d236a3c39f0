#include "reports/graphdata.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

#include "base/numberformat.h"

namespace reports {

namespace {

constexpr std::string_view capitalInterestIncome = "CAPITAL, INTEREST, INCOME";

// In the order of GraphKind. Practices have given charts with these texts to clients for years, so not a letter
// changes, not even the spelling mistakes.
const std::array<GraphDescription, 10> descriptions{{
    {"Illustration of Education Needs ",
     capitalInterestIncome,
     "TERM OF INVESTMENT (years)",
     {"Capital Growth", "Interest on Capital", "Income Required"}},
    {"Illustration of Living Annuity", "CAPITAL / ANNUAL INCOME", "PERIOD (years)", {"Capital", "Annual Income"}},
    {"",
     "RETURNS ON INVESTMENT",
     "TERM OF INVESTMENT (years)",
     {"Total Investment", "Capital Growth", "Estmated Mat. Value", "+Re-invested Div."}},
    {"Illustration of Life of Capital",
     "",
     "TERM OF COVER (years)",
     {"Capital Growth", "Interest on Capital", "Income Required", "Income Available"}},
    {"Illustration of Life of Capital",
     "",
     "TERM OF COVER (years)",
     {"Capital Growth", "Interest on Capital", "Income Required", "Income Available"}},
    {"Illustration of Life of Capital for Retirement",
     "",
     "TERM OF Retirement (years)",
     {"Capital Growth", "Interest on Capital", "Income Required", "Income Available"}},
    {"Illustration of Loan Repayment",
     capitalInterestIncome,
     "REPAYMENT PERIOD (years)",
     {"Balance", "Capital Payments", "Interest Payments"}},
    {"Illustration of Income From Shares",
     capitalInterestIncome,
     "REPAYMENT PERIOD (years)",
     {"Capital", "Income Drawn", "Tax Due on Income"}},
    {"Illustration of Life of Capital",
     capitalInterestIncome,
     "LIFE OF CAPITAL (years)",
     {"Capital", "Interest on Capital", "Income Required"}},
    {"Illustration of Debt Consolidation",
     capitalInterestIncome,
     "REPAYMENT PERIOD (years)",
     {"Balance", "Capital Payments", "Interest Payments"}},
}};

struct InvestmentTitle {
    std::string_view letter, title;
};

constexpr InvestmentTitle investmentTitles[] = {
    {"E", "Illustration of Endowment Type"},
    {"B", "Illustration of a Bank Investment"},
    {"R", "Illustration of a Retirement Annuity/Superannuation type"},
    {"U", "Illustration of a Unit Trust/Mutual Fund type"},
};

struct Range {
    double low = 0, high = 0;
};

Range rangeOf(const Graph& graph) {
    Range range;
    for (const GraphSeries& series : graph.series)
        for (const double value : series.values) {
            if (!drawable(value)) continue;
            range.low = std::min(range.low, value);
            range.high = std::max(range.high, value);
        }
    if (range.high - range.low < 0.01) range.high = range.low + 1; // within a cent: the axis still needs a range
    return range;
}

// The smallest of 1, 2, 5, 10 times a power of ten that needs at most seven steps.
double roundStep(const Range& range) {
    const double rough = (range.high - range.low) / 7;
    const double power = std::pow(10, std::floor(std::log10(rough)));
    for (const double factor : {1.0, 2.0, 5.0})
        if (factor * power >= rough) return factor * power;
    return 10 * power;
}

} // namespace

const GraphDescription& graphDescription(GraphKind kind) { return descriptions[static_cast<std::size_t>(kind)]; }

GraphDescription investmentGraph(std::string_view typeInvest, GraphPeriod period) {
    GraphDescription description = graphDescription(GraphKind::EMV);
    for (const InvestmentTitle& line : investmentTitles)
        if (line.letter == typeInvest) description.title = line.title;
    if (period == GraphPeriod::months) description.xTitle = "TERM OF INVESTMENT (months)";
    return description;
}

Graph makeGraph(const GraphDescription& description, std::initializer_list<std::span<const double>> arrays, int count) {
    Graph graph{std::string(description.title),
                std::string(description.yTitle),
                std::string(description.xTitle),
                std::clamp(count, 0, mostGraphPoints),
                {}};
    for (const auto& array : arrays)
        if (!array.empty()) graph.points = std::min(graph.points, static_cast<int>(array.size()) - 1);
    auto name = description.series.begin();
    for (const auto& array : arrays) {
        if (!array.empty()) {
            const auto first = array.begin() + 1;
            graph.series.push_back({std::string(*name), {first, first + graph.points}});
        }
        ++name;
    }
    return graph;
}

bool drawable(double value) { return std::fabs(value) < 1e300; }

std::vector<int> labelledPoints(int points) {
    const int step = points > 20 ? 1 : 2;
    std::vector<int> labelled;
    for (int point = step; point <= points; point += step)
        labelled.push_back(point);
    return labelled;
}

std::string AxisScale::label(double tick) const {
    if (std::fabs(tick) >= 1e15) { // too many digits for the space
        std::array<char, 32> buffer{};
        std::snprintf(buffer.data(), buffer.size(), "%.3g", tick);
        return buffer.data();
    }
    std::string mask = "# ### ### ##0";
    if (places > 0) mask += '.' + std::string(static_cast<std::size_t>(places), '0');
    return base::formatNumber(tick, mask);
}

AxisScale valueScale(const Graph& graph) {
    const Range range = rangeOf(graph);
    const double step = roundStep(range);
    AxisScale scale;
    scale.places = std::max(0, -static_cast<int>(std::floor(std::log10(step) + 1e-9)));
    const int lowest = static_cast<int>(std::floor(range.low / step));
    const int highest = static_cast<int>(std::ceil(range.high / step));
    for (int i = lowest; i <= highest; ++i)
        scale.ticks.push_back(i * step);
    return scale;
}

std::string_view pointUnit(const Graph& graph) {
    return graph.xTitle.find("months") == std::string::npos ? "Year" : "Month";
}

std::string amountText(double value) { return base::formatNumber(value, "# ### ### ##0.00"); }

} // namespace reports

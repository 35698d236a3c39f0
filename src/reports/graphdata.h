#pragma once

#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace reports {

/// The texts around a graph's lines. A blank Y title means that the axis has no title.
struct GraphDescription {
    std::string_view title, yTitle, xTitle;
    std::vector<std::string_view> series; ///< names in the order of the legend
};

/// One for each public procedure of the graph window.
enum class GraphKind {
    NAEDUAmort,
    LivAnn,
    EMV,
    NADAmort,
    NADISAmort,
    NARAAmort,
    LoanAmort,
    IncFromSharesAmort,
    EMVAmort,
    DCAmort
};

const GraphDescription& graphDescription(GraphKind kind);

enum class GraphPeriod { years, months };

/// The graph of a quotation; its title depends on the investment's letter "E", "B", "R" or "U" (blank for any other).
GraphDescription investmentGraph(std::string_view typeInvest, GraphPeriod period);

struct GraphSeries {
    std::string name;
    std::vector<double> values; ///< values[0] is point 1
};

/// A graph's own copy of its figures, so that the caller's arrays may change while the window is open.
struct Graph {
    std::string title, yTitle, xTitle;
    int points = 0;
    std::vector<GraphSeries> series;
};

/// The most points that a graph shows; the year arrays hold one more.
inline constexpr int mostGraphPoints = 50;

/// Copies points 1 to `count` of each array; element 0 is unused. At most 50 points, none for a count below 1, and no
/// more than the shortest array holds. An empty array omits its series.
Graph makeGraph(const GraphDescription& description, std::initializer_list<std::span<const double>> arrays, int count);

/// False for a value that no axis can show, such as an overflowed projection or a missing figure. Such points are
/// omitted.
bool drawable(double value);

/// The points whose numbers are shown under the X axis: all if there are more than 20, else every second from point 2.
std::vector<int> labelledPoints(int points);

/// The Y axis: round steps from `minimum` to `maximum` that include every value, and 0 as the base line.
struct AxisScale {
    std::vector<double> ticks;
    int places = 0; ///< decimal places of the tick labels

    double minimum() const { return ticks.front(); }
    double maximum() const { return ticks.back(); }
    std::string label(double tick) const;
};

AxisScale valueScale(const Graph& graph);

/// What one point of the graph stands for: "Year" or "Month".
std::string_view pointUnit(const Graph& graph);

/// An amount as the callout shows it: "1 234 567.89".
std::string amountText(double value);

} // namespace reports

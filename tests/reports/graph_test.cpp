#include "reports/graph_support.h"

#include <QLegendMarker>
#include <QTest>
#include <limits>
#include <set>

namespace {

using namespace graphtest;

QStringList legendOf(const QChart& chart) {
    QStringList names;
    for (const QLegendMarker* marker : chart.legend()->markers())
        if (marker->isVisible()) names << marker->label();
    return names;
}

TEST(Graph, ArraysAreDrawnInTheOrderOfTheLegendUnderTheirTexts) {
    Fixture f;
    frmGraph& g = f.window;
    const Array &a = f.a, &b = f.b, &c = f.c, &d = f.d;
    const QStringList needs{"Capital Growth", "Interest on Capital", "Income Required", "Income Available"};
    const QStringList quote{"Total Investment", "Capital Growth", "Estmated Mat. Value", "+Re-invested Div."};
    const QStringList debt{"Balance", "Capital Payments", "Interest Payments"};
    const std::vector<double> three{1001, 2001, 3001}, four{1001, 2001, 3001, 4001};
    const std::vector<double> requiredFirst{1001, 2001, 4001, 3001};
    const QString life = "Illustration of Life of Capital";
    const QString loan = "Illustration of Loan Repayment|CAPITAL, INTEREST, INCOME|REPAYMENT PERIOD (years)";
    const struct {
        std::function<void()> draw;
        QString titles; ///< of the graph, of the axis at its side and of the one below
        QStringList legend;
        int points;
        std::vector<double> firsts; ///< the value at point 1 of each line
    } cases[] = {
        {[&] { g.EMVGraph("B", GraphPeriod::months, a, {}, c, {}, 24); }, // two lines
         "Illustration of a Bank Investment|RETURNS ON INVESTMENT|TERM OF INVESTMENT (months)",
         {quote[0], quote[2]},
         24,
         {1001, 3001}},
        {[&] { g.EMVGraph("U", GraphPeriod::years, a, b, c, d, 3); },
         "Illustration of a Unit Trust/Mutual Fund type|RETURNS ON INVESTMENT|TERM OF INVESTMENT (years)", quote, 3,
         four},
        {[&] { g.NADAmortGraph(a, b, c, d, 20); }, life + "||TERM OF COVER (years)", needs, 20, requiredFirst},
        {[&] { g.NADISAmortGraph(a, b, c, d, 21); }, life + "||TERM OF COVER (years)", needs, 21, requiredFirst},
        {[&] { g.NARAAmortGraph(a, b, c, d, 51); }, // the window shows 50 at most; the arrays have 51
         life + " for Retirement||TERM OF Retirement (years)", needs, 50, requiredFirst},
        {[&] { g.LoanAmortGraph(a, b, c, 1, 20, 21); }, loan, debt, 20, three},
        {[&] { g.LoanAmortGraph(a, b, c, 2, 2, 3); }, loan, debt, 3, three}, // a part year
    };
    for (const auto& k : cases) {
        k.draw();
        const QString side = f.axis(Qt::Vertical).titleText();
        EXPECT_EQ(f.chart().title() + "|" + side + "|" + f.axis(Qt::Horizontal).titleText(), k.titles);
        EXPECT_EQ(f.axis(Qt::Vertical).isTitleVisible(), !side.isEmpty());
        EXPECT_EQ(legendOf(f.chart()), k.legend);
        const auto lines = reports::linesOf(f.chart());
        ASSERT_EQ(lines.size(), k.firsts.size());
        for (std::size_t i = 0; i < lines.size(); ++i) {
            ASSERT_EQ(lines[i]->count(), k.points);
            EXPECT_EQ(lines[i]->at(0), QPointF(1, k.firsts[i]));
            EXPECT_EQ(lines[i]->at(k.points - 1), QPointF(k.points, k.firsts[i] + k.points - 1));
        }
    }
}

TEST(Graph, LabelsEveryPointAboveTwentyAndEverySecondBelow) {
    const std::tuple<int, const char*, const char*, int> cases[] = {
        {20, "2", "20", 10}, {21, "1", "21", 21}, {7, "2", "6", 3}, {51, "1", "50", 50}};
    Fixture f;
    for (const auto& [count, first, last, size] : cases) {
        f.window.LivAnnGraph(f.a, f.b, count);
        const QStringList labels = f.axis(Qt::Horizontal).categoriesLabels();
        EXPECT_EQ(labels.size(), size) << count;
        EXPECT_EQ(labels.first(), first) << count;
        EXPECT_EQ(labels.last(), last) << count;
    }
}

TEST(Graph, OpensEmptyAndSurvivesWhatNoAxisHolds) {
    Fixture f;
    f.open();
    for (const int count : {0, -3}) {
        f.window.LoanAmortGraph(f.a, f.b, f.c, 1, count, 0);
        EXPECT_EQ(reports::linesOf(f.chart())[0]->count(), 0);
        QTest::keyClick(&f.view(), Qt::Key_Right);
        EXPECT_EQ(f.view().callout(), "");
    }
    {
        const Array gone{0, 5, 6};
        f.window.LivAnnGraph(gone, Array{0, 7, 8}, 40); // fewer elements than the count says
    }
    EXPECT_EQ(f.window.graph().points, 2);
    EXPECT_EQ(f.window.graph().series[0].values, (Array{5, 6})) << "figures of its own";
    const double inf = std::numeric_limits<double>::infinity(), nan = std::numeric_limits<double>::quiet_NaN();
    f.window.LivAnnGraph(Array{0, 1, inf, 3}, Array{0, nan, nan, nan}, 3);
    EXPECT_EQ(reports::linesOf(f.chart())[0]->count(), 2);
    QTest::keyClick(&f.view(), Qt::Key_End);
    EXPECT_TRUE(f.view().callout().contains("3.00"));
    f.window.grab();
}

std::vector<std::string> labelsOf(const reports::AxisScale& scale) {
    std::vector<std::string> labels;
    for (const double tick : scale.ticks)
        labels.push_back(scale.label(tick));
    return labels;
}

TEST(Graph, ScalesInRoundStepsFromNought) {
    const std::pair<Array, std::vector<std::string>> cases[] = {
        {{1180000, 20000}, {"0", "200 000", "400 000", "600 000", "800 000", "1 000 000", "1 200 000"}},
        {{-450, 900}, {"-600", "-400", "-200", "0", "200", "400", "600", "800", "1 000"}},
        {{0.3, 0.1}, {"0.00", "0.05", "0.10", "0.15", "0.20", "0.25", "0.30"}},
        {{7}, {"0", "1", "2", "3", "4", "5", "6", "7"}}, // seven steps at the most
        {{8}, {"0", "2", "4", "6", "8"}},
        {{-5}, {"-5", "-4", "-3", "-2", "-1", "0"}},
        {{0, 0}, {"0.0", "0.2", "0.4", "0.6", "0.8", "1.0"}},
    };
    for (const auto& [values, labels] : cases) {
        reports::Graph graph;
        graph.series.push_back({"", values});
        EXPECT_EQ(labelsOf(reports::valueScale(graph)), labels);
    }
    // the axis includes every value, and no two tick labels are equal
    for (const double top : {0.011, 1.0, 7.77, 99.999, 1e6, 3.3e9, 4e14, 8e18, 9e299}) {
        reports::Graph graph;
        graph.series.push_back({"", {top, -top / 3}});
        const reports::AxisScale scale = reports::valueScale(graph);
        const auto labels = labelsOf(scale);
        EXPECT_EQ(std::set(labels.begin(), labels.end()).size(), labels.size()) << top;
        EXPECT_GE(scale.maximum(), top);
        EXPECT_LE(scale.minimum(), -top / 3);
        EXPECT_LE(scale.ticks.size(), 12U) << top;
    }
}

TEST(Graph, ShowsTheValueUnderThePointerAndByTheKeys) {
    Fixture f;
    f.window.LoanAmortGraph(Array{0, 1234567.891, 900000, 400000}, Array{0, 100, 200, 300}, f.c, 1, 3, 4);
    f.open();
    const auto head = [&f] { return f.view().callout().section('\n', 0, 0); };
    QTest::mouseMove(&f.view(), f.pixelOf(1, 0) + QPoint(3, -4));
    EXPECT_EQ(head(), "Year 1");
    EXPECT_TRUE(f.view().callout().contains("1 234 567.89")) << f.view().callout().toStdString();
    EXPECT_TRUE(f.view().callout().contains("Balance"));
    QTest::mouseMove(&f.view(), f.pixelOf(3, 0));
    EXPECT_EQ(head(), "Year 3");
    QTest::mouseMove(&f.view(), QPoint(1, 1)); // outside the plot
    EXPECT_EQ(f.view().callout(), "");

    f.window.EMVGraph("U", GraphPeriod::months, f.a, f.b, f.c, f.d, 12);
    const std::pair<Qt::Key, const char*> steps[] = {
        {Qt::Key_Right, "Month 1"}, {Qt::Key_Left, "Month 1"}, {Qt::Key_End, "Month 12"}, {Qt::Key_Right, "Month 12"},
        {Qt::Key_Left, "Month 11"}, {Qt::Key_Home, "Month 1"}, {Qt::Key_Escape, ""}};
    for (const auto& [key, shown] : steps) {
        QTest::keyClick(&f.view(), key);
        EXPECT_EQ(head(), shown);
        EXPECT_TRUE(*shown == 0 || f.view().accessibleDescription() == f.view().callout());
    }
}

} // namespace

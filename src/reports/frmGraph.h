#pragma once

#include <QPageLayout>
#include <span>
#include <string_view>

#include "reports/graphdata.h"
#include "reports/output.h"
#include "screenkit/screen.h"

namespace reports {

/// The one chart window. A calculator passes its yearly arrays to one of the ten procedures and shows the window.
///
/// In every array element i is year (or month) i, and element 0 is unused. `count` is the number of points: at most 50
/// are shown, none for a count below 1. The figures are copied.
class frmGraph : public screenkit::Screen {
    Q_OBJECT
public:
    using Yearly = std::span<const double>;

    explicit frmGraph(screenkit::Workplace& workplace);

    void NAEDUAmortGraph(Yearly capital, Yearly interest, Yearly required, int count);
    void LivAnnGraph(Yearly capital, Yearly income, int count);
    /// typeInvest: "E", "B", "R" or "U". An empty array omits its line.
    void EMVGraph(std::string_view typeInvest, GraphPeriod period, Yearly invested, Yearly growth, Yearly value,
                  Yearly reinvested, int count);
    void NADAmortGraph(Yearly capital, Yearly interest, Yearly available, Yearly required, int count);
    void NADISAmortGraph(Yearly capital, Yearly interest, Yearly available, Yearly required, int count);
    void NARAAmortGraph(Yearly capital, Yearly interest, Yearly available, Yearly required, int count);
    /// AmortShape 1: the period is AmortYears whole years, which are all shown. 2: a part year follows, and the points
    /// go up to its index `lastYear`.
    void LoanAmortGraph(Yearly balance, Yearly capital, Yearly interest, int AmortShape, int AmortYears, int lastYear);
    void IncFromSharesAmortGraph(Yearly capital, Yearly drawn, Yearly tax, int count);
    void EMVAmortGraph(Yearly capital, Yearly interest, Yearly required, int count);
    /// As LoanAmortGraph.
    void DCAmortGraph(Yearly balance, Yearly capital, Yearly interest, int DCShape, int DCYears, int lastYear);

    const Graph& graph() const { return m_graph; }
    QPageLayout::Orientation orientation() const {
        return m_portrait == 1 ? QPageLayout::Portrait : QPageLayout::Landscape;
    }

protected:
    QWidget* firstField() override;

private:
    void draw(const Graph& graph);
    void print();
    void saveAs();

    GraphPane m_pane;
    QLabel* m_savedLine;
    Graph m_graph;
    int m_portrait = 0; ///< index of the chosen orientation
};

} // namespace reports

#pragma once

#include "calculators/amortisation.h"
#include "reports/frmGraph.h"
#include "reports/resultscreen.h"

namespace calculators {

/// A calculator screen with a loan that is repaid in level instalments: its tables by month and by year, the graph of
/// the years, and the choice of a table in the print panel.
class AmortisedScreen : public reports::ResultScreen {
    Q_OBJECT
protected:
    /// What the screens call the same things.
    struct Names {
        QString graphButton;
        QString yearlyInterest; ///< a head of the annual table
        const char* mask;       ///< of the tables' amounts
        void (reports::frmGraph::*draw)(reports::frmGraph::Yearly balance, reports::frmGraph::Yearly capital,
                                        reports::frmGraph::Yearly interest, int shape, int wholeYears, int lastYear);
    };
    AmortisedScreen(screenkit::Workplace& workplace, const QString& name, const QString& caption, std::int16_t& changed,
                    const Names& names);

    /// The loan of the tables, the graph and the report.
    virtual RepaidLoan repaidLoan() const = 0;
    /// The field to go to if there is no table to show.
    virtual screenkit::NumberField* firstEntry() const = 0;

    /// `cmdCalculate`, the screen's own button if it has one, `cmdMonAmort`, `cmdAnnAmort`, the graph, `cmdPrint` and
    /// `cmdOK`.
    QLayout* amortisedButtons(QPushButton* own = nullptr);
    /// The print panel with the choice of a table.
    void printsWithAmortisation();
    AmortisationChoice chosenTable() const { return {m_includeAmort == 1, m_amortOption == 1}; }

private:
    void showTable(bool monthly);
    void showGraph();

    Names m_names;
    int m_includeAmort = 0; ///< `IncludeAmort`
    int m_amortOption = 0;  ///< 0 annual, 1 monthly
    QWidget* m_amortChoice = nullptr;
};

} // namespace calculators

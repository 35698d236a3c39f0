#pragma once

#include "analyses/frmItemised.h"
#include "analyses/needs.h"
#include "analyses/needsreport.h"
#include "reports/frmGraph.h"

class QTabWidget;

namespace analyses {

/// Names and texts in which the screens of the three needs analyses differ.
struct NeedsWords {
    QString required, available, difference; ///< captions for the first month
    QString capital, expenses, netWorth;
    QString capitalField = "numTotAss", expensesField = "numTotLib", netWorthField = "numNetCap";
    QString graphButton = "cmdESTGraph";
    using Yearly = reports::frmGraph::Yearly;
    void (reports::frmGraph::*graph)(Yearly capital, Yearly interest, Yearly available, Yearly required, int count);
    QString yearHead = " Year "; ///< head of the amortisation's first column
    bool premium = false;        ///< has a premium, its button and its tick box; `carry` is overridden
};

/// The common screen of the three needs analyses: the results on the last page, the amortisation, the graph and the
/// print panel. A derived screen adds the pages before the last.
class NeedsScreen : public ItemisedScreen {
    Q_OBJECT
protected:
    using Pages = std::vector<std::pair<QString, screenkit::Item>>;

    NeedsScreen(screenkit::Workplace& workplace, const QString& name, const QString& caption, std::int16_t& changed,
                assessment::Analysis analysis, NeedsWords words);
    /// Builds the body: these pages, the results after them, and the buttons. Call it once.
    void build(Pages pages);

    screenkit::NumberField* amount(const QString& name, double& place);
    /// Name, identity number and date of birth.
    std::vector<screenkit::FormRow> clientRows(const QString& birthField);
    /// The dates of the last and the next review, which no calculation uses.
    std::vector<screenkit::FormRow> reviewRows(const QString& lastField, double& last, const QString& nextField,
                                               double& next);
    screenkit::Item notesLine(std::string& notes);

    /// Runs the analysis on the record.
    virtual NeedsAnalysis analyse() = 0;
    /// Called by Calculate before the analysis: corrects what an old file or another program may have left in the
    /// record.
    virtual void putRight() {}
    /// Shows figures again that an analysis may have corrected.
    virtual void showCorrected() = 0;
    /// Writes the report's tables; returns its definition and title.
    virtual datastore::Printout feed(const NeedsAnalysis& analysis, const NeedsReportOptions& options) = 0;
    /// Carries the capital to provide into the client's premium.
    virtual void carry(const NeedsAnalysis&) {}
    /// Runs an analysis that may write into a group; if it did, marks the client as changed, since the file has other
    /// figures.
    template <class Group>
    NeedsAnalysis analysed(const Group& group, NeedsAnalysis (*calculation)(assessment::Assessment&)) {
        const Group before = group;
        NeedsAnalysis result = calculation(m_work.record);
        if (group != before) markChanged();
        return result;
    }

    void showClient();
    void recalculate() override;
    bool showsResults() const;

    screenkit::DateField* m_birth = nullptr;

private:
    screenkit::Item resultsPage();
    void buildPrintPanel();
    void calculate();
    void showResults();
    void announceAnswer();
    void amortisation();
    void graph();
    void showPremium();
    void print(screenkit::Destination destination);

    NeedsWords m_words;
    NeedsAnalysis m_analysis;
    int m_includeAmort = 0, m_includePremium = 0, m_includeNotes = 0, m_includeItems = 0, m_includePolicies = 0;
    QTabWidget* m_pages = nullptr;
    QLineEdit *m_name = nullptr, *m_idNumber = nullptr, *m_lasts = nullptr, *m_needed = nullptr;
    screenkit::NumberField *m_required = nullptr, *m_available = nullptr, *m_difference = nullptr;
    screenkit::NumberField *m_capital = nullptr, *m_expenses = nullptr, *m_netWorth = nullptr;
    double m_shown[6] = {}; ///< unformatted figures of the six results
    QLabel* m_shortfall = nullptr;
    QPushButton* m_ok = nullptr;
    screenkit::PrintPanel* m_printPanel = nullptr;
};

} // namespace analyses

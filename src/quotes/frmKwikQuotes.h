#pragma once

#include <array>

#include "finance/frmCapitalLife.h"
#include "quotes/fundhistory.h"
#include "quotes/premiums.h"
#include "quotes/projection.h"

namespace quotes {

/// Kwik-Quotes: what an endowment, a retirement annuity, a unit trust or a bank investment grows to, and the premium
/// that reaches a value. Three panels: the life of a capital, the practice's rates, and the growth of unit trusts.
class frmKwikQuotes : public finance::CapitalLifeScreen {
    Q_OBJECT
public:
    /// Throws store::Error if the rates can't be read, since every quotation depends on them.
    explicit frmKwikQuotes(screenkit::Workplace& workplace);

protected:
    void filled() override;
    void edited() override;
    void closing() override;
    QWidget* firstField() override { return m_lumpSum; }

private:
    enum Page { quotePageIndex, premiumPageIndex };

    // The two pages and what they print.
    QWidget* kinds();
    QWidget* investment();
    QWidget* answers();
    QLayout* quotePage();
    QLayout* premiumPage();
    QLayout* buttons();
    bool isOnPremiums() const;
    void calculate();
    void showQuote();
    void searchPremiums();
    bool hasPremiumInputs() const;
    void monthTable();
    void graph();
    void buildPrintPanel();
    void print(screenkit::Destination destination);

    // The panels.
    void buildLifePanel();
    void openLife();
    /// A form of rates, each beside the original one.
    struct RateLine;
    QWidget* rateGroup(const QString& name, const QString& title, std::initializer_list<RateLine> lines);
    void buildRatesPanel();
    void openRates();
    void keepRates();
    void undoRates();
    void restoreRates();
    void buildHistoryPanel();
    void openHistory();
    void showHistory(HistoryOrder order);
    void printHistory();
    void closePanel(screenkit::Panel* shown);

    KwikQuotes& m_inputs;
    assessment::PremiumQuote& m_premium;
    FundDefaults& m_funds;
    FundDefaults m_original; ///< the rates as delivered

    ShownQuote m_shown;
    double m_answer[4] = {};
    screenkit::OptionGroup* m_kinds = nullptr;
    QTabWidget* m_pages = nullptr;
    screenkit::NumberField *m_lumpSum = nullptr, *m_escalation = nullptr;
    std::array<screenkit::NumberField*, 4> m_answers{};
    QLabel* m_taxNote = nullptr;

    Premiums m_found;
    double m_foundPremium[3] = {}; ///< as shown: endowment, retirement annuity, unit trust
    bool m_isSearched = false;
    std::array<screenkit::NumberField*, 3> m_premiums{};
    QLabel* m_unreached = nullptr;

    QPushButton *m_ok = nullptr, *m_okLife = nullptr;
    screenkit::PrintPanel* m_printPanel = nullptr;
    int m_includeCommissions = 0, m_includeAmort = 0;

    screenkit::Panel *m_lifePanel = nullptr, *m_ratesPanel = nullptr, *m_historyPanel = nullptr;
    bool m_isLifeShown = false; ///< since the screen was opened
    std::vector<screenkit::Field*> m_rateFields;
    FundDefaults m_heldFunds; ///< as they were when the panel was opened
    double m_heldStep = 0;
    screenkit::Grid* m_historyGrid = nullptr;
    FundHistory m_history;
    HistoryOrder m_order;
    std::array<bool, 6> m_ascending{}; ///< the direction of each column
};

} // namespace quotes

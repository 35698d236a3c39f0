#pragma once

#include "screenkit/listpanel.h"
#include "tax/capitalgainlist.h"

namespace tax {

/// Capital gains tax of a natural person: the assets disposed of in the year, one at a time, the known gains from
/// trusts and other sources, and what of the year's gain is added to income.
class frmCGTCalcIncome : public screenkit::ListScreen<screenkit::Screen> {
    Q_OBJECT
public:
    explicit frmCGTCalcIncome(screenkit::Workplace& workplace);

    void clientReplaced() override;
    bool commitPendingEdits() override;
    void wentBehind() override;

protected:
    void filled() override;
    void edited() override;
    void settled(screenkit::Field* field) override;
    void closing() override;

private:
    using Asset = assessment::CGTAssetRecord;

    Asset& asset() { return m_list.shown(); }
    // Fields of the asset on the screen.
    screenkit::NumberField* figure(const QString& name, double Asset::*place, const screenkit::NumberKind& kind);
    screenkit::DateField* day(const QString& name, double Asset::*place, const screenkit::DateKind& kind);
    screenkit::OptionGroup* choice(const QString& name, const QStringList& captions, screenkit::Bound<int> place);
    screenkit::OptionGroup* oneOrTwo(const QString& name, const QStringList& captions, std::int16_t Asset::*place);
    /// A small button that opens a help text.
    QPushButton* help(int topic);
    QPushButton* helpButton(const QString& name, const QString& title, std::function<void()> open);

    QWidget* typeGroup();
    QWidget* baseCostGroup();
    QWidget* disposalGroup();
    QWidget* knownGainsGroup();
    QLayout* buttons();
    void buildHelp();
    void buildSummary();
    void buildPrintPanel();
    screenkit::DateKind acquiredRange();
    screenkit::DateKind saleRange();

    /// Works the asset on the screen out, adds the year up and shows both.
    void work();
    void calculate();
    void showGain();
    void showPlace();
    /// Enables what the asset's type, dates and description allow.
    void applyRules();
    void add();
    void remove();
    void step(int direction);
    void openKnownGains();
    void listTaken(const std::vector<screenkit::EditRow>& rows) override;
    void print(screenkit::Destination destination);

    assessment::CapitalGains& m_gains;
    AssetList m_list;
    AssetGain m_gain;
    YearTotals m_totals;
    YearResults m_results;
    double m_share = 0;
    bool m_lossTold = false; ///< a positive loss brought forward is complained of once
    int m_itemisedDetails = 0, m_schedule = 0, m_details = 0, m_otherGains = 0; ///< the ticks of the print panel

    std::function<void(const screenkit::Topic&)> m_openHelp;
    screenkit::Panel *m_baseCostHelp = nullptr, *m_summary = nullptr, *m_printPanel = nullptr;
    screenkit::TextField* m_description = nullptr;
    screenkit::OptionGroup *m_type = nullptr, *m_qualifies = nullptr;
    screenkit::DateField *m_acquired = nullptr, *m_sold = nullptr;
    screenkit::NumberField *m_size = nullptr, *m_residency = nullptr, *m_deduction = nullptr, *m_appraised = nullptr,
                           *m_deemed = nullptr, *m_improvedBefore = nullptr, *m_improved = nullptr, *m_user = nullptr,
                           *m_shareShown = nullptr, *m_capGain = nullptr, *m_total = nullptr, *m_local = nullptr,
                           *m_foreign = nullptr, *m_loss = nullptr;
    QLabel *m_apportioned = nullptr, *m_method = nullptr, *m_limitation = nullptr, *m_notCounted = nullptr;
    std::vector<QWidget*> m_always; ///< usable as soon as the asset has a description
    std::vector<screenkit::NumberField*> m_resultFields;
    QPushButton *m_calculate = nullptr, *m_summaryButton = nullptr, *m_print = nullptr, *m_back = nullptr,
                *m_forward = nullptr, *m_delete = nullptr, *m_itemise = nullptr, *m_summaryOk = nullptr;
};

} // namespace tax

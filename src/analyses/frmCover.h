#pragma once

#include <array>

#include "analyses/frmNeeds.h"

namespace analyses {

/// Where the entries of a screen of cover lie in the record.
struct CoverFields {
    double &income, &years, &inflation, &rate, &available;
    std::array<double*, 5> assets, liabilities; ///< the fourth asset is the policies'
    double &lastReview, &nextReview;
    std::string& notes;
};

/// Names and captions that death and disability each have of their own; access keys among them.
struct CoverWords {
    QString tab, income, available;
    QString assets, liabilities; ///< heads of the two groups
    QString fees;                ///< the fourth liability
    QString lastReview, nextReview;
};

/// The screen of the death and of the disability analysis: one page of entries before the results.
class CoverScreen : public NeedsScreen {
    Q_OBJECT
protected:
    CoverScreen(screenkit::Workplace& workplace, const QString& name, const QString& caption, std::int16_t& changed,
                assessment::Analysis analysis, NeedsWords words);
    /// To be called once, from the constructor of a screen of its own.
    void build(const CoverFields& fields, const CoverWords& words);
    /// What comes before the analysis.
    virtual void prepare() = 0;

    void filled() override;
    void showCorrected() override;

private:
    screenkit::Item entriesPage(const CoverFields& fields, const CoverWords& words);
    /// Five lines, each with the button of its list; -1 for the line that the policies feed.
    std::vector<screenkit::FormRow> moneyRows(const char* name, const QStringList& captions,
                                              const std::array<double*, 5>& places, const std::array<int, 5>& lists);

    std::vector<screenkit::NumberField*> m_derived; ///< from lists, the policies and caps
};

} // namespace analyses

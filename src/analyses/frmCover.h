#pragma once

#include <array>

#include "analyses/frmNeeds.h"

namespace analyses {

/// The places in the record that a death or disability screen edits.
struct CoverFields {
    double &income, &years, &inflation, &rate, &available;
    std::array<double*, 5> assets, liabilities; ///< the fourth asset is the policies'
    double &lastReview, &nextReview;
    std::string& notes;
};

/// Names and captions, including access keys, in which the death and the disability screen differ.
struct CoverWords {
    QString tab, income, available;
    QString assets, liabilities; ///< titles of the two groups
    QString fees;                ///< caption of the fourth liability
    QString lastReview, nextReview;
};

/// The common screen of the death and the disability analysis: one page of entries before the results.
class CoverScreen : public NeedsScreen {
    Q_OBJECT
protected:
    CoverScreen(screenkit::Workplace& workplace, const QString& name, const QString& caption, std::int16_t& changed,
                assessment::Analysis analysis, NeedsWords words);
    /// Builds the screen. The constructor of a derived screen calls it once.
    void build(const CoverFields& fields, const CoverWords& words);
    /// Prepares the record for the analysis.
    virtual void prepare() = 0;

    void filled() override;
    void showCorrected() override;

private:
    screenkit::Item entriesPage(const CoverFields& fields, const CoverWords& words);
    /// Five lines, each with the button of its list; -1 for the line that the policies fill.
    std::vector<screenkit::FormRow> moneyRows(const char* name, const QStringList& captions,
                                              const std::array<double*, 5>& places, const std::array<int, 5>& lists);

    std::vector<screenkit::NumberField*> m_derived; ///< set by lists, policies and rate limits
};

} // namespace analyses

#pragma once

#include "analyses/death.h"
#include "analyses/frmCover.h"

namespace analyses {

/// The death needs analysis: how long the capital that the client leaves provides the family's income, and how much
/// additional cover is required.
class frmNADeath : public CoverScreen {
    Q_OBJECT
public:
    explicit frmNADeath(screenkit::Workplace& workplace);

protected:
    void prepare() override { prepareDeath(m_work.record); }
    NeedsAnalysis analyse() override { return analysed(m_work.record.death, NADeathCalc); }
    datastore::Printout feed(const NeedsAnalysis& analysis, const NeedsReportOptions& options) override;
};

} // namespace analyses

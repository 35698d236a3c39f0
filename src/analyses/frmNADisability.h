#pragma once

#include "analyses/disability.h"
#include "analyses/frmCover.h"

namespace analyses {

/// The disability needs analysis: how long the capital of a client who is disabled today provides the required income,
/// and how much additional cover is required.
class frmNADisability : public CoverScreen {
    Q_OBJECT
public:
    explicit frmNADisability(screenkit::Workplace& workplace);

protected:
    void prepare() override { prepareDisability(m_work.record); }
    NeedsAnalysis analyse() override { return analysed(m_work.record.disability, NADisabilityCalc); }
    datastore::Printout feed(const NeedsAnalysis& analysis, const NeedsReportOptions& options) override;
};

} // namespace analyses

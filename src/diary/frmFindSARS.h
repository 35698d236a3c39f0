#pragma once

#include "diary/frmFollowUp.h"

namespace diary {

/// Search for review dates: the clients whose needs analyses were last reviewed, or are to be reviewed next, in a
/// range of dates.
class frmFindSARS : public FollowUpScreen {
    Q_OBJECT
public:
    explicit frmFindSARS(screenkit::Workplace& workplace);

private:
    screenkit::DateField* rangeEnd(const QString& name, double& own, const double& other, bool isStart);
    std::optional<std::vector<FoundClient>> search() override;
    std::vector<screenkit::GridColumn> heads() const override;
    screenkit::GridCell cell(const FoundClient& line, std::size_t column) const override;
    datastore::Printout feed(const std::vector<FoundClient>& found) const override;

    struct Range {
        double start, end;
    };
    int m_scope = 0, m_analysis = 0, m_order = 0;
    Range m_ranges[2];    ///< last reviewed, next review
    ReviewSearch m_shown; ///< the search that the list shows
};

} // namespace diary

#include "diary/frmFindSARS.h"

#include "base/day.h"
#include "datastore/paths.h"

namespace diary {

using namespace screenkit;

frmFindSARS::frmFindSARS(Workplace& workplace)
    : FollowUpScreen(workplace, "frmFindSARS", "Search For Review Dates"), m_ranges{{base::NoDate, base::NoDate},
                                                                                    {base::NoDate, base::NoDate}} {
    auto* scope =
        numbered(1, {"Produce list of entire database", "Date &Last Reviewed - between", "Date &Next Review - between"},
                 m_scope);
    auto* analysis = numbered(4, {"&Death", "D&isability", "&Retirement", "&Education"}, m_analysis);
    auto* order = numbered(8, {"Last Na&me", "Re&view Date"}, m_order);
    const auto dates = [this](const QString& which, Range& range) {
        return row({labelled("From", rangeEnd("dt" + which + "Start", range.start, range.end, true)),
                    labelled("to", rangeEnd("dt" + which + "End", range.end, range.start, false)), spring()});
    };
    layOut(column({group("fraScope", "Search for", Item(scope)),
                   group("fraLastRev", "Date Last Reviewed - between", dates("LastRevDate", m_ranges[0])),
                   group("fraNextRev", "Date Next Review - between", dates("NextRevDate", m_ranges[1])),
                   group("fraAnalysis", "Which Needs Analysis : . . .", Item(analysis)),
                   group("fraOrder", "Order", Item(order)), spring()}));
}

DateField* frmFindSARS::rangeEnd(const QString& name, double& own, const double& other, bool isStart) {
    const auto limit = [&other] { return other; };
    const auto complaint = [&other, isStart] {
        const QString date = QString::fromStdString(base::formatDate(other));
        return Complaint{(isStart ? "The Maximum Date allowed is " : "The Minimum Date allowed is ") + date,
                         "Incorrect Date!"};
    };
    const DateKind kind = DateKind().worded(
        "The date entered is in the wrong format\nPlease use the dd/mm/yyyy format.", "Incorrect Date!");
    auto* field = date(name, own, isStart ? kind.notAfter(limit, complaint) : kind.notBefore(limit, complaint));
    untrackedField(field);
    return field;
}

std::optional<std::vector<FoundClient>> frmFindSARS::search() {
    ReviewSearch wanted{static_cast<ReviewScope>(m_scope), static_cast<NeedsAnalysis>(m_analysis), base::NoDate,
                        base::NoDate, m_order == 1};
    if (m_scope > 0) {
        wanted.start = m_ranges[m_scope - 1].start;
        wanted.end = m_ranges[m_scope - 1].end;
    }
    auto found = searchReviews(m_work.paths.DataDbPath, wanted);
    m_shown = wanted;
    return found;
}

std::vector<GridColumn> frmFindSARS::heads() const {
    std::vector<GridColumn> shown{GridColumn::text("Client Name", 34), GridColumn::date("Date of birth"),
                                  GridColumn::text("ID number")};
    if (m_shown.scope != ReviewScope::everyone) shown.push_back(GridColumn::date("Review date"));
    return shown;
}

GridCell frmFindSARS::cell(const FoundClient& line, std::size_t column) const {
    switch (column) {
    case 0: return textCell(line.ClientName);
    case 1: return dateCell(line.BirthDate);
    case 2: return textCell(line.IDNumber);
    default: return dateCell(line.ReviewDate);
    }
}

datastore::Printout frmFindSARS::feed(const std::vector<FoundClient>& found) const {
    return feedReviews(m_work.paths.PrintDbPath, m_shown, found);
}

} // namespace diary

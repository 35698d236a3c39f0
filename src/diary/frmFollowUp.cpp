#include "diary/frmFollowUp.h"

#include <QLineEdit>

#include "base/day.h"
#include "datastore/paths.h"
#include "reports/report.h"
#include "screenkit/trouble.h"

namespace diary {

using namespace screenkit;

GridCell dateCell(double day) { return base::isShownOnScreen(day) ? GridCell(day) : GridCell(); }

FollowUpScreen::FollowUpScreen(Workplace& workplace, const QString& name, const QString& caption)
    : Screen(workplace, name, caption, untracked()) {}

OptionGroup* FollowUpScreen::numbered(int first, const QStringList& captions, Bound<int> place,
                                      std::function<void(int)> picked) {
    auto* group = options("Options" + QString::number(first), captions, std::move(place), std::move(picked));
    for (int i = 0; i < captions.size(); ++i)
        group->option(i)->setObjectName("Option" + QString::number(first + i));
    untrackedField(group);
    return group;
}

void FollowUpScreen::layOut(QLayout* choices) {
    m_list = table("DBGrid1", tr("Clients found"), Grid::Picking::stretch);
    m_list->setVisibleLines(14);
    m_list->setEmptyText(tr("Choose what to look for, then Search."));
    m_list->show(heads(), GridRows()); // decides how wide the window opens
    m_count = shown("txtFound", 24);
    m_count->setAccessibleName(tr("Found"));
    auto* find = button("cmdSearch", "&Search", [this] { cmdSearch(); });
    body(column({Item(row({Item(choices), Item(m_list, 1)}), 1),
                 row({find, button("cmdPrint", "&Print", [this] { cmdPrint(); }), m_count, spring(), okButton()})}));
    defaultButton(find);
    PrintNames names;
    names.panel = "Frame3";
    names.cancel = "cmdCancel";
    m_printPanel = printPanel(
        {},
        [this](Destination to) {
            const datastore::Printout printout = feed(m_found);
            m_work.reports.run(QString::fromStdString(printout.definition), QString::fromStdString(printout.title), to);
        },
        names);
}

void FollowUpScreen::cmdSearch() {
    std::optional<std::vector<FoundClient>> found;
    {
        const BusyCursor busy;
        found = search();
    }
    if (!found) return;
    m_found = std::move(*found);
    m_bound.emplace(m_work.paths.DataDbPath);
    m_list->setEmptyText(tr("Nobody was found."));
    m_list->show(heads(), {m_found.size(),
                           [this](std::size_t line, std::size_t column) { return cell(m_found[line], column); }});
    m_count->setText(tr("%n found", nullptr, static_cast<int>(m_found.size())));
    announce(m_count->text());
}

void FollowUpScreen::cmdPrint() {
    if (m_found.empty()) return m_work.desk.tell(BoxStyle::warning, "No Data found to Print !", "Marlowbeck");
    m_printPanel->open();
}

} // namespace diary

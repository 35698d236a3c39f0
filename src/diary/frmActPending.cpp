#include "diary/frmActPending.h"

#include "base/day.h"
#include "datastore/paths.h"

namespace diary {

using namespace screenkit;

frmActPending::frmActPending(Workplace& workplace)
    : Screen(workplace, "frmActPending", "Activities Pending", untracked()) {
    m_list = table("ListView1", tr("Entries from today on"), Grid::Picking::stretch);
    m_list->setVisibleLines(16);
    m_list->setEmptyText(tr("Nothing is planned from today on."));
    show(readFrom(m_work.paths.DiaryDbPath, today()));
    body(column({Item(m_list, 1), row({opener("cmdCalendar", "&Diary", "frmCalendar"), spring(), okButton()})}));
}

void frmActPending::filled() { show(readFrom(m_work.paths.DiaryDbPath, today())); }

void frmActPending::show(std::vector<Entry> entries) {
    if (!m_entries.empty() && entries == m_entries) return; // what is selected stays
    m_entries = std::move(entries);
    static constexpr Column texts[] = {Column::day, Column::time, Column::name, Column::details, Column::type};
    m_list->show({GridColumn::date("Date"), GridColumn::text("Time", 10), GridColumn::text("Name", 24),
                  GridColumn::text("Appointment details"), GridColumn::text("Type", 14)},
                 {m_entries.size(), [this](std::size_t line, std::size_t column) -> GridCell {
                      if (column == 0) return m_entries[line].number(Column::day);
                      return QString::fromStdString(m_entries[line].text(texts[column])).simplified();
                  }});
}

} // namespace diary

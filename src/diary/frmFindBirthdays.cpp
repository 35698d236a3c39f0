#include "diary/frmFindBirthdays.h"

#include <QLocale>

#include "datastore/paths.h"
#include "screenkit/combofield.h"

namespace diary {

using namespace screenkit;

namespace {

const NumberKind age{whole.between(0, 150, "An age is between 0 and 150 years.", "Incorrect Age!").mask, true, 4,
                     whole.between(0, 150, "An age is between 0 and 150 years.", "Incorrect Age!").limits};

QStringList months() {
    QStringList names;
    for (int month = 1; month <= 12; ++month)
        names << QLocale(QLocale::English).standaloneMonthName(month);
    return names;
}

} // namespace

frmFindBirthdays::frmFindBirthdays(Workplace& workplace)
    : FollowUpScreen(workplace, "frmFindBirthdays", "Search For Birthdays") {
    auto* who = numbered(1, {"&Clients", "Spo&uses", "&Dependants"}, m_who);
    m_months = new ComboField("Combo1", tr("Month"), 12, m_month);
    m_months->setRows(months());
    m_start = number("numStartAge", m_startAge, age);
    auto* end = number("numEndAge", m_endAge, age);
    for (NumberField* field : {m_start, end})
        untrackedField(field);
    auto* order = numbered(8, {"Last Na&me", "&Birthday"}, m_order);
    layOut(column({group("fraWho", "Produce list of Birthdays for. . . .", Item(who)),
                   group("fraRange", "Month and ages",
                         form({{"Mo&nth", m_months}, {"F&rom age", m_start, "years"}, {"&To age", end, "years"}})),
                   group("fraOrder", "Order", Item(order)), spring()}));
}

std::optional<std::vector<FoundClient>> frmFindBirthdays::search() {
    const auto refuse = [this](const QString& text, Field* field) -> std::optional<std::vector<FoundClient>> {
        m_work.desk.tell(BoxStyle::warning, text, "Marlowbeck");
        field->takeFocus();
        return {};
    };
    if (m_startAge > m_endAge)
        return refuse("Please ensure that the 'From' Age is less than or equal to the 'End' Age.", m_start);
    if (m_month < 0) return refuse("Please select a Month to search in.", m_months);
    const BirthdaySearch wanted{static_cast<Born>(m_who), m_month + 1, m_startAge, m_endAge, m_order == 1};
    auto found = searchBirthdays(m_work.paths.DataDbPath, wanted, today());
    m_shown = wanted;
    return found;
}

std::vector<GridColumn> frmFindBirthdays::heads() const {
    if (m_shown.who == Born::clients)
        return {GridColumn::text("Client Name", 34), GridColumn::date("Date of birth"), GridColumn::text("ID number")};
    return {GridColumn::text(m_shown.who == Born::spouses ? "Spouse" : "Dependant", 34),
            GridColumn::date("Date of birth"), GridColumn::text("Client Name")};
}

GridCell frmFindBirthdays::cell(const FoundClient& line, std::size_t column) const {
    const bool isClients = m_shown.who == Born::clients;
    switch (column) {
    case 0: return textCell(isClients ? line.ClientName : line.other);
    case 1: return dateCell(line.BirthDate);
    default: return textCell(isClients ? line.IDNumber : line.ClientName);
    }
}

datastore::Printout frmFindBirthdays::feed(const std::vector<FoundClient>& found) const {
    return feedBirthdays(m_work.paths.PrintDbPath, m_shown, found);
}

} // namespace diary

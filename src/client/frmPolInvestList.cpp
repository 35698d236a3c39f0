#include <QScopedValueRollback>
#include <QTabWidget>
#include <algorithm>

#include "client/frmPolInvest.h"

// The list of all policies, and the remarks on values that count for nothing.
namespace client {

using namespace screenkit;

namespace {

using assessment::Policy;

struct Amount {
    const char* head;
    double (*of)(const Policy& policy, double ageOfRetirement);
};

constexpr Amount amounts[] = {
    {"Monthly premium", [](const Policy& policy, double) { return policy.PremInvAmtMonthly; }},
    {"Death benefit", [](const Policy& policy, double) { return policy.DeathBen; }},
    {"Disability", [](const Policy& policy, double) { return policy.DisabilLumpSum; }},
    {"Trauma", [](const Policy& policy, double) { return policy.TraumlLumpSum; }},
    {"Current value", [](const Policy& policy, double) { return policy.InvBensCurVal; }},
    {"At retirement", [](const Policy& policy, double age) { return valuesAtRetirement(policy, age).capital(); }},
};
constexpr std::size_t textColumns = 3;

std::vector<GridColumn> columns() {
    constexpr int figures = 12, number = 3, owner = 8;
    std::vector<GridColumn> all{{"Num.", "0", GridColumn::Kind::figures, number},
                                GridColumn::text("Policy/Investment"),
                                GridColumn::text("Owner", owner)};
    for (const Amount& amount : amounts)
        all.push_back({amount.head, money.mask, GridColumn::Kind::figures, figures});
    return all;
}

GridCell cellOf(const Policy& policy, std::size_t row, std::size_t column, double ageOfRetirement) {
    switch (column) {
    case 0: return static_cast<double>(row + 1);
    case 1: return QString::fromStdString(policyName(policy));
    case 2: return QString::fromStdString(policy.PolOwner);
    default: return amounts[column - textColumns].of(policy, ageOfRetirement);
    }
}

} // namespace

Item frmPolInvest::listPage() {
    m_list = table(
        "grdPolicies", tr("All policies"), Grid::Picking::one, [this] { goToPicked(); },
        [this] {
            m_pages->setCurrentIndex(0);
            m_type->takeFocus();
        });
    m_list->setSortable(true);
    m_list->setVisibleLines(8);
    m_list->show(columns(), GridRows()); // the column widths decide how wide the window opens
    return column({m_list});
}

void frmPolInvest::fillList() {
    if (m_pages == nullptr || m_pages->currentWidget() == nullptr || !m_pages->currentWidget()->isAncestorOf(m_list))
        return; // the list is filled when its page is shown
    const QScopedValueRollback filling(m_inList, true);
    const double age = m_record.retirement.AgeRetiment;
    std::vector<GridCell> totals{{}, tr("Total"), {}};
    for (const Amount& amount : amounts) {
        double total = 0;
        for (const Policy& policy : m_record.policies)
            total += amount.of(policy, age);
        totals.emplace_back(total);
    }
    const auto cell = [this, age](std::size_t row, std::size_t column) {
        // Records may have been deleted since the list was filled; it is filled again when it is next shown.
        return row < count() ? cellOf(m_record.policies[row], row, column, age) : GridCell();
    };
    m_list->show(columns(), {count(), cell, {}, std::move(totals)});
    m_list->sortAsBefore();
    m_list->pick({static_cast<std::size_t>(m_record.CurPolicy - 1)});
}

void frmPolInvest::goToPicked() {
    const auto picked = m_list->picked();
    if (m_inList || picked.empty() || picked.front() >= count()) return;
    const QScopedValueRollback going(m_inList, true);
    show(picked.front() + 1);
}

void frmPolInvest::showRemarks() {
    const auto remarks = policyRemarks(policy(), m_record.retirement.AgeRetiment);
    for (const Remarked& place : m_remarks)
        place.label->clear();
    for (const auto& [field, label] : m_remarks) {
        const auto said = std::ranges::find_if(
            remarks, [&](const PolicyRemark& each) { return field->objectName() == QString("num") + each.column; });
        const QString text = said == remarks.end() ? QString() : QString::fromStdString(said->text);
        field->setAccessibleDescription(text);
        if (!text.isEmpty()) label->setText(label->text().isEmpty() ? text : label->text() + "\n" + text);
    }
}

} // namespace client

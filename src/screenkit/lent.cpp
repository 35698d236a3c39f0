#include "screenkit/lent.h"

#include <QScopeGuard>

namespace screenkit {

void LentFigures::during(double& figure, const std::function<void()>& calculation) {
    const auto [loan, isFirst] = m_loans.try_emplace(&figure);
    Loan& entry = loan->second;
    if (isFirst || figure != entry.left) {
        entry.owned = figure;
        entry.isLent = true;
    }
    const auto note = qScopeGuard([&] { entry.left = figure; }); // also if the calculation fails half way
    calculation();
}

void LentFigures::keep(const double& figure) {
    if (const auto loan = m_loans.find(&figure); loan != m_loans.end()) loan->second.isLent = false;
}

bool LentFigures::giveBack(double& figure) {
    const auto loan = m_loans.find(&figure);
    if (loan == m_loans.end()) return false;
    const Loan entry = loan->second;
    m_loans.erase(loan);
    if (!entry.isLent || figure != entry.left) return false;
    figure = entry.owned;
    return true;
}

} // namespace screenkit

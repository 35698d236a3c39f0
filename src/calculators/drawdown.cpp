#include "calculators/drawdown.h"

#include <algorithm>
#include <cmath>

#include "base/rounding.h"
#include "calculators/nominalrate.h"

namespace calculators {

namespace {

using assessment::DrawDownCosts, assessment::DrawDownPhase, assessment::DrawDownPhases;

std::size_t at(int index) { return static_cast<std::size_t>(index); }

bool isYearEnd(int month) { return month % 12 == 0; }

/// Which phase a month belongs to.
class PhaseClock {
public:
    explicit PhaseClock(const DrawDownPhases& phases) : m_phases(phases) {}

    enum Phase { first, second, turning }; ///< turning: from a year end in the second phase to the month after

    Phase now() const { return m_now; }

    /// Between the phases the last one goes on.
    void setByMonth(int month) {
        if (month <= 12 || isInFirst(month))
            m_now = first;
        else if (hasSecondBegun(month))
            m_now = second;
    }
    void endYear(int month) { m_now = isInFirst(month) ? first : hasSecondBegun(month) ? turning : second; }
    void turn() { m_now = second; }

private:
    bool isInFirst(int month) const {
        const double year = month / 12.0;
        return year >= m_phases.phase0.FromYear && year < m_phases.phase0.ToYear;
    }
    bool hasSecondBegun(int month) const { return month / 12.0 >= m_phases.phase1.FromYear - 1; }

    const DrawDownPhases& m_phases;
    Phase m_now = first;
};

class Run {
public:
    Run(const DrawDownPhases& phases, const DrawDownCosts& costs, double& NomRate)
        : m_phases(phases), m_costs(costs), m_NomRate(NomRate) {}

    DrawDownResult of(double LSAmt) {
        if (LSAmt == 0 || m_phases.phase0.GRLA == 0 || m_phases.phase0.LAInitDraw == 0) return m_result;
        const double net = LSAmt - LSAmt * m_costs.BrokerCom / 100 - m_costs.SetupCosts;
        m_result.NetPercent = net / LSAmt * 100;
        m_portfolio = net - net * m_costs.TrailComm / 100;
        presetIncomes();
        m_result.end = DrawDownEnd::mostMonths;
        for (int month = 1; month <= DrawDownResult::mostMonths; ++month) {
            passMonth(month);
            if (month > 12 && month % 12 == 1 && !renewIncome(month)) {
                m_result.end = DrawDownEnd::exhausted;
                break;
            }
            m_result.DrawYears = month / 12;
            if (isPastLastYear(month + 1)) {
                m_result.end = DrawDownEnd::lastYear;
                break;
            }
        }
        return m_result;
    }

private:
    void presetIncomes() {
        PhaseClock clock(m_phases);
        for (int month = 1; month <= DrawDownResult::mostMonths; ++month) {
            clock.setByMonth(month);
            m_result.MonthIncome[at(month)] =
                (clock.now() == PhaseClock::first ? m_phases.phase0 : m_phases.phase1).LAInitDraw;
        }
    }

    void passMonth(int month) {
        m_portfolio -= m_result.MonthIncome[at(month)];
        if (isYearEnd(month)) m_clock.setByMonth(month);
        if (m_clock.now() != PhaseClock::turning)
            EffNomCalc((m_clock.now() == PhaseClock::first ? m_phases.phase0 : m_phases.phase1).GRLA, m_NomRate);
        m_portfolio += (m_NomRate / 1200) * m_portfolio;
        if (isYearEnd(month)) endYear(month);
    }

    void endYear(int month) {
        m_portfolio += m_portfolio * m_costs.AnnualDiv / 100;
        m_portfolio -= m_portfolio * m_costs.AnnPortFee / 100;
        m_portfolio -= m_portfolio * m_costs.TrailComm / 100;
        m_result.YearPortfolio[at(month / 12)] = m_portfolio;
        m_result.YearIncome[at(month / 12)] = m_result.MonthIncome[at(month)];
        if (month > 12) m_clock.endYear(month);
    }

    /// Finds the income of the year that this month begins; false if the portfolio can't pay it for a year.
    bool renewIncome(int month) {
        const double last = m_result.MonthIncome[at(month - 1)];
        double income = escalated(last);
        if (12 * income > m_portfolio) return false;
        if (income * 12 > m_costs.MaxIncAllowed / 100 * m_portfolio)
            income = m_costs.MaxIncAllowed / 1200 * m_portfolio;
        else if (income * 12 < m_costs.MinIncAllowed / 100 * m_portfolio)
            income = m_costs.MinIncAllowed / 1200 * m_portfolio;
        if (last != 0)
            m_result.YearChange[at((month + 11) / 12)] = base::roundHalfEven((income - last) / last * 100, 2);
        std::fill(m_result.MonthIncome.begin() + month + 1, m_result.MonthIncome.end(), income);
        return true;
    }

    double escalated(double last) {
        if (m_clock.now() == PhaseClock::first) return last + last * m_phases.phase0.Esc / 100;
        m_clock.turn();
        if (m_hasSecondIncome) return last + last * m_phases.phase1.Esc / 100;
        m_hasSecondIncome = true;
        return m_phases.phase1.LAInitDraw;
    }

    bool isPastLastYear(int month) const {
        const double year = month / 12.0;
        return year > m_phases.phase0.ToYear && (m_phases.phase1.ToYear == 0 || year > m_phases.phase1.ToYear);
    }

    const DrawDownPhases& m_phases;
    const DrawDownCosts& m_costs;
    double& m_NomRate;
    PhaseClock m_clock{m_phases};
    double m_portfolio = 0;
    bool m_hasSecondIncome = false; ///< the second phase began with an income of its own
    DrawDownResult m_result;
};

} // namespace

bool DrawDownResult::isFinite() const {
    const auto areFinite = [](const Yearly& years) {
        return std::all_of(years.begin(), years.end(), [](double value) { return std::isfinite(value); });
    };
    return std::isfinite(NetPercent) && areFinite(YearPortfolio) && areFinite(YearIncome) && areFinite(YearChange);
}

std::string DrawDownResult::sentence() const {
    const std::string years = DrawYears == 1 ? "1 year" : std::to_string(DrawYears) + " years";
    if (end == DrawDownEnd::exhausted) return "The income is paid for " + years + "; the portfolio can't pay another.";
    if (DrawYears == 0) return {};
    return "The income is paid for " + years + ".";
}

DrawDownResult DrawDownCalc(const assessment::DrawDown& annuity, const DrawDownPhases& phases,
                            const DrawDownCosts& costs, double& NomRate) {
    return Run(phases, costs, NomRate).of(annuity.LSAmt);
}

std::vector<AmortisationRow> yearRows(const DrawDownResult& result) {
    std::vector<AmortisationRow> rows;
    for (int year = 1; year <= result.DrawYears; ++year) {
        const auto at = static_cast<std::size_t>(year);
        rows.push_back({year, result.YearPortfolio[at], result.YearIncome[at], result.YearChange[at]});
    }
    return rows;
}

IncomeRange firstIncomeRange(double LSAmt, const DrawDownCosts& costs) {
    return {costs.MinIncAllowed / 100 * LSAmt / 12, costs.MaxIncAllowed / 100 * LSAmt / 12};
}

FirstIncome checkFirstIncome(double LSAmt, double LAInitDraw0, const DrawDownCosts& costs) {
    if (!(LSAmt > 0 && LAInitDraw0 > 0)) return FirstIncome::allowed;
    const auto [lowest, highest] = firstIncomeRange(LSAmt, costs);
    if (LAInitDraw0 > highest) return FirstIncome::aboveMaximum;
    return LAInitDraw0 < lowest ? FirstIncome::belowMinimum : FirstIncome::allowed;
}

} // namespace calculators

#pragma once

#include "assessment/assessment.h"

namespace finance {

/// What is paid into an investment, and how both grow.
struct Plan {
    double single = 0;     ///< rand, paid in month 1
    double annual = 0;     ///< rand a year, first paid in month 1
    double monthly = 0;    ///< rand a month
    int months = 0;        ///< term
    double growth = 0;     ///< percent a year, added monthly without compounding within the month
    double escalation = 0; ///< percent by which both regular payments rise every 12 months
};

/// The last month of a year of the plan.
constexpr bool isYearEnd(int month) { return month > 1 && month % 12 == 0; }
/// The first month of a later year, in which the regular payments rise and the annual one is due again.
constexpr bool isAnniversary(int month) { return month > 1 && month % 12 == 1; }

/// A value after a month's growth.
constexpr double grown(double value, double percentAYear) { return value + value * percentAYear / 1200; }
/// A payment after its yearly rise.
constexpr double risen(double payment, double percent) { return payment + payment * percent / 100; }

/// When a unit trust's trail commission (UTAComPortVal, percent of the value a year) is taken. Quotations take it all
/// at each year end; the premium screen a twelfth every month from the second on. The difference is meant.
enum class Trail { atYearEnd, monthly };

/// The months of a unit trust, of which only month 1 has passed at first.
///
/// Reads UTCOM, UTDiv, UTAMFee and UTAComPortVal (percent). Each payment loses UTCOM before it is invested. At a year
/// end the management fee comes off after that month's growth, and so does a trail commission taken then.
class UnitTrust {
public:
    UnitTrust(const Plan& plan, const assessment::FundDefaults& funds, Trail trail);

    /// The next month.
    void goOn();

    double TotalInvested = 0; ///< rand paid in so far
    double UTValue = 0;       ///< rand, dividends paid out
    double UTValueNoFee = 0; ///< rand, dividends (UTDiv, percent a year) re-invested. Despite its name it pays all fees

private:
    double invested(double payment) const { return payment - payment * m_funds.UTCOM / 100; }

    assessment::FundDefaults m_funds;
    Trail m_trail;
    double m_growth, m_escalation;
    double m_annual, m_monthly;
    int m_month = 1;
};

} // namespace finance

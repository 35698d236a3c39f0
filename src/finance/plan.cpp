#include "finance/plan.h"

namespace finance {

UnitTrust::UnitTrust(const Plan& plan, const assessment::FundDefaults& funds, Trail trail)
    : TotalInvested(plan.single + plan.annual + plan.monthly), m_funds(funds), m_trail(trail), m_growth(plan.growth),
      m_escalation(plan.escalation), m_annual(plan.annual), m_monthly(plan.monthly) {
    UTValue = UTValueNoFee = grown(invested(TotalInvested), m_growth);
}

void UnitTrust::goOn() {
    ++m_month;
    const bool anniversary = isAnniversary(m_month);
    if (anniversary) {
        m_annual = risen(m_annual, m_escalation);
        m_monthly = risen(m_monthly, m_escalation);
        UTValue += invested(m_annual);
        UTValueNoFee += invested(m_annual);
    }
    TotalInvested += anniversary ? m_annual + m_monthly : m_monthly;
    for (double* value : {&UTValue, &UTValueNoFee})
        *value = grown(*value + invested(m_monthly), m_growth);
    if (isYearEnd(m_month)) {
        UTValueNoFee += UTValueNoFee * m_funds.UTDiv / 100;
        for (double* value : {&UTValue, &UTValueNoFee}) {
            *value -= *value * m_funds.UTAMFee / 100;
            if (m_trail == Trail::atYearEnd) *value -= *value * m_funds.UTAComPortVal / 100;
        }
    }
    if (m_trail == Trail::monthly)
        for (double* value : {&UTValue, &UTValueNoFee})
            *value -= (m_funds.UTAComPortVal / 100 / 12) * *value;
}

} // namespace finance

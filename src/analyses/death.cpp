#include "analyses/death.h"

#include <cmath>

#include "analyses/itemise.h"
#include "client/policyschedule.h"

namespace analyses {

namespace {

/// The monthly income from the policies on death. In the first year all of it counts, whatever the terms and the flag
/// of the policies' line; later only within each term and only while the flag is on. The difference is deliberate.
PolicyIncome policyIncome(const assessment::Assessment& record) {
    PolicyIncome income;
    for (const assessment::Policy& policy : record.policies)
        income.firstYear += policy.DeathBenMonthly;
    if (record.itemised.DTHLifeAssItemise == 0) return income;
    for (const assessment::Policy& policy : record.policies)
        addPolicyIncome(income.later, policy.DeathBenMonthly, policy.DeathBenMonEsc, policy.DeathBenYears);
    return income;
}

} // namespace

CoverNeeds deathNeeds(const assessment::Assessment& record) {
    const assessment::NADeath& group = record.death;
    const assessment::Itemised& lists = record.itemised;
    return {.income = group.Income,
            .years = group.PeriodDeath,
            .inflation = group.Inflation,
            .rate = group.InvestRate,
            .available = group.DeathMIAvail,
            .policies = policyIncome(record),
            .assets = {group.ANSAss1, group.ANSAss2, group.ANSAss4, group.ANSAss5, group.ANSAss6}, // no ANSAss3
            .liabilities = {group.ANSLib1, group.ANSLib2, group.ANSLib3, group.ANSLib4, group.lib5},
            .required = &lists.DTHMonIncReq,
            .sources = &lists.DTHFutMonInc,
            .sales = {&lists.DTHRealEst, &lists.DTHStocks, &lists.DTHCars, &lists.DTHOtherCap},
            .debts = {&lists.DTHMortgage, &lists.DTHOtherLoans, &lists.DTHCreditCard, &lists.DTHEstateDuty,
                      &lists.DTHOtherExp}};
}

NeedsAnalysis NADeathCalc(assessment::Assessment& record) {
    client::CalculatePolInv(record);
    capRates(record.death.Inflation, record.death.InvestRate);
    return analyseCover(deathNeeds(record), deathSentences, std::isfinite(client::capitalOnDeath(record.policies)));
}

void prepareDeath(assessment::Assessment& record) { deriveItemised(record, assessment::Analysis::death); }

NeedsAnalysis runDeath(assessment::Assessment& record) {
    prepareDeath(record);
    return NADeathCalc(record);
}

} // namespace analyses

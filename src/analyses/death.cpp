#include "analyses/death.h"

#include <cmath>

#include "analyses/itemise.h"
#include "client/policyschedule.h"

namespace analyses {

CoverNeeds deathNeeds(const assessment::Assessment& record) {
    const assessment::NADeath& group = record.death;
    const assessment::Itemised& lists = record.itemised;
    using P = assessment::Policy;
    return {.income = group.Income,
            .years = group.PeriodDeath,
            .inflation = group.Inflation,
            .rate = group.InvestRate,
            .available = group.DeathMIAvail,
            .policies = policyIncome(
                record.policies,
                {{&P::DeathBenMonthly, &P::DeathBenMonEsc, [](const P& policy) { return policy.DeathBenYears; }}},
                lists.DTHLifeAssItemise != 0),
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

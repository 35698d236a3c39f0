#include "analyses/disability.h"

#include <cmath>
#include <limits>

#include "analyses/itemise.h"
#include "client/policyschedule.h"

namespace analyses {

namespace {

/// The monthly income from the policies on disability. In the first year all of it counts, as on death. Later it counts
/// only while the flag of the policies' line is on: disability income without a term, income protection within its own.
/// A death benefit has a term; this difference is deliberate. All disability incomes are added before the first
/// protection.
PolicyIncome policyIncome(const assessment::Assessment& record) {
    constexpr double noTerm = std::numeric_limits<double>::infinity();
    PolicyIncome income;
    for (const assessment::Policy& policy : record.policies)
        income.firstYear += policy.DisabilMonthly + policy.IncProMonthly;
    if (record.itemised.DISALifeAssItemise == 0) return income;
    for (const assessment::Policy& policy : record.policies)
        addPolicyIncome(income.later, policy.DisabilMonthly, policy.DisabilMonEscAt, noTerm);
    for (const assessment::Policy& policy : record.policies)
        addPolicyIncome(income.later, policy.IncProMonthly, policy.IncProMonEscAt, policy.IncProYears);
    return income;
}

} // namespace

CoverNeeds disabilityNeeds(const assessment::Assessment& record) {
    const assessment::NADisability& group = record.disability;
    const assessment::Itemised& lists = record.itemised;
    return {.income = group.MDisaDTS5,
            .years = group.MDisaDTS15,
            .inflation = group.MDisaDTS6,
            .rate = group.MDisaDTS7,
            .available = group.DisaMIAvail,
            .policies = policyIncome(record),
            .assets = {group.DisaASS1, group.DisaASS2, group.DisaASS4, group.DisaASS5, group.DisaASS6},
            .liabilities = {group.Disalib1, group.Disalib2, group.Disalib3, group.Disalib4, group.Disalib5},
            .required = &lists.DISAMonIncReq,
            .sources = &lists.DISAFutMonInc,
            .sales = {&lists.DISARealEst, &lists.DISAStocks, &lists.DISACars, &lists.DISAOtherCap},
            .debts = {&lists.DISAMortgage, &lists.DISAOtherLoans, &lists.DISACreditCard, &lists.DISAEstateDuty,
                      &lists.DISAOtherExp}};
}

NeedsAnalysis NADisabilityCalc(assessment::Assessment& record) {
    client::CalculatePolInv(record);
    capRates(record.disability.MDisaDTS6, record.disability.MDisaDTS7);
    const bool isFinite = std::isfinite(client::capitalOnDisability(record.policies));
    return analyseCover(disabilityNeeds(record), disabilitySentences, isFinite);
}

void prepareDisability(assessment::Assessment& record) { deriveItemised(record, assessment::Analysis::disability); }

NeedsAnalysis runDisability(assessment::Assessment& record) {
    prepareDisability(record);
    return NADisabilityCalc(record);
}

} // namespace analyses

#include "analyses/disability.h"

#include <cmath>

#include "analyses/itemise.h"
#include "client/policyschedule.h"

namespace analyses {

CoverNeeds disabilityNeeds(const assessment::Assessment& record) {
    const assessment::NADisability& group = record.disability;
    const assessment::Itemised& lists = record.itemised;
    using P = assessment::Policy;
    return {.income = group.MDisaDTS5,
            .years = group.MDisaDTS15,
            .inflation = group.MDisaDTS6,
            .rate = group.MDisaDTS7,
            .available = group.DisaMIAvail,
            .policies = policyIncome(
                record.policies,
                {{&P::DisabilMonthly, &P::DisabilMonEscAt}, // has no term, deliberately: a death benefit has one
                 {&P::IncProMonthly, &P::IncProMonEscAt, [](const P& policy) -> double { return policy.IncProYears; }}},
                lists.DISALifeAssItemise != 0),
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

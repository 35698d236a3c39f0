#include "analyses/premium.h"

#include "finance/capitalpremium.h"

namespace analyses {

double yearsUntilNeeded(const assessment::NARetirement& needs) { return needs.AgeRetiment - needs.CurrAge; }
double yearsUntilNeeded(const assessment::NAEducation& needs) { return needs.YearsToEdu; }

void carryPremium(assessment::Assessment& record, const RetirementAnalysis& analysis) {
    record.premiums.source = 2;
    finance::carryCapital(record.premiums.retirement, analysis.capitalToProvide(), yearsUntilNeeded(record.retirement));
}

void carryPremium(assessment::Assessment& record, const EducationAnalysis& analysis) {
    record.premiums.source = 1;
    finance::carryCapital(record.premiums.education, analysis.capitalToProvide(), yearsUntilNeeded(record.education));
}

} // namespace analyses

#pragma once

#include "analyses/education.h"
#include "analyses/retirement.h"

/// The premium that provides the capital of an analysis: see finance/capitalpremium.h.
namespace analyses {

/// Years until a capital is needed: to retirement without a limit, or to education.
double yearsUntilNeeded(const assessment::NARetirement& needs);
double yearsUntilNeeded(const assessment::NAEducation& needs);

/// Carries the capital to provide and the years into the client's premium, and makes it the one that the premium screen
/// shows.
void carryPremium(assessment::Assessment& record, const RetirementAnalysis& analysis);
void carryPremium(assessment::Assessment& record, const EducationAnalysis& analysis);

} // namespace analyses

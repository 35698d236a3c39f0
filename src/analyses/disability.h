#pragma once

#include "analyses/cover.h"
#include "assessment/assessment.h"

namespace analyses {

/// What the disability analysis takes out of the record: the disability group, its lists and the policies.
CoverNeeds disabilityNeeds(const assessment::Assessment& record);

/// How long the capital of a client who is disabled today carries his income, and how much more or less of it the years
/// asked for need. The twin of NADeathCalc, with which it shares what is read, written and promised, but for the
/// policies' income and the edges of the sentences.
NeedsAnalysis NADisabilityCalc(assessment::Assessment& record);

/// What comes before an analysis: the income and the period that lists in use ask for.
void prepareDisability(assessment::Assessment& record);

/// The analysis of a client who need not be on any screen, as the screen shows it when it is opened.
NeedsAnalysis runDisability(assessment::Assessment& record);

} // namespace analyses

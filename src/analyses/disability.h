#pragma once

#include "analyses/cover.h"
#include "assessment/assessment.h"

namespace analyses {

/// Collects the inputs of the disability analysis: the disability group, its lists and the policies.
CoverNeeds disabilityNeeds(const assessment::Assessment& record);

/// How long the capital of a client who is disabled today provides the required income, and how much more or less
/// capital the years asked for need. Reads, writes and returns the same as NADeathCalc; it differs in the policies'
/// income and in the limits of the sentences.
NeedsAnalysis NADisabilityCalc(assessment::Assessment& record);

/// Prepares an analysis: sets income and period from the lists in use.
void prepareDisability(assessment::Assessment& record);

/// Runs the analysis without a screen. Gives what the screen shows when it is opened.
NeedsAnalysis runDisability(assessment::Assessment& record);

} // namespace analyses

#pragma once

#include "analyses/cover.h"
#include "assessment/assessment.h"

namespace analyses {

/// Collects the inputs of the death analysis: the death group, its lists and the policies as they are.
CoverNeeds deathNeeds(const assessment::Assessment& record);

/// How long the capital that the client leaves provides the family's income, and how much more or less capital the
/// years asked for need.
///
/// Reads the death group, its itemised lists and the policies, whose totals it recalculates. Writes these totals and
/// rates above their limits, which are silently reduced to them; the retirement group's incomes of the same names are
/// unchanged. If no capital up to 10^15 rand suffices, `CapitalSolved` is 0 and `txtAns2` empty. If figures are too
/// large to calculate with, both sentences are an error, and no result that is not finite enters the record.
NeedsAnalysis NADeathCalc(assessment::Assessment& record);

/// Prepares an analysis: sets income and period from the lists in use.
void prepareDeath(assessment::Assessment& record);

/// Runs the analysis without a screen. Gives what the screen shows when it is opened.
NeedsAnalysis runDeath(assessment::Assessment& record);

} // namespace analyses

#pragma once

#include "analyses/cover.h"
#include "assessment/assessment.h"

namespace analyses {

/// What the death analysis takes out of the record: the death group, its lists and the policies as they stand.
CoverNeeds deathNeeds(const assessment::Assessment& record);

/// How long the capital that a client leaves carries his family's income, and how much more or less of it the years
/// asked for need.
///
/// Reads the death group, its itemised lists and the policies, which it folds in afresh. Writes the policies' totals
/// and rates above their caps, which are corrected without a word; the retirement group's incomes of the same names
/// stay as they are. If no capital up to 10^15 rand suffices, `CapitalSolved` is 0 and `txtAns2` empty. Of figures too
/// large to reckon with both sentences are an error, and what is not finite stays out of the record.
NeedsAnalysis NADeathCalc(assessment::Assessment& record);

/// What comes before an analysis: the income and the period that lists in use ask for.
void prepareDeath(assessment::Assessment& record);

/// The analysis of a client who need not be on any screen, as the screen shows it when it is opened.
NeedsAnalysis runDeath(assessment::Assessment& record);

} // namespace analyses

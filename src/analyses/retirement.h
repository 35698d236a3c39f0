#pragma once

#include "analyses/needs.h"
#include "assessment/assessment.h"

namespace analyses {

/// The years are ages: the first is `AgeRetiment`. `IncomeReqFV` and `PolicyMonthlyIncome` are whole rand.
using RetirementAnalysis = NeedsAnalysis;

/// How long the capital at retirement carries the income wanted, and how much more or less of it the years asked for
/// need.
///
/// Reads the retirement group, its itemised lists and the policies, which it folds in afresh. Writes the policies'
/// totals, `IncomeRA` (the itemised income of the last year that the search ran, rand a month) and rates above their
/// caps, which are corrected without a word. Years asked for above 50 count as 50. If no capital up to 10^15 rand
/// suffices, `CapitalSolved` is 0 and `txtAns2` empty. Of figures too large to reckon with both sentences are an error,
/// and what is not finite stays out of the record.
RetirementAnalysis NARACalc(assessment::Assessment& record);

/// What comes before an analysis: the age on a day of a client whose birth date is known, a retirement that lies before
/// that age moved up to it, and what follows from the ages. An age that no client has moves nothing.
void prepareRetirement(assessment::Assessment& record, double today);

/// The analysis of a client who need not be on any screen, as the screen shows it when it is opened on that day.
RetirementAnalysis runRetirement(assessment::Assessment& record, double today);

/// Moves a retirement that lies before the age of today up to it.
void retireNotBeforeToday(assessment::NARetirement& needs);

/// What follows from the two ages: `YearsToRet`, and from an itemised need `IncomePD` and `CoverYears`.
void followAges(assessment::Assessment& record);

/// Works out `YearsToRet` after either age has changed: 0 to 50.
void updateYearsToRet(assessment::NARetirement& needs);

/// Sums of the five capital and of the five expense lines, rand; of the policies' line whole rand alone.
double totalCapital(const assessment::NARetirement& needs);
double totalExpenses(const assessment::NARetirement& needs);

} // namespace analyses

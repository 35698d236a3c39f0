#pragma once

#include "analyses/needs.h"
#include "assessment/assessment.h"

namespace analyses {

/// The years are ages: the first is `AgeRetiment`. `IncomeReqFV` and `PolicyMonthlyIncome` are whole rand.
using RetirementAnalysis = NeedsAnalysis;

/// How long the capital at retirement provides the required income, and how much more or less capital the years asked
/// for need.
///
/// Reads the retirement group, its itemised lists and the policies, whose totals it recalculates. Writes these totals,
/// `IncomeRA` (the itemised income of the last year of the search, rand a month) and rates above their limits, which
/// are silently reduced to them. More than 50 years asked for count as 50. If no capital up to 10^15 rand suffices,
/// `CapitalSolved` is 0 and `txtAns2` empty. If figures are too large to calculate with, both sentences are an error,
/// and no result that is not finite enters the record.
RetirementAnalysis NARACalc(assessment::Assessment& record);

/// Prepares an analysis for a day: if the birth date is known, calculates the age on that day, moves an earlier
/// retirement up to that age, and updates what depends on the ages. An impossible age changes nothing.
void prepareRetirement(assessment::Assessment& record, double today);

/// Runs the analysis without a screen. Gives what the screen shows if it is opened on that day.
RetirementAnalysis runRetirement(assessment::Assessment& record, double today);

/// Moves a retirement age that is below today's age up to it.
void retireNotBeforeToday(assessment::NARetirement& needs);

/// Updates what depends on the two ages: `YearsToRet`, and with an itemised need `IncomePD` and `CoverYears`.
void followAges(assessment::Assessment& record);

/// Calculates `YearsToRet`, 0 to 50. Call it after either age has changed.
void updateYearsToRet(assessment::NARetirement& needs);

/// Sums of the five capital lines and of the five expense lines, rand; the policies' line counts in whole rand.
double totalCapital(const assessment::NARetirement& needs);
double totalExpenses(const assessment::NARetirement& needs);

} // namespace analyses

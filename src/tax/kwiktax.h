#pragma once

#include "assessment/assessment.h"
#include "tax/taxtables.h"

namespace tax {

/// Taxes `Salary` by the scale of a year, and stores the tax in `LastScaleTax` for later callers.
ScaleTax taxSalary(assessment::KwikTax& client, const TaxYear& year);
/// The same for the two scales that quick tax offers.
ScaleTax TABLEVIEW2026(assessment::KwikTax& client);
ScaleTax TABLEVIEW2027(assessment::KwikTax& client);

/// Details of the tax on one taxable income: rand a year, rates percent.
struct QuickTax {
    double TaxOnLowerLimit = 0;
    double MarginalRate = 0;
    double PortionAtRate = 0;
    double ScaleTax = 0;
    double TotalTax = 0;
    double TotalRebates = 0;  ///< whole rand
    double TaxCommitment = 0; ///< never below 0
    double AverageBefore = 0; ///< before rebates; the bracket's own rate if there is no tax
    double AverageAfter = 0;  ///< after rebates; never below 0
};

/// True if the client's choice is the tax year to February 2026; any value other than 0 means February 2027.
bool choosesFebruary2026(const assessment::KwikTax& client);

/// Taxes the client's `Salary` at the client's `Age` for the year chosen by `YR9798`. Writes only `LastScaleTax`.
QuickTax quickTax(assessment::KwikTax& client);

} // namespace tax

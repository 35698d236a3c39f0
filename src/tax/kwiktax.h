#pragma once

#include "assessment/assessment.h"
#include "tax/taxtables.h"

namespace tax {

/// Taxes `Salary` by the scale of a year, and leaves the tax in `LastScaleTax` for whoever reads it after the call.
ScaleTax taxSalary(assessment::KwikTax& client, const TaxYear& year);
/// The same by the two scales that quick tax offers.
ScaleTax TABLEVIEW2026(assessment::KwikTax& client);
ScaleTax TABLEVIEW2027(assessment::KwikTax& client);

/// How one taxable income is taxed: rand a year, rates percent.
struct QuickTax {
    double TaxOnLowerLimit = 0;
    double MarginalRate = 0;
    double PortionAtRate = 0;
    double ScaleTax = 0;
    double TotalTax = 0;
    double TotalRebates = 0;  ///< whole rand
    double TaxCommitment = 0; ///< never below 0
    double AverageBefore = 0; ///< before rebates; the bracket's own rate where there is no tax
    double AverageAfter = 0;  ///< after rebates; never below 0
};

/// True if the client's choice of tax year is the one to February 2026; every other figure means February 2027.
bool choosesFebruary2026(const assessment::KwikTax& client);

/// Taxes the client's `Salary` at his `Age` for the year that `YR9798` chooses. Writes `LastScaleTax` alone.
QuickTax quickTax(assessment::KwikTax& client);

} // namespace tax

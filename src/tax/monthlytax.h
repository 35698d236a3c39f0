#pragma once

#include <cstdint>

#include "assessment/assessment.h"
#include "tax/payesetup.h"
#include "tax/taxtables.h"

namespace tax {

/// What an employer knows of one employee's month: rand for the days from start to end.
struct MonthlyInputs {
    std::int16_t age = 0;
    double salary = 0;           ///< includes fringe benefits, excludes the travel allowance; whole rand
    double commissions = 0;      ///< whole rand
    double travel = 0;           ///< allowance, or the benefit of a company car
    double bonus = 0;            ///< taxed in full in this month
    double employerFund = 0;     ///< retirement fund, whole rand
    double employeeFund = 0;     ///< whole rand
    double employerMedical = 0;  ///< medical scheme, whole rand
    double employeeMedical = 0;  ///< whole rand
    std::int16_t medAidBens = 0; ///< persons that the medical scheme covers
    double startDate = 46082;    ///< day number: 1 March 2026
    double endDate = 46112;      ///< day number: 31 March 2026

    bool operator==(const MonthlyInputs&) const = default;
};

/// What is withheld and paid over for the month, rand, unrounded.
struct MonthlyTax {
    double allowableFund = 0;      ///< deduction for retirement fund contributions
    double taxableTravel = 0;      ///< the part of the travel amount that is taxable income
    double employeeUIF = 0;        ///< unemployment insurance
    double employerUIF = 0;        ///< unemployment insurance
    double skillsLevy = 0;         ///< paid by the employer
    double taxLiability = 0;       ///< before medical credits
    double beneficiaryCredit = 0;  ///< for the persons covered
    double contributionCredit = 0; ///< for high contributions, from 65 on
    double totalTaxDeduction = 0;  ///< the amount deducted from the salary
};

/// Why a month can't be calculated.
enum class DateFault { none, noStart, noEnd, otherMonth, startAfterEnd };

/// Compares month and day only, never the year. A single day is a valid period.
DateFault dateFault(const MonthlyInputs& inputs);

/// Days in the start date's month. February always has 29, so that a month's fraction does not depend on leap years.
double monthLength(double startDate);

/// Taxes `Salary` by the scale of the monthly tax, and stores the tax in `LastScaleTax`.
ScaleTax TABLEVIEW(assessment::KwikTax& client);

/// Calculates a month; the dates must have passed `dateFault`.
///
/// previousInclusionRate: the part of the travel amount that the test of the fund deduction counts. It is that of the
/// previous calculation, 0 for the first, because the test comes before the current rate is set: a second run with the
/// same figures may allow more. Returns the current rate in it. The scale uses the client's `Salary`, which ends as the
/// annual income without the bonus; `LastScaleTax` is the tax on that.
MonthlyTax monthlyTax(const MonthlyInputs& inputs, const PAYESetup& setup, double& previousInclusionRate,
                      assessment::KwikTax& client);

} // namespace tax

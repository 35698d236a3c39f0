#pragma once

#include <optional>
#include <string>

#include "assessment/assessment.h"
#include "finance/incomescale.h"

namespace calculators {

/// A fixed deposit at one rate: rand a month, and the tax on the year's income with it.
struct FixedDeposit {
    double FXMonInc = 0;      ///< interest before tax
    double taxableIncome = 0; ///< rand a year: income, the interest above its exemption, and the tax-free income
    finance::ScaleTax scaleTax;
    double tax = 0;         ///< rand a year after the rebates, never below 0
    double FXLessTax = 0;   ///< the part of the tax that the deposit causes, never below 0
    double FXMonAftTax = 0; ///< what is left
};

/// A deposit rate (percent a year) from which a fixed deposit pays more than the annuity.
struct BreakEven {
    double rate = 0;
    double rateBelow = 0; ///< a tenth of a percent less: there the deposit pays no more than the annuity
    FixedDeposit deposit; ///< the same deposit at `rate`

    /// "Only a fixed deposit rate of 12.3 %p.a. would beat the annuity!"
    std::string sentence() const;
};

/// What a life annuity and a fixed deposit pay after tax.
struct InvestmentComparison {
    double exemption = 0;      ///< interest free of tax at this age, rand a year
    double rebates = 0;        ///< rand a year
    double taxOnIncome = 0;    ///< on the taxable income alone, rand a year
    double taxWithAnnuity = 0; ///< on the taxable income and a year's taxable annuity, rand a year
    double TotMon = 0;         ///< annuity before tax, rand a month
    double LessMonAnn = 0;     ///< tax on it, rand a month, never below 0
    double MonAfterAnn = 0;    ///< annuity after tax, rand a month
    FixedDeposit deposit;      ///< at the rate entered
    std::optional<BreakEven> breakEven;

    bool isFinite() const;
    double RATE() const { return breakEven ? breakEven->rate : 0; } ///< 0 without a break-even
};

/// Tax for the year on an income (rand a year) by the comparison's own scale and rebates; never below 0.
double comparisonTax(double income, double rebates);

/// Compares the annuity and the deposit of a client of this age (years, may be a fraction). Reads CTaxInc and CTaxFreeI
/// (rand a year), MonTFAnn and MonTAnn (rand a month), FDAmount (rand) and FXInt (percent a year). The tax-free income
/// counts with the deposit's interest although it is not taxed with the annuity; this is meant.
///
/// The break-even raises FXInt by tenths of a percent until the deposit pays more. There is none if the deposit already
/// pays as much, if its amount is not above 0, or if no rate suffices. It gives the rate that plain steps give, to the
/// last bit, in a few microseconds.
InvestmentComparison compareInvestments(const assessment::InvestComparison& inputs, double age);

} // namespace calculators

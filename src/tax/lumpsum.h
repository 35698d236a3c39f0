#pragma once

#include <span>

#include "assessment/lumpsums.h"

namespace tax {

/// Tax on lump sums from retirement funds, by the cumulative method: all lump sums of the taxpayer's life are taxed
/// together, and the tax that the same table gives on those taken before is deducted. Tax paid in earlier years plays
/// no part. Amounts are rand.

/// One band of a lump sum table: cumulative amounts above `over`.
struct LumpSumBand {
    double over;
    double taxOnOver;
    double rate; ///< on the part above `over`, a fraction
};

/// A table of lump sum tax: Second Schedule to the Income Tax Act, Rates and Monetary Amounts and Amendment of Revenue
/// Laws Act of 2026. There is no tax up to the first band.
struct LumpSumTable {
    LumpSumBand bands[3];
    double freeUpTo; ///< no tax if the amounts tested do not exceed this, whatever the bands say

    double taxOn(double total) const;
};

/// 1 March 2026 to 28 February 2027.
inline constexpr LumpSumTable withdrawalTable2027{
    {{27500, 0, 0.18}, {726000, 125730, 0.27}, {1089000, 223740, 0.36}},
    27500,
};
/// The amount tested is below the first band on purpose: between the two the bands give 0 in any case.
inline constexpr LumpSumTable benefitTable2027{
    {{550000, 0, 0.18}, {770000, 39600, 0.27}, {1155000, 143550, 0.36}},
    300000,
};

/// The reason for leaving the fund with the last lump sum of this year: `FstLumpTaken`.
enum class LumpSumReason { none = 0, resignation = 1, retrenchment = 2, retirement = 3 };

/// The reasons in the order of the screen's columns.
inline constexpr LumpSumReason lumpSumReasons[] = {LumpSumReason::resignation, LumpSumReason::retrenchment,
                                                   LumpSumReason::retirement};

/// The tax years with fields, as the index into the record's arrays: the first year stands for 1 March 2009 to 28
/// February 2021, the last is the current one. Earlier fields are kept with the client but have no part in the tax.
inline constexpr std::size_t firstLumpSumYear = 2021 - assessment::LumpSums::firstYear;
inline constexpr std::size_t currentLumpSumYear = 2027 - assessment::LumpSums::firstYear;

/// The amounts of one reason by year.
std::span<double, assessment::LumpSums::years> amountsOf(assessment::LumpSums& lumpSums, LumpSumReason reason);

/// The choice of the table; none for a value other than 1, 2 or 3.
LumpSumReason chosenReason(const assessment::LumpSums& lumpSums);

/// How the tax came about.
struct LumpSumTax {
    const LumpSumTable* table = nullptr; ///< null if none was used, and the tax is 0
    double sinceMarch2009 = 0;           ///< all amounts of the grid
    double total = 0;                    ///< and those at retirement before
    double taxOnTotal = 0;
    double prior = 0; ///< total without the current year's amounts that this table taxes
    double taxOnPrior = 0;
    double taxDue = 0; ///< on this year's amounts, not rounded
};

/// The tax due on the lump sums of the current tax year; 0 without a chosen reason, or without an amount above 0 this
/// year.
LumpSumTax LumpSumCalc(const assessment::LumpSums& lumpSums);

} // namespace tax

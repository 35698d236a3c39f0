#pragma once

#include <filesystem>

#include "assessment/assessment.h"
#include "assessment/fieldtable.h"

namespace tax {

/// The practice's settings of the estate duty estimator: the one row of `EstateDutyEst` in Default.Mdb. The shipped
/// row has the rates of the Estate Duty Act and the highest tariff of executors' fees.
struct EstateDutyRates {
    double EstateDutyRebate = 0; ///< rand, not negative
    double RateofTax = 0;        ///< percent, 0 to 100
    double SndBracket = 0;       ///< rand, not negative: where the second rate begins
    double RateofTax2 = 0;       ///< percent, 0 to 100
    double ExecFeesRate = 0;     ///< percent of what the executor administers, 0 to 100
};

/// Its fields; the report's table of the same name has them too.
const assessment::FieldTable<EstateDutyRates>& estateDutyRatesTable();

/// Throws store::Error if the file, the table, the row or a figure is missing, or if a figure is out of range.
EstateDutyRates readEstateDutyRates(const std::filesystem::path& defaultDbPath);

/// If it throws store::Error, the row is unchanged.
void writeEstateDutyRates(const std::filesystem::path& defaultDbPath, const EstateDutyRates& rates);

/// A rough figure for the cost of dying: rand, not rounded.
struct EstateDutyEstimate {
    double totalEstate = 0;
    double dutiable = 0; ///< less the accrual amount, never below 0
    bool reachesSecondTier = false;
    double duty = 0; ///< never below 0
    double totalExecutor = 0;
    double leviable = 0; ///< less the accrual amount, never below 0
    double fees = 0;

    bool isFinite() const;
};

/// Estimates duty and executor's fees. If the dutiable amount less the rebate is above `SndBracket`, the first rate is
/// charged on the part between rebate and `SndBracket`, and the second on the total before the accrual above
/// `SndBracket`.
EstateDutyEstimate estimateEstateDuty(const assessment::EstateDuty& estate, const EstateDutyRates& rates);

} // namespace tax

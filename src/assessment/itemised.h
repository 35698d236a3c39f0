#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace assessment {

/// One row of an itemised line. The list's layout decides which figures besides the amount it uses.
struct ItemRow {
    std::string IncomeSource;
    double Amount = 0;
    double Escalation = 0; ///< income lists: percent a year
    double FromAge = 0;    ///< income lists: age or year
    double ToAge = 0;      ///< income lists: age or year
    double At = 0;         ///< timed lists: age or year (`OccurAge`, `MatAtAge`)

    bool operator==(const ItemRow&) const = default;
};

/// What an itemised list stores besides text and amount.
enum class ItemLayout { income, plain, occurrenceAge, maturityAge };

/// A money line that may be itemised: if the flag is 1, its rows count instead of the plain amount.
struct ItemList {
    std::int16_t flag = 0;
    std::vector<ItemRow> rows;

    bool operator==(const ItemList&) const = default;
};

/// All itemised lines of the three needs analyses, named after their flags without "Itemise".
struct Itemised {
    ItemList RNAFutMonInc, RNARealEst, RNAStocks, RNABussSale, RNAOtherCap, RNAMortgage, RNARetProp, RNANewCar,
        RNATravel, RNAOtherExp, RNAMonIncReq;
    ItemList DTHMonIncReq, DTHFutMonInc, DTHRealEst, DTHStocks, DTHInvestments, DTHCars, DTHOtherCap, DTHMortgage,
        DTHOtherLoans, DTHCreditCard, DTHEstateDuty, DTHOtherExp;
    ItemList DISAMonIncReq, DISAFutMonInc, DISARealEst, DISAStocks, DISAInvestments, DISACars, DISAOtherCap,
        DISAMortgage, DISAOtherLoans, DISACreditCard, DISAEstateDuty, DISAOtherExp;
    /// Totals of the policies: a flag, but no rows and no table.
    std::int16_t RNAPoliciesItemise = 0, DTHLifeAssItemise = 0, DISALifeAssItemise = 0;
    /// The pension from the policies: a flag that is recomputed with them and never stored.
    std::int16_t NARAPolicyIncomeItemise = 0;

    bool operator==(const Itemised&) const = default;
};

} // namespace assessment

#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace assessment {

/// One row of an itemised line. Which of the figures behind the amount a list keeps depends on its layout.
struct ItemRow {
    std::string IncomeSource;
    double Amount = 0;
    double Escalation = 0; ///< income lists: percent a year
    double FromAge = 0;    ///< income lists: age or year
    double ToAge = 0;      ///< income lists: age or year
    double At = 0;         ///< timed lists: age or year (`OccurAge`, `MatAtAge`)

    bool operator==(const ItemRow&) const = default;
};

/// What an itemised list keeps behind text and amount.
enum class ItemLayout { income, plain, occurrenceAge, maturityAge };

/// A money line that may be itemised: 1 means that the rows count in place of the plain amount.
struct ItemList {
    std::int16_t flag = 0;
    std::vector<ItemRow> rows;

    bool operator==(const ItemList&) const = default;
};

/// Every itemised line of the three big analyses, each under the name of its flag without "Itemise".
struct Itemised {
    ItemList RNAFutMonInc, RNARealEst, RNAStocks, RNABussSale, RNAOtherCap, RNAMortgage, RNARetProp, RNANewCar,
        RNATravel, RNAOtherExp, RNAMonIncReq;
    ItemList DTHMonIncReq, DTHFutMonInc, DTHRealEst, DTHStocks, DTHInvestments, DTHCars, DTHOtherCap, DTHMortgage,
        DTHOtherLoans, DTHCreditCard, DTHEstateDuty, DTHOtherExp;
    ItemList DISAMonIncReq, DISAFutMonInc, DISARealEst, DISAStocks, DISAInvestments, DISACars, DISAOtherCap,
        DISAMortgage, DISAOtherLoans, DISACreditCard, DISAEstateDuty, DISAOtherExp;
    /// Fed by the policies: a flag, no rows and no table.
    std::int16_t RNAPoliciesItemise = 0, DTHLifeAssItemise = 0, DISALifeAssItemise = 0;
    /// The policies pay a pension: a flag that is worked out afresh with them and never stored.
    std::int16_t NARAPolicyIncomeItemise = 0;

    bool operator==(const Itemised&) const = default;
};

} // namespace assessment

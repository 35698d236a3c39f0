#include <iterator>
#include <list>

#include "assessment/tables.h"

namespace assessment {

namespace {

using I = Itemised;

std::vector<Field<ItemRow>> rowFields(ItemLayout layout) {
    std::vector<Field<ItemRow>> fields = {
        {"DCLNO", zero(Double), Rule::key},
        {"MaxNum", zero(Double), Rule::rowCount},
        {"IncomeSource", empty(Text(60)), in<&ItemRow::IncomeSource>},
        {"Amount", zero(Double), in<&ItemRow::Amount>},
    };
    switch (layout) {
    case ItemLayout::income:
        fields.emplace_back("Escalation", zero(Double), in<&ItemRow::Escalation>);
        fields.emplace_back("FromAge", zero(Double), in<&ItemRow::FromAge>);
        fields.emplace_back("ToAge", zero(Double), in<&ItemRow::ToAge>);
        break;
    case ItemLayout::occurrenceAge: fields.emplace_back("OccurAge", zero(Double), in<&ItemRow::At>); break;
    case ItemLayout::maturityAge: fields.emplace_back("MatAtAge", zero(Double), in<&ItemRow::At>); break;
    case ItemLayout::plain: break;
    }
    return fields;
}

/// Creates a table that lives until the program ends.
const FieldTable<ItemRow>* keep(const char* name, ItemLayout layout) {
    static std::list<FieldTable<ItemRow>> tables;
    return &tables.emplace_back(name, rowFields(layout), std::vector<IndexLine>{{"DCLNOIndex", "DCLNO"}});
}

constexpr bool neverKept = false;

template <ItemList I::*List>
ItemTable line(Analysis analysis, const char* flag, const char* table, ItemLayout layout, bool isKept = true) {
    return {analysis,
            flag,
            in<&Assessment::itemised, List, &ItemList::flag>,
            [](Itemised& itemised) -> ItemList& { return itemised.*List; },
            layout,
            isKept,
            keep(table, layout)};
}

template <std::int16_t I::*Flag>
ItemTable fedByPolicies(Analysis analysis, const char* flag) {
    return {analysis, flag, in<&Assessment::itemised, Flag>};
}

std::vector<ItemTable> retirementLines() {
    using enum ItemLayout;
    constexpr Analysis analysis = Analysis::retirement;
    return {
        line<&I::RNAFutMonInc>(analysis, "RNAFutMonIncItemise", "RNAFutureMonInc", income),
        line<&I::RNARealEst>(analysis, "RNARealEstItemise", "RNARealEst", plain),
        line<&I::RNAStocks>(analysis, "RNAStocksItemise", "RNAStocks", plain),
        line<&I::RNABussSale>(analysis, "RNABussSaleItemise", "RNABussSale", plain),
        fedByPolicies<&I::RNAPoliciesItemise>(analysis, "RNAPoliciesItemise"),
        line<&I::RNAOtherCap>(analysis, "RNAOtherCapItemise", "RNAOtherCap", plain),
        line<&I::RNAMortgage>(analysis, "RNAMortgageItemise", "RNAMortgage", plain),
        line<&I::RNARetProp>(analysis, "RNARetPropItemise", "RNARetProp", plain),
        line<&I::RNANewCar>(analysis, "RNANewCarItemise", "RNANewCar", plain),
        line<&I::RNATravel>(analysis, "RNATravelItemise", "RNATravel", plain),
        line<&I::RNAOtherExp>(analysis, "RNAOtherExpItemise", "RNAOtherExp", occurrenceAge),
        line<&I::RNAMonIncReq>(analysis, "RNAMonIncReqItemise", "RNAMonIncReq", income),
    };
}

std::vector<ItemTable> deathLines() {
    using enum ItemLayout;
    constexpr Analysis analysis = Analysis::death;
    return {
        line<&I::DTHMonIncReq>(analysis, "DTHMonIncReqItemise", "DTHMonIncReq", income),
        line<&I::DTHFutMonInc>(analysis, "DTHFutMonIncItemise", "DTHFutMonInc", income),
        line<&I::DTHRealEst>(analysis, "DTHRealEstItemise", "DTHRealEst", maturityAge),
        line<&I::DTHStocks>(analysis, "DTHStocksItemise", "DTHStocks", maturityAge),
        line<&I::DTHInvestments>(analysis, "DTHInvestmentsItemise", "DTHInvestments", maturityAge, neverKept),
        line<&I::DTHCars>(analysis, "DTHCarsItemise", "DTHCars", maturityAge),
        fedByPolicies<&I::DTHLifeAssItemise>(analysis, "DTHLifeAssItemise"),
        line<&I::DTHOtherCap>(analysis, "DTHOtherCapItemise", "DTHOtherCap", maturityAge),
        line<&I::DTHMortgage>(analysis, "DTHMortgageItemise", "DTHMortgage", maturityAge),
        line<&I::DTHOtherLoans>(analysis, "DTHOtherLoansItemise", "DTHOtherLoans", maturityAge),
        line<&I::DTHCreditCard>(analysis, "DTHCreditCardItemise", "DTHCreditCard", maturityAge),
        line<&I::DTHEstateDuty>(analysis, "DTHEstateDutyItemise", "DTHEstateDuty", maturityAge),
        line<&I::DTHOtherExp>(analysis, "DTHOtherExpItemise", "DTHOtherExp", maturityAge),
    };
}

std::vector<ItemTable> disabilityLines() {
    using enum ItemLayout;
    constexpr Analysis analysis = Analysis::disability;
    return {
        line<&I::DISAMonIncReq>(analysis, "DISAMonIncReqItemise", "DISAMonIncReq", income),
        line<&I::DISAFutMonInc>(analysis, "DISAFutMonIncItemise", "DISAFutMonInc", income),
        line<&I::DISARealEst>(analysis, "DISARealEstItemise", "DISARealEst", maturityAge),
        line<&I::DISAStocks>(analysis, "DISAStocksItemise", "DISAStocks", maturityAge),
        line<&I::DISAInvestments>(analysis, "DISAInvestmentsItemise", "DISAInvestments", maturityAge, neverKept),
        line<&I::DISACars>(analysis, "DISACarsItemise", "DISACars", maturityAge),
        fedByPolicies<&I::DISALifeAssItemise>(analysis, "DISALifeAssItemise"),
        line<&I::DISAOtherCap>(analysis, "DISAOtherCapItemise", "DISAOtherCap", maturityAge),
        line<&I::DISAMortgage>(analysis, "DISAMortgageItemise", "DISAMortgage", maturityAge),
        line<&I::DISAOtherLoans>(analysis, "DISAOtherLoansItemise", "DISAOtherLoans", maturityAge),
        line<&I::DISACreditCard>(analysis, "DISACreditCardItemise", "DISACreditCard", maturityAge),
        line<&I::DISAEstateDuty>(analysis, "DISAEstateDutyItemise", "DISAEstateDuty", maturityAge),
        line<&I::DISAOtherExp>(analysis, "DISAOtherExpItemise", "DISAOtherExp", maturityAge),
    };
}

std::vector<ItemTable> allLines() {
    std::vector<ItemTable> lines = retirementLines();
    for (const std::vector<ItemTable>& more : {deathLines(), disabilityLines()})
        lines.insert(lines.end(), more.begin(), more.end());
    return lines;
}

} // namespace

const std::vector<ItemTable>& itemTables() {
    static const std::vector<ItemTable> lines = allLines();
    return lines;
}

} // namespace assessment

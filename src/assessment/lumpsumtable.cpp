#include <utility>

#include "assessment/tables.h"

namespace assessment {

namespace {

using Fields = std::vector<Field<LumpSums>>;

/// The three reasons of one tax year.
template <std::size_t Year>
void addYear(Fields& fields) {
    const std::string year = std::to_string(LumpSums::firstYear + static_cast<int>(Year));
    fields.emplace_back("RRExGrtCTY0204" + year, Double, in<&LumpSums::RRExGrtCTY0204, Year>);
    fields.emplace_back("RetrenchmentLumps" + year, Double, in<&LumpSums::RetrenchmentLumps, Year>);
    fields.emplace_back("RetireDeathAfter" + year, Double, in<&LumpSums::RetireDeathAfter, Year>);
}

template <std::size_t... Years>
void addYears(Fields& fields, std::index_sequence<Years...>) {
    (addYear<Years>(fields), ...);
}

Fields allFields() {
    Fields fields = {
        {"DCLNO", zero(Double), Rule::key},
        {"RetireLumpSumBefore", Double, in<&LumpSums::RetireLumpSumBefore>},
    };
    addYears(fields, std::make_index_sequence<LumpSums::years>());
    fields.emplace_back("FstLumpTaken", Double, in<&LumpSums::FstLumpTaken>);
    return fields;
}

} // namespace

const FieldTable<LumpSums>& lumpSumTaxTable() {
    static const FieldTable<LumpSums> table("LumpSumTax", allFields(), {{"DCLNOIndex", "DCLNO"}});
    return table;
}

} // namespace assessment

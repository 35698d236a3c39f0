#include "assessment/tables.h"

namespace assessment {

const FieldTable<HeadFootLines>& headFootTable() {
    using H = HeadFootLines;
    static const FieldTable<H> table("HeadFoot", {
                                                     {"HEADERV0", Text(80), in<&H::HeaderV, 0>},
                                                     {"HEADERV1", Text(80), in<&H::HeaderV, 1>},
                                                     {"HEADERV2", Text(80), in<&H::HeaderV, 2>},
                                                     {"HEADERV3", Text(80), in<&H::HeaderV, 3>},
                                                     {"footv0", Text(80), in<&H::FootV, 0>},
                                                     {"footv1", Text(80), in<&H::FootV, 1>},
                                                     {"footv2", Text(80), in<&H::FootV, 2>},
                                                     {"footv3", Text(80), in<&H::FootV, 3>},
                                                 });
    return table;
}

const FieldTable<Assessment>& cpiDefaultTable() {
    static const FieldTable<Assessment> table("CPIDefault", {{"CPI", Double, in<&Assessment::CPI>}});
    return table;
}

const TableDescription& dataSetupTable() {
    static const TableDescription table("DataSetup", {{"UpDateDB", Double}}, {});
    return table;
}

const TableDescription& dbSearchTable() {
    static const TableDescription table("DBSearch",
                                        {{"Client Name", Text(80)},
                                         {"Spouse", Text(80)},
                                         {"Dependant", Text(80)},
                                         {"NameOrder", Text(80)},
                                         {"BirthDate", Date},
                                         {"IDNumber", Text(40)},
                                         {"ReviewDate", Date}},
                                        {});
    return table;
}

const FieldTable<FundDefaults>& mutualFundsTable() {
    using F = FundDefaults;
    static const FieldTable<F> table("MutualFunds", {
                                                        {"ESPremCom", Double, in<&F::ESPremCom>},
                                                        {"EAPremCom", Double, in<&F::EAPremCom>},
                                                        {"EMPremCom", Double, in<&F::EMPremCom>},
                                                        {"EAComPortVal", Double, in<&F::EAComPortVal>},
                                                        {"EComEscPr", Double, in<&F::EComEscPr>},
                                                        {"EIAF", Double, in<&F::EIAF>},
                                                        {"EAMFee", Double, in<&F::EAMFee>},
                                                        {"EADivBo", Double, in<&F::EADivBo>},
                                                        {"ETaxRate", Double, in<&F::ETaxRate>},
                                                        {"RSPremCom", Double, in<&F::RSPremCom>},
                                                        {"RAPremCom", Double, in<&F::RAPremCom>},
                                                        {"RMPremCom", Double, in<&F::RMPremCom>},
                                                        {"RAComPortVal", Double, in<&F::RAComPortVal>},
                                                        {"RComEscPr", Double, in<&F::RComEscPr>},
                                                        {"RIAF", Double, in<&F::RIAF>},
                                                        {"RAMFee", Double, in<&F::RAMFee>},
                                                        {"RAADivBo", Double, in<&F::RAADivBo>},
                                                        {"LumpSumPort", Double, in<&F::LumpSumPort>},
                                                        {"AllocationPer", Double, in<&F::AllocationPer>},
                                                        {"AnnuityPer", Double, in<&F::AnnuityPer>},
                                                        {"UTCOM", Double, in<&F::UTCOM>},
                                                        {"UTDiv", Double, in<&F::UTDiv>},
                                                        {"UTAMFee", Double, in<&F::UTAMFee>},
                                                        {"UTAComPortVal", Double, in<&F::UTAComPortVal>},
                                                    });
    return table;
}

} // namespace assessment

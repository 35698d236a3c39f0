#include "assessment/tables.h"

namespace assessment {

namespace {

std::vector<const TableDescription*> allTables() {
    std::vector<const TableDescription*> tables = {&dataTable(),     &persDetailsTable(), &dataSetupTable(),
                                                   &headFootTable(), &cpiDefaultTable(),  &dbSearchTable()};
    for (const ItemTable& line : itemTables())
        if (line.table != nullptr) tables.push_back(line.table);
    for (const TableDescription* table : std::initializer_list<const TableDescription*>{
             &polsInvestsTable(), &cgtDetailsTable(), &cgtDetailsOtherTable(), &cgtTrustOtherTable(),
             &lumpSumTaxTable()})
        tables.push_back(table);
    return tables;
}

} // namespace

const std::vector<const TableDescription*>& clientTables() {
    static const std::vector<const TableDescription*> tables = allTables();
    return tables;
}

} // namespace assessment

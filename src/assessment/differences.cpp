#include "assessment/differences.h"

#include <algorithm>

#include "assessment/filetextstable.h"
#include "assessment/tables.h"

namespace assessment {

namespace {

class Comparison {
public:
    std::vector<Difference> found;

    /// Null for a row that is missing.
    void row(const TableDescription& table, int number, void* one, void* other) {
        const auto value = [](const FieldLine& line, void* record) {
            return record == nullptr ? store::Value() : valueAt(line.at(record));
        };
        for (const FieldLine& line : table.fields()) {
            if (line.at == nullptr) continue;
            store::Value left = value(line, one), right = value(line, other);
            if (left != right) found.push_back({table.name(), line.name, number, std::move(left), std::move(right)});
        }
    }
    template <class Row>
    void rows(const TableDescription& table, std::vector<Row>& one, std::vector<Row>& other) {
        const auto at = [](std::vector<Row>& list, std::size_t index) {
            return index < list.size() ? &list[index] : nullptr;
        };
        for (std::size_t index = 0; index < std::max(one.size(), other.size()); ++index)
            row(table, static_cast<int>(index) + 1, at(one, index), at(other, index));
    }
};

} // namespace

std::vector<Difference> differences(Assessment one, Assessment other) {
    Comparison compared;
    compared.row(dataTable(), 1, &one, &other);
    compared.row(persDetailsTable(), 1, &one, &other);
    for (const ItemTable& line : itemTables())
        if (line.table != nullptr)
            compared.rows(*line.table, line.list(one.itemised).rows, line.list(other.itemised).rows);
    compared.rows(polsInvestsTable(), one.policies, other.policies);
    compared.rows(cgtDetailsTable(), one.capitalGains.assets, other.capitalGains.assets);
    compared.row(cgtDetailsOtherTable(), 1, &one.capitalGains, &other.capitalGains);
    compared.rows(cgtTrustOtherTable(), one.capitalGains.trustOther, other.capitalGains.trustOther);
    compared.row(lumpSumTaxTable(), 1, &one.lumpSums, &other.lumpSums);
    compared.row(fileTextsTable(), 1, &one.fileTexts, &other.fileTexts);
    return compared.found;
}

} // namespace assessment

#include "assessment/fieldtable.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <limits>

#include "base/rounding.h"
#include "base/text.h"
#include "store/database.h"

namespace assessment {

namespace {

/// Stores a number in the place's own type; false if it does not fit.
bool put(double& place, double number) {
    if (!std::isfinite(number)) return false;
    place = number;
    return true;
}

bool put(float& place, double number) {
    if (!(std::abs(number) <= static_cast<double>(std::numeric_limits<float>::max()))) return false;
    place = static_cast<float>(number);
    return true;
}

template <std::integral Whole>
bool put(Whole& place, double number) {
    const double rounded = base::roundHalfEven(number);
    if (!(rounded >= std::numeric_limits<Whole>::min() && rounded <= std::numeric_limits<Whole>::max())) return false;
    place = static_cast<Whole>(rounded);
    return true;
}

void set(std::string* place, store::Value&& value, double) {
    if (auto* text = std::get_if<std::string>(&value))
        *place = std::move(*text);
    else
        place->clear();
}

template <class Number>
void set(Number* place, store::Value&& value, double blank) {
    const double* number = std::get_if<double>(&value);
    if (number == nullptr || !put(*place, *number)) *place = static_cast<Number>(blank);
}

store::Value get(const std::string* place) { return *place; }
template <class Number>
store::Value get(const Number* place) {
    return static_cast<double>(*place);
}

std::string joined(const std::vector<std::string>& parts) {
    std::string text;
    for (const std::string& part : parts)
        text += (text.empty() ? "" : ",") + part;
    return text;
}

} // namespace

TableDescription::TableDescription(std::string tableName, std::vector<FieldLine> tableFields,
                                   std::vector<IndexLine> tableIndexes)
    : m_name(std::move(tableName)), m_fields(std::move(tableFields)), m_indexes(std::move(tableIndexes)) {
    std::vector<std::string> names;
    std::vector<std::string> marks;
    std::vector<std::string> settings;
    for (const FieldLine& line : m_fields) {
        if (!line.isWritten()) continue;
        names.push_back(store::bracketed(line.name));
        marks.emplace_back("?");
        settings.push_back(names.back() + "=?");
    }
    const std::string table = store::bracketed(m_name);
    m_insertSql = "INSERT INTO " + table + " (" + joined(names) + ") VALUES (" + joined(marks) + ")";
    m_updateSql = "UPDATE " + table + " SET " + joined(settings) + " WHERE rowid=?";
}

const FieldLine* TableDescription::field(std::string_view fieldName) const {
    const auto found = std::find_if(m_fields.begin(), m_fields.end(),
                                    [&](const FieldLine& line) { return base::sameName(line.name, fieldName); });
    return found == m_fields.end() ? nullptr : &*found;
}

int sizeOf(const TableDescription& table, void* row, const std::string& text) {
    for (const FieldLine& line : table.fields()) {
        if (line.at == nullptr) continue;
        const Place place = line.at(row);
        const auto* found = std::get_if<std::string*>(&place);
        if (found != nullptr && *found == &text) return line.kind.declared.size;
    }
    assert(!"a text with no line in the table");
    return 0;
}

store::Value valueAt(Place place) {
    return std::visit([](auto* value) { return get(value); }, place);
}

void setValueAt(Place place, store::Value&& value, double blank) {
    std::visit([&](auto* target) { set(target, std::move(value), blank); }, place);
}

} // namespace assessment

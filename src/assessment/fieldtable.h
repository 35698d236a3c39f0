#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "base/day.h"
#include "store/value.h"

/// A table described once: each field's name, stored type, default and place in the record. Creating the table, adding
/// what an old file lacks, saving, loading, copying and checking text lengths all walk this one list.
namespace assessment {

/// What a new row holds in a field that nothing is written to.
enum class Initial { null, zero, empty };

/// What is particular about a field when a row is written or read.
enum class Rule {
    plain,
    key,        ///< the client's key
    rowCount,   ///< how many rows the list has; the same in each row
    rowNumber,  ///< written as the row's place in its list, from 1
    emptyDate,  ///< a date that an empty field leaves at `NoDate`; the file has `blankDate` for that
    birthDate,  ///< the same, and an empty date a day earlier still counts as empty
    assetDate,  ///< the same, and read back as `NoDate`, for which the gain's arithmetic tests
    writtenOnly ///< stored, but blank again after a load
};

/// A field's declaration: how it is stored, what new rows hold, and what a load makes of a missing or unusable value.
struct Kind {
    store::Declared declared;
    Initial initial = Initial::null;
    double blank = 0; ///< of number and date fields; a text is read as empty
};

inline constexpr Kind Boolean{{store::Type::Boolean}};
inline constexpr Kind Integer{{store::Type::Integer}};
inline constexpr Kind Single{{store::Type::Single}};
inline constexpr Kind Double{{store::Type::Double}};
inline constexpr Kind Date{{store::Type::Date}, Initial::null, base::blankDate};
constexpr Kind Text(int size) { return {{store::Type::Text, size}}; }
constexpr Kind Memo(int size) { return {{store::Type::Memo, size}}; }
constexpr Kind zero(Kind kind) { return {kind.declared, Initial::zero, kind.blank}; }
constexpr Kind empty(Kind kind) { return {kind.declared, Initial::empty, kind.blank}; }
constexpr Kind blankAs(double blank, Kind kind) { return {kind.declared, kind.initial, blank}; }

/// Where a value lies in a record, and so in which width it is kept.
using Place = std::variant<double*, float*, std::int16_t*, std::int32_t*, std::string*>;

/// The way from a record to the place of one of its values.
template <class Row>
struct Binding {
    Place (*at)(void* row) = nullptr;
};

namespace detail {
template <auto Member>
struct ClassOf;
template <class Class, class Value, Value Class::*Member>
struct ClassOf<Member> {
    using type = Class;
};

template <auto First, auto... Rest>
auto& follow(auto& object) {
    auto& next = [&]() -> auto& {
        if constexpr (std::is_member_pointer_v<decltype(First)>)
            return object.*First;
        else
            return object[First];
    }
    ();
    if constexpr (sizeof...(Rest) == 0)
        return next;
    else
        return follow<Rest...>(next);
}
} // namespace detail

/// The value at the end of a path of member pointers and array indices: in<&Assessment::details, &PersonalDetails::DEP,
/// 0>.
template <auto First, auto... Rest>
inline constexpr Binding<typename detail::ClassOf<First>::type> in{[](void* row) {
    return Place{&detail::follow<First, Rest...>(*static_cast<typename detail::ClassOf<First>::type*>(row))};
}};

/// One field without the record's type. A field with no place is stored and never written or read.
struct FieldLine {
    std::string name;
    Kind kind;
    Rule rule = Rule::plain;
    Place (*at)(void* row) = nullptr;

    bool isWritten() const { return at != nullptr || rule == Rule::key || rule == Rule::rowCount; }
    bool isRead() const { return isWritten() && rule != Rule::writtenOnly; }
};

template <class Row>
struct Field : FieldLine {
    Field(std::string fieldName, Kind fieldKind) : FieldLine{std::move(fieldName), fieldKind} {}
    Field(std::string fieldName, Kind fieldKind, Rule fieldRule)
        : FieldLine{std::move(fieldName), fieldKind, fieldRule} {}
    Field(std::string fieldName, Kind fieldKind, Binding<Row> binding, Rule fieldRule = Rule::plain)
        : FieldLine{std::move(fieldName), fieldKind, fieldRule, binding.at} {}
};

/// An index: neither primary nor unique, ascending. `fields` is a comma-separated list.
struct IndexLine {
    std::string name;
    std::string fields;
};

/// A table without the record's type: what creating, completing and copying it need. Every table's first column is the
/// unused Boolean `In Use`, which is not in the list.
class TableDescription {
public:
    TableDescription(std::string tableName, std::vector<FieldLine> tableFields, std::vector<IndexLine> tableIndexes);

    const std::string& name() const { return m_name; }
    const std::vector<FieldLine>& fields() const { return m_fields; }
    const std::vector<IndexLine>& indexes() const { return m_indexes; }
    /// The field of that name, matched without case; null if there is none.
    const FieldLine* field(std::string_view fieldName) const;

    /// Statements over the written fields, in the table's order; an update ends with the rowid.
    const std::string& insertSql() const { return m_insertSql; }
    const std::string& updateSql() const { return m_updateSql; }

private:
    std::string m_name;
    std::vector<FieldLine> m_fields;
    std::vector<IndexLine> m_indexes;
    std::string m_insertSql;
    std::string m_updateSql;
};

/// A table whose rows are `Row`s.
template <class Row>
class FieldTable : public TableDescription {
public:
    FieldTable(std::string tableName, const std::vector<Field<Row>>& tableFields,
               std::vector<IndexLine> tableIndexes = {})
        : TableDescription(std::move(tableName), {tableFields.begin(), tableFields.end()}, std::move(tableIndexes)) {}
};

/// How many characters the file takes of a text of this row, which one of the table's lines leads to.
int sizeOf(const TableDescription& table, void* row, const std::string& text);

/// The value at a place as the store takes it.
store::Value valueAt(Place place);

/// Puts a stored value in its place, in the width kept there. What is missing (Null), of another type, not finite or
/// beyond the width reads as the blank; a whole-number width rounds half to even.
void setValueAt(Place place, store::Value&& value, double blank);

} // namespace assessment

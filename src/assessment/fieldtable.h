#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "base/day.h"
#include "store/value.h"

/// Describes each table once: every field's name, stored type, default and place in the record. This one list serves to
/// create the table, add missing fields to an old file, save, load, copy, and check text lengths.
namespace assessment {

/// What a new row holds in a field that was not written.
enum class Initial { null, zero, empty };

/// Special treatment of a field when a row is written or read.
enum class Rule {
    plain,
    key,        ///< the client's key
    rowCount,   ///< number of rows in the list; the same in each row
    rowNumber,  ///< written as the row's number in its list, from 1
    emptyDate,  ///< a date: an empty one is `NoDate` in the record and `blankDate` in the file
    birthDate,  ///< as emptyDate, and a date one day earlier also counts as empty
    assetDate,  ///< as emptyDate, and read back as `NoDate`, which the capital gain's arithmetic tests for
    writtenOnly ///< stored, but a load leaves it blank
};

/// A field's declaration: how it is stored, what new rows hold, and what a missing or unusable value loads as.
struct Kind {
    store::Declared declared;
    Initial initial = Initial::null;
    double blank = 0; ///< for numbers and dates; a text loads as empty
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

/// Where a value lies in a record, and so in which type it is kept.
using Place = std::variant<double*, float*, std::int16_t*, std::int32_t*, std::string*>;

/// How to get from a record to the place of one of its values.
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

/// The value reached by a path of member pointers and array indices: in<&Assessment::details, &PersonalDetails::DEP,
/// 0>.
template <auto First, auto... Rest>
inline constexpr Binding<typename detail::ClassOf<First>::type> in{[](void* row) {
    return Place{&detail::follow<First, Rest...>(*static_cast<typename detail::ClassOf<First>::type*>(row))};
}};

/// One field, independent of the record's type. A field without a place is stored but never written or read.
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

/// A table, independent of the record's type: enough to create, complete and copy it. The first column of every table
/// is the unused Boolean `In Use`, which is not in the list.
class TableDescription {
public:
    TableDescription(std::string tableName, std::vector<FieldLine> tableFields, std::vector<IndexLine> tableIndexes);

    const std::string& name() const { return m_name; }
    const std::vector<FieldLine>& fields() const { return m_fields; }
    const std::vector<IndexLine>& indexes() const { return m_indexes; }
    /// The field with that name, matched without case; null if there is none.
    const FieldLine* field(std::string_view fieldName) const;

    /// Statements for all written fields, in the table's order; the last parameter of an update is the rowid.
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

/// How many characters the file stores of a text in this row. One of the table's lines must lead to the text.
int sizeOf(const TableDescription& table, void* row, const std::string& text);

/// The value at a place, in the form that the store takes.
store::Value valueAt(Place place);

/// Stores a value from the file in its place, converted to the place's type. A value that is Null, of the wrong type,
/// not finite or too large becomes `blank`; whole-number types round half to even.
void setValueAt(Place place, store::Value&& value, double blank);

} // namespace assessment

#pragma once

#include <string>
#include <string_view>
#include <variant>

namespace store {

/// Types of a stored field. A Date is a day number.
enum class Type { Boolean, Integer, Single, Double, Date, Text, Memo };

/// What one field of one row holds: Null, a number, or UTF-8 text.
using Value = std::variant<std::monostate, double, std::string>;

inline bool isNull(const Value& value) { return std::holds_alternative<std::monostate>(value); }

/// A stored field's declaration: the type and, for Text, how many characters it takes (0: no limit).
struct Declared {
    Type type = Type::Double;
    int size = 0;
};

/// How a type is declared in a table, e.g. "VARCHAR(80)", and back; an unknown declaration is a Double.
std::string declaration(Declared declared);
Declared declaredFrom(std::string_view declaration);

/// Converts a value to what a field of this type stores. Every write goes through here.
///
/// Boolean: 0 or 1. Integer: rounded half to even, Error 3421 outside -32768 to 32767. Single: rounded to float.
/// Text: Error 3163 past its size, never cut. Numbers given to a text field and texts to a number field: Error 3421.
/// Infinities and NaN have no place in a file: Error 3421. Null stays Null.
Value toStored(const Value& value, Declared declared, std::string_view file, std::string_view field);

} // namespace store

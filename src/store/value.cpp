#include "store/value.h"

#include <charconv>
#include <cmath>

#include "base/rounding.h"
#include "base/text.h"
#include "store/error.h"

namespace store {

namespace {

struct Spelling {
    Type type;
    std::string_view word;
};

// SQLite derives how it stores a value from these words. A date has two: the first tells it from a plain number, the
// second makes SQLite store it as one.
constexpr Spelling spellings[] = {
    {Type::Boolean, "BOOLEAN"},  {Type::Integer, "SMALLINT"}, {Type::Single, "REAL"}, {Type::Double, "DOUBLE"},
    {Type::Date, "DATE DOUBLE"}, {Type::Text, "VARCHAR"},     {Type::Memo, "TEXT"},
};

std::string quoted(std::string_view field) { return "\"" + std::string(field) + "\""; }

[[noreturn]] void wrongType(std::string_view file, std::string_view field, const std::string& why,
                            std::string advice = {}) {
    throw Error(Number::wrongType, std::string(file), "The field " + quoted(field) + why, std::move(advice));
}

double storedNumber(double number, Type type, std::string_view file, std::string_view field) {
    if (!std::isfinite(number))
        wrongType(file, field, " was given a result that is not a number.",
                  "Nothing was saved. Open the screen that calculates this figure, change its inputs, calculate and "
                  "save again.");
    switch (type) {
    case Type::Boolean: return number != 0 ? 1 : 0;
    case Type::Integer: {
        const double rounded = base::roundHalfEven(number);
        if (rounded < -32768 || rounded > 32767)
            wrongType(file, field, " takes whole numbers from -32768 to 32767 only.");
        return rounded;
    }
    case Type::Single: {
        const auto single = static_cast<float>(number);
        if (!std::isfinite(single)) wrongType(file, field, " was given a number too large for it.");
        return static_cast<double>(single);
    }
    default: return number;
    }
}

void checkText(const std::string& text, Declared declared, std::string_view file, std::string_view field) {
    if (text.find('\0') != std::string::npos) wrongType(file, field, " was given a text with a zero byte in it.");
    const auto limit = static_cast<std::size_t>(declared.size);
    if (declared.type == Type::Memo || limit == 0 || text.size() <= limit) return;
    if (base::characterCount(text) > limit)
        throw Error(Number::textTooLong, std::string(file), {},
                    "Shorten " + quoted(field) + " to at most " + std::to_string(limit) + " characters.");
}

} // namespace

std::string declaration(Declared declared) {
    for (const auto& [type, word] : spellings) {
        if (type != declared.type) continue;
        std::string text(word);
        if (type == Type::Text && declared.size > 0) text += "(" + std::to_string(declared.size) + ")";
        return text;
    }
    return "DOUBLE";
}

Declared declaredFrom(std::string_view declaration) {
    const auto bracket = declaration.find('(');
    const std::string_view word = declaration.substr(0, bracket);
    for (const auto& spelling : spellings) {
        if (!base::sameWord(word, spelling.word)) continue;
        Declared declared{spelling.type, 0};
        if (spelling.type == Type::Text && bracket != std::string_view::npos)
            std::from_chars(declaration.data() + bracket + 1, declaration.data() + declaration.size(), declared.size);
        return declared;
    }
    return {};
}

Value toStored(const Value& value, Declared declared, std::string_view file, std::string_view field) {
    if (isNull(value)) return value;
    const bool textField = declared.type == Type::Text || declared.type == Type::Memo;
    if (const auto* number = std::get_if<double>(&value)) {
        if (textField) wrongType(file, field, " holds text and was given a number.");
        return storedNumber(*number, declared.type, file, field);
    }
    if (!textField) wrongType(file, field, " holds a number and was given text.");
    checkText(std::get<std::string>(value), declared, file, field);
    return value;
}

} // namespace store

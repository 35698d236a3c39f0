#include "store/value.h"

#include <cmath>
#include <limits>

#include "store/store_support.h"

using store::Declared;
using store::Type;
using store::Value;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

struct Case {
    Declared declared;
    Value given;
    std::optional<Value> kept; ///< nothing: refused with `number`
    int number = 0;
};

} // namespace

TEST(StoredValue, IsConvertedToTheTypeOfItsField) {
    const Case cases[] = {
        {{Type::Boolean}, -1.0, 1.0},
        {{Type::Boolean}, 0.0, 0.0},
        {{Type::Integer}, 7.5, 8.0}, // ties go to the even number
        {{Type::Integer}, 6.5, 6.0},
        {{Type::Integer}, 32767.5, std::nullopt, 3421}, // 32768
        {{Type::Integer}, -32768.5, -32768.0},
        {{Type::Integer}, -32769.0, std::nullopt, 3421},
        {{Type::Single}, 0.1, static_cast<double>(0.1F)},
        {{Type::Single}, 1e39, std::nullopt, 3421},
        {{Type::Double}, 0.1 + 0.2, 0.1 + 0.2},
        {{Type::Double}, infinity, std::nullopt, 3421},
        {{Type::Date}, std::nan(""), std::nullopt, 3421},
        {{Type::Double}, std::string("12"), std::nullopt, 3421},
        {{Type::Text, 10}, 12.0, std::nullopt, 3421},
        {{Type::Text, 3}, std::string("êêê"), std::string("êêê")}, // characters count, not bytes
        {{Type::Text, 3}, std::string("êêêê"), std::nullopt, 3163},
        {{Type::Text, 80}, std::string("  "), std::string("  ")},
        {{Type::Text, 3}, std::string("a\0b", 3), std::nullopt, 3421},
        {{Type::Memo, 3}, std::string("long"), std::string("long")}, // a memo's size only limits its entry field
        {{Type::Text, 1}, Value{}, Value{}},
    };
    int line = 0;
    for (const Case& c : cases) {
        SCOPED_TRACE(line++);
        Value kept;
        const auto error =
            storetest::caughtFrom([&] { kept = store::toStored(c.given, c.declared, "Data.Mdb", "Field"); });
        ASSERT_EQ(!error, c.kept.has_value());
        if (error) {
            EXPECT_EQ(error->number(), c.number) << error->message();
            EXPECT_EQ(error->file(), "Data.Mdb");
            EXPECT_NE(error->message().find("Field"), std::string::npos);
        } else {
            EXPECT_EQ(kept, *c.kept);
        }
    }
}

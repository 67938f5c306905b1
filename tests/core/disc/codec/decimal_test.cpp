#include "disc/codec/decimal.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "disc/runtime_error.h"
#include "support/outcome.h"

namespace kalco {
namespace {

TEST(Decimal, TakesWholeNumbersWithASignAndBlanksAround) {
    EXPECT_EQ(number_of("0"), 0);
    EXPECT_EQ(number_of("007"), 7);
    EXPECT_EQ(number_of("  12 "), 12);
    EXPECT_EQ(number_of("+12"), 12);
    EXPECT_EQ(number_of(" -12"), -12);
    EXPECT_EQ(number_of("-0"), 0);
    EXPECT_EQ(number_of("2147483648"), 2147483648);
    EXPECT_EQ(number_of("-2147483649"), -2147483649);
}

TEST(Decimal, RefusesEverythingElse) {
    for (const std::string text : {"", "   ", "-", "+", "--1", "+-1", "- 1", "1 2", "1.0", "1,0", "1e3", "0x10", "&H10",
                                   "ff", "12a", "a12", "\t1", "1\n", "\xB2"}) {
        EXPECT_FALSE(is_number(text)) << text;
        EXPECT_EQ(test::error_of([&] { number_of(text); }), error::type_mismatch) << text;
    }
    EXPECT_FALSE(is_number(std::string("1\0", 2)));
    EXPECT_TRUE(is_number(" +1 "));
}

TEST(Decimal, HoldsNumbersBeyond64BitsAtTheEndOfTheirRange) {
    constexpr auto most = std::numeric_limits<std::int64_t>::max();
    EXPECT_EQ(number_of("9223372036854775806"), most - 1);
    EXPECT_EQ(number_of("-9223372036854775806"), -most + 1);
    EXPECT_EQ(number_of("9223372036854775807"), most);
    EXPECT_EQ(number_of("9223372036854775808"), most);
    EXPECT_EQ(number_of(std::string(400, '9')), most);
    EXPECT_EQ(number_of('-' + std::string(400, '9')), -most);
    EXPECT_EQ(number_of(std::string(400, '0') + '5'), 5);
}

}  // namespace
}  // namespace kalco

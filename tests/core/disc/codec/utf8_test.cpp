#include "disc/codec/utf8.h"

#include <gtest/gtest.h>

#include "disc/codec/latin1.h"

namespace kalco {
namespace {

using namespace std::string_view_literals;

TEST(Utf8, TakesCharactersOfEveryLength) {
    EXPECT_EQ(first_character("A").character, U'A');
    EXPECT_EQ(first_character("\xC3\xA9x").character, U'\u00E9');
    EXPECT_EQ(first_character("\xC3\xA9x").bytes, 2U);
    EXPECT_EQ(first_character("\xE2\x82\xAC").character, U'\u20AC');
    EXPECT_EQ(first_character("\xF0\x9F\x98\x80").character, U'\U0001F600');
    EXPECT_EQ(first_character("\xF4\x8F\xBF\xBF").character, U'\U0010FFFF');
    EXPECT_EQ(first_character("\0"sv).bytes, 1U);
    EXPECT_EQ(first_character("").bytes, 0U);
}

TEST(Utf8, RefusesWhatIsNone) {
    for (const std::string_view text : {"\x80"sv, "\xBF"sv, "\xC3"sv, "\xC3\x41"sv, "\xC0\x80"sv, "\xC1\xBF"sv,
                                        "\xE0\x9F\xBF"sv, "\xED\xA0\x80"sv, "\xED\xBF\xBF"sv, "\xF0\x8F\xBF\xBF"sv,
                                        "\xF4\x90\x80\x80"sv, "\xF8\x88\x80\x80\x80"sv, "\xFF"sv, "\xE2\x82"sv}) {
        EXPECT_EQ(first_character(text).bytes, 0U) << text;
        EXPECT_EQ(broken_utf8("ab" + std::string(text)), 2U);
    }
    EXPECT_EQ(broken_utf8("a\xC3\xA9\xE2\x82\xAC"), std::nullopt);
    EXPECT_EQ(broken_utf8("a\xC3"), 1U);
}

TEST(Utf8, IsLatin1WhereItsCharactersAre) {
    for (int code = 0; code <= 0xFF; ++code) {
        const std::string text(1, static_cast<char>(code));
        EXPECT_EQ(latin1_of_utf8(utf8_of_latin1(text)), text) << code;
    }
    EXPECT_EQ(latin1_of_utf8("\xC4\x80"), std::nullopt);
    EXPECT_EQ(latin1_of_utf8("a\xE9"), std::nullopt);
    EXPECT_EQ(latin1_of_utf8(""), "");
}

}  // namespace
}  // namespace kalco

#include "disc/codec/latin1.h"

#include <gtest/gtest.h>

namespace kalco {
namespace {

std::string character(int code) {
    return std::string(1, static_cast<char>(code));
}

TEST(Latin1, HasCapitalsForAsciiAndAccentedLetters) {
    for (int code = 0; code <= 0xFF; ++code) {
        const bool small = (code >= 'a' && code <= 'z') || (code >= 0xE0 && code <= 0xFE && code != 0xF7);
        EXPECT_EQ(upper(character(code)), character(small ? code - 0x20 : code)) << code;
        const bool capital = (code >= 'A' && code <= 'Z') || (code >= 0xC0 && code <= 0xDE && code != 0xD7);
        EXPECT_EQ(lower(character(code)), character(capital ? code + 0x20 : code)) << code;
    }
    EXPECT_EQ(upper("nu\xF1"
                    "ez 7"),
              "NU\xD1"
              "EZ 7");
    EXPECT_EQ(upper("\xFF\xDF"), "\xFF\xDF");
}

TEST(Latin1, TrimsBlanksAloneFromBothEnds) {
    EXPECT_EQ(trim("  a b  "), "a b");
    EXPECT_EQ(trim("a"), "a");
    EXPECT_EQ(trim("   "), "");
    EXPECT_EQ(trim(""), "");
    EXPECT_EQ(trim("\t a\r\n "), "\t a\r\n");
    EXPECT_EQ(trim(std::string_view(" \0 ", 3)), std::string_view("\0", 1));
    EXPECT_EQ(trim("\xA0"
                   "a\xA0"),
              "\xA0"
              "a\xA0");
}

TEST(Latin1, EndsATextAtItsFirstZero) {
    EXPECT_EQ(until_zero(std::string_view("ab\0cd\0", 6)), "ab");
    EXPECT_EQ(until_zero(std::string_view("\0a", 2)), "");
    EXPECT_EQ(until_zero("abc"), "abc");
    EXPECT_EQ(until_zero(""), "");
}

TEST(Latin1, TakesPartsOfATextAsFarAsItGoes) {
    EXPECT_EQ(left("abcdef", 2), "ab");
    EXPECT_EQ(left("abc", 9), "abc");
    EXPECT_EQ(left("abc", 0), "");
    EXPECT_EQ(right("abcdef", 2), "ef");
    EXPECT_EQ(right("abc", 9), "abc");
    EXPECT_EQ(right("abc", 0), "");
    EXPECT_EQ(mid("abcdef", 3, 2), "cd");
    EXPECT_EQ(mid("abcdef", 3), "cdef");
    EXPECT_EQ(mid("abcdef", 6, 9), "f");
    EXPECT_EQ(mid("abcdef", 7), "");
    EXPECT_EQ(mid("abcdef", 99, 2), "");
    EXPECT_EQ(mid("", 1), "");
}

TEST(Latin1, DropsEveryBlank) {
    EXPECT_EQ(without_blanks(" 82 60  20 "), "826020");
    EXPECT_EQ(without_blanks("   "), "");
    EXPECT_EQ(without_blanks("a\tb"), "a\tb");
}

TEST(Latin1, IsWrittenAsUtf8) {
    EXPECT_EQ(utf8_of_latin1("ab"), "ab");
    EXPECT_EQ(utf8_of_latin1("\x7F\x80\xBF\xC0\xFF"), "\x7F\xC2\x80\xC2\xBF\xC3\x80\xC3\xBF");
    EXPECT_EQ(utf8_of_latin1(std::string_view("\0", 1)), std::string_view("\0", 1));
    EXPECT_EQ(utf8_of_latin1(""), "");
}

}  // namespace
}  // namespace kalco

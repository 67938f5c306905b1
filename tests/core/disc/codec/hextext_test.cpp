#include "disc/codec/hextext.h"

#include <gtest/gtest.h>

#include <random>

namespace kalco {
namespace {

std::string all_bytes() {
    std::string bytes;
    for (int value = 0; value <= 0xFF; ++value) bytes += static_cast<char>(value);
    return bytes;
}

TEST(HexText, WritesTwoCapitalDigitsAByte) {
    EXPECT_EQ(hex_line(std::string("\x00\x0F\xA0\xFF", 4)), "00 0F A0 FF");
    EXPECT_EQ(hex_digits(std::string("\x00\x0F\xA0\xFF", 4)), "000FA0FF");
    EXPECT_EQ(hex_line("V"), "56");
    EXPECT_EQ(hex_line(""), "");
    EXPECT_EQ(hex_digits(""), "");
    EXPECT_EQ(hex_line(std::string(12, '\0')).size(), 35U);
}

TEST(HexText, GoesBackToItsBytes) {
    EXPECT_EQ(bytes_of_digits(hex_digits(all_bytes())), all_bytes());
    EXPECT_EQ(bytes_of_digits("fFaA"), "\xFF\xAA");
}

TEST(HexText, DropsALoneLastDigit) {
    EXPECT_EQ(bytes_of_digits("41424"), "AB");
    EXPECT_EQ(bytes_of_digits("4"), "");
    EXPECT_EQ(bytes_of_digits(""), "");
}

TEST(HexText, CountsAPairByItsValidLeadingDigits) {
    EXPECT_EQ(hex_pair("4G"), 4);
    EXPECT_EQ(hex_pair("G4"), 0);
    EXPECT_EQ(hex_pair("GG"), 0);
    EXPECT_EQ(hex_pair("-1"), 0);
    EXPECT_EQ(hex_pair("1 "), 1);
    EXPECT_EQ(hex_pair(" 1"), 0);
    EXPECT_EQ(hex_pair("\xC1\xC1"), 0);
    EXPECT_EQ(hex_pair("7"), 7);
    EXPECT_EQ(bytes_of_digits("4G41zz"), std::string("\x04"
                                                     "A\0",
                                                     3));
}

TEST(HexText, CountsHalfAPairAsZeroWhereThatIsAsked) {
    EXPECT_EQ(bytes_of_whole_pairs("4G41zzfF 1-11 "), std::string("\0A\0\xFF\0\0\0", 7));
    EXPECT_EQ(bytes_of_whole_pairs("41424"), "AB");
    EXPECT_EQ(bytes_of_whole_pairs("4"), "");
    EXPECT_EQ(bytes_of_whole_pairs(hex_digits(all_bytes())), all_bytes());
}

TEST(HexText, WritesNumbersWithLeadingZeroes) {
    EXPECT_EQ(hex_number(0), "0");
    EXPECT_EQ(hex_number(0, 2), "00");
    EXPECT_EQ(hex_number(10, 2), "0A");
    EXPECT_EQ(hex_number(255, 2), "FF");
    EXPECT_EQ(hex_number(256, 2), "100");
    EXPECT_EQ(hex_number(2147483647, 8), "7FFFFFFF");
    EXPECT_EQ(hex_number(4294967296), "100000000");
}

TEST(HexText, WritesNegativeNumbersByTheir32Bits) {
    EXPECT_EQ(hex_number(-1), "FFFFFFFF");
    EXPECT_EQ(hex_number(-2, 2), "FFFFFFFE");
    EXPECT_EQ(hex_number(-256), "FFFFFF00");
    EXPECT_EQ(hex_number(-2147483648), "80000000");
}

TEST(HexText, ReversesPairsFromTheEnd) {
    EXPECT_EQ(reversed_pairs("25E62456"), "5624E625");
    EXPECT_EQ(reversed_pairs("25E62456", " "), "56 24 E6 25");
    EXPECT_EQ(reversed_pairs("5E62456", " "), "56 24 E6 05");
    EXPECT_EQ(reversed_pairs("7"), "07");
    EXPECT_EQ(reversed_pairs(""), "");
    std::mt19937 random(41);
    for (int i = 0; i < 200; ++i) {
        const std::string digits = hex_number(static_cast<std::int64_t>(random()), 8);
        EXPECT_EQ(reversed_pairs(reversed_pairs(digits)), digits);
    }
}

}  // namespace
}  // namespace kalco

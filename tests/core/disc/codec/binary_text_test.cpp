#include "disc/codec/binary_text.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

#include "disc/codec/hextext.h"
#include "disc/runtime_error.h"
#include "support/outcome.h"

namespace kalco {
namespace {

using test::error_of;

TEST(Dectobin, WritesNoLeadingZeroes) {
    EXPECT_EQ(dectobin(0), "0");
    EXPECT_EQ(dectobin(1), "1");
    EXPECT_EQ(dectobin(2), "10");
    EXPECT_EQ(dectobin(10), "1010");
    EXPECT_EQ(dectobin(255), "11111111");
    EXPECT_EQ(dectobin(1073741824), '1' + std::string(30, '0'));
    EXPECT_EQ(dectobin(2147483647), std::string(31, '1'));
}

TEST(Dectobin, EndsAtTheLargestSignedWord) {
    EXPECT_EQ(error_of([] { dectobin(2147483648); }), error::overflow);
    EXPECT_EQ(error_of([] { dectobin(-1); }), error::overflow);
}

TEST(SommaBin, AddsTheEightCases) {
    struct Case {
        char a, b, carry_in, sum, carry_out;
    };
    constexpr std::array<Case, 8> cases{{{'1', '1', '1', '1', '1'},
                                         {'1', '0', '1', '0', '1'},
                                         {'0', '1', '1', '0', '1'},
                                         {'0', '0', '1', '1', '0'},
                                         {'1', '1', '0', '0', '1'},
                                         {'1', '0', '0', '1', '0'},
                                         {'0', '1', '0', '1', '0'},
                                         {'0', '0', '0', '0', '0'}}};
    for (const Case& known : cases) {
        char sum = '?';
        char carry = known.carry_in;
        SommaBin(known.a, known.b, sum, carry);
        EXPECT_EQ(sum, known.sum) << known.a << known.b << known.carry_in;
        EXPECT_EQ(carry, known.carry_out) << known.a << known.b << known.carry_in;
    }
}

TEST(SommaBin, LeavesOtherInputAlone) {
    for (const std::array<char, 3> input : {std::array<char, 3>{'2', '1', '1'}, {'1', ' ', '0'}, {'1', '1', 'x'}}) {
        char sum = 's';
        char carry = input[2];
        SommaBin(input[0], input[1], sum, carry);
        EXPECT_EQ(sum, 's');
        EXPECT_EQ(carry, input[2]);
    }
}

TEST(ConvHex, TurnsFourBitsIntoADigit) {
    constexpr std::array<const char*, 16> nibbles{"0000", "0001", "0010", "0011", "0100", "0101", "0110", "0111",
                                                  "1000", "1001", "1010", "1011", "1100", "1101", "1110", "1111"};
    for (std::size_t value = 0; value < nibbles.size(); ++value) {
        std::string text = nibbles[value];
        ConvHex(text);
        EXPECT_EQ(text, std::string(1, "0123456789ABCDEF"[value]));
    }
}

TEST(ConvHex, LeavesOtherTextsAsTheyAre) {
    for (const char* other : {"", "1", "101", "10101", "1002", "abcd", " 101"}) {
        std::string text = other;
        ConvHex(text);
        EXPECT_EQ(text, other);
    }
}

TEST(WordDigits, PadPositiveWordsToEightDigits) {
    EXPECT_EQ(word_digits(0), "00000000");
    EXPECT_EQ(word_digits(1), "00000001");
    EXPECT_EQ(word_digits(635839574), "25E62456");
    EXPECT_EQ(word_digits(2147483647), "7FFFFFFF");
}

TEST(WordDigits, AddUpNegativeWordsBitByBit) {
    EXPECT_EQ(word_digits(-2147483648), "80000000");
    EXPECT_EQ(word_digits(-2147483647), "80000001");
    EXPECT_EQ(word_digits(-2), "FFFFFFFE");
    EXPECT_EQ(word_digits(-256), "FFFFFF00");
    // One below the range is carried out all the same: the sum has no carry.
    EXPECT_EQ(word_digits(-2147483649), "7FFFFFFF");
}

TEST(WordDigits, OverflowBeyondTheWordAndForMinusOne) {
    EXPECT_EQ(error_of([] { word_digits(-1); }), error::overflow);
    EXPECT_EQ(error_of([] { word_digits(2147483648); }), error::overflow);
    EXPECT_EQ(error_of([] { word_digits(-2147483650); }), error::overflow);
    EXPECT_EQ(error_of([] { word_digits(9223372036854775807); }), error::overflow);
    EXPECT_EQ(error_of([] { word_digits(-9223372036854775807); }), error::overflow);
}

TEST(WordDigits, AreTheBitsOfEveryWord) {
    std::mt19937 random(2024);
    for (int i = 0; i < 5000; ++i) {
        const auto word = static_cast<std::int32_t>(random());
        if (word == -1) continue;
        EXPECT_EQ(word_digits(word), hex_number(static_cast<std::uint32_t>(word), 8)) << word;
    }
}

}  // namespace
}  // namespace kalco

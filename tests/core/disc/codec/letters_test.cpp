#include "disc/codec/letters.h"

#include <gtest/gtest.h>

#include <map>
#include <random>

#include "disc/codec/hextext.h"
#include "disc/runtime_error.h"
#include "support/outcome.h"

namespace kalco {
namespace {

/// The printed table: codes and the characters that they stand for.
const std::map<std::string, char>& known_codes() {
    static const std::map<std::string, char> codes = [] {
        std::map<std::string, char> table{{"81 44", '.'}};
        constexpr std::string_view digits = "0123456789ABCDEF";
        const auto add_run = [&](int first, char letter) {
            for (int i = 0; i < 26; ++i) {
                const auto value = static_cast<std::size_t>(first + i);
                table[std::string("82 ") + digits[value / 16] + digits[value % 16]] = static_cast<char>(letter + i);
            }
        };
        add_run(0x60, 'A');
        add_run(0x81, 'a');
        return table;
    }();
    return codes;
}

std::string bytes_of(const std::string& hex) {
    std::string digits;
    for (const char c : hex) {
        if (c != ' ') digits += c;
    }
    return bytes_of_digits(digits);
}

std::string decoded(const std::string& hex) {
    return decode_letters(bytes_of(hex));
}

TEST(HexLet, ReadsEveryCodeOfTwoBytes) {
    EXPECT_EQ(known_codes().size(), 53U);
    for (int lead = 0; lead <= 0xFF; ++lead) {
        for (int trail = 0; trail <= 0xFF; ++trail) {
            const std::string code = hex_number(lead, 2) + ' ' + hex_number(trail, 2);
            const auto known = known_codes().find(code);
            ASSERT_EQ(Hex_Let(code), known == known_codes().end() ? ' ' : known->second) << code;
        }
    }
}

TEST(HexLet, ReadsTheEndsOfTheTable) {
    EXPECT_EQ(Hex_Let("82 60"), 'A');
    EXPECT_EQ(Hex_Let("82 79"), 'Z');
    EXPECT_EQ(Hex_Let("82 81"), 'a');
    EXPECT_EQ(Hex_Let("82 9A"), 'z');
    EXPECT_EQ(Hex_Let("81 44"), '.');
    EXPECT_EQ(Hex_Let("20 20"), ' ');
    EXPECT_EQ(Hex_Let("82 80"), ' ');
    EXPECT_EQ(Hex_Let("00 00"), ' ');
}

TEST(HexLet, TakesAShortCodeForABlank) {
    EXPECT_EQ(Hex_Let(""), ' ');
    EXPECT_EQ(Hex_Let("82"), ' ');
    EXPECT_EQ(Hex_Let("82 6"), ' ');
    EXPECT_EQ(Hex_Let("82 60 "), ' ');
}

TEST(LetHX, WritesTheCodeOfEveryCharacterThatHasOne) {
    LetterEncoder encoder;
    EXPECT_EQ(encoder.code(), "");
    for (const auto& [code, character] : known_codes()) {
        encoder.Let_HX(character);
        EXPECT_EQ(encoder.code(), code);
    }
    encoder.Let_HX(' ');
    EXPECT_EQ(encoder.code(), "20");
}

TEST(LetHX, RepeatsTheLastCodeForAllOtherCharacters) {
    for (int code = 0; code <= 0xFF; ++code) {
        const auto character = static_cast<char>(code);
        const bool known = (code >= 'A' && code <= 'Z') || (code >= 'a' && code <= 'z') || code == '.' || code == ' ';
        if (known) continue;
        LetterEncoder encoder;
        encoder.Let_HX(character);
        EXPECT_EQ(encoder.code(), "") << code;
        encoder.Let_HX('R');
        encoder.Let_HX(character);
        EXPECT_EQ(encoder.code(), "82 71") << code;
    }
}

TEST(Encoding, WritesTwoBytesALetterAndOneABlank) {
    LetterEncoder encoder;
    EXPECT_EQ(hex_line(encoder.encode("AC MILAN")), "82 60 82 62 20 82 6C 82 68 82 6B 82 60 82 6D");
    EXPECT_EQ(hex_line(encoder.encode("  St. x ")), "82 72 82 94 81 44 20 82 98");
    EXPECT_EQ(hex_line(encoder.encode("a  b")), "82 81 20 20 82 82");
    EXPECT_EQ(encoder.encode(""), "");
    EXPECT_EQ(encoder.encode("    "), "");
}

TEST(Encoding, RepeatsTheLetterBeforeADigit) {
    LetterEncoder encoder;
    EXPECT_EQ(encoder.encode("2"), "");
    EXPECT_EQ(hex_line(encoder.encode("R2")), "82 71 82 71");
    EXPECT_EQ(hex_line(encoder.encode("A,B-")), "82 60 82 60 82 61 82 61");
    EXPECT_EQ(hex_line(encoder.encode("x 7")), "82 98 20 20");
    EXPECT_EQ(hex_line(encoder.encode("2A")), "20 82 60");
    EXPECT_EQ(hex_line(encoder.encode("\xC0")), "82 60");
}

TEST(Encoding, StartsAgainWithNothingForAFreshRun) {
    LetterEncoder encoder;
    EXPECT_EQ(hex_line(encoder.encode("2A")), "82 60");
}

TEST(Decoding, ReadsLettersAndPadding) {
    EXPECT_EQ(decoded("82 60 82 62 20 82 6C 82 68 82 6B 82 60 82 6D"), "AC MILAN");
    EXPECT_EQ(decoded("82 60 82 62 20 82 6C 82 68 82 6B 82 60 82 6D 00 00 00 00"), "AC MILAN  ");
    EXPECT_EQ(decoded("82 60 00 00 00"), "A  ");
    EXPECT_EQ(decoded("00 00 00 00"), "  ");
    EXPECT_EQ(decoded(""), "");
}

TEST(Decoding, ReadsBlanksOfThreeForms) {
    EXPECT_EQ(decoded("82 60 20 82 61"), "A B");
    EXPECT_EQ(decoded("82 60 82 80 82 61"), "A B");
    EXPECT_EQ(decoded("82 60 81 40 82 61"), "A B");
}

TEST(Decoding, DoublesOnlyTheFirstSingleBlank) {
    // Behind the second blank the groups fall off the grid.
    EXPECT_EQ(decoded("82 60 20 82 61 20 82 62"), "A B  ");
    // A doubled blank is doubled once more by its first byte.
    EXPECT_EQ(decoded("82 60 20 20 82 61"), "A   ");
    EXPECT_EQ(decoded("82 20 82 60"), "   ");
    EXPECT_EQ(decoded("82 60 20"), "A ");
}

TEST(Decoding, CountsAShortLastGroupAsABlank) {
    EXPECT_EQ(decoded("82 60 82"), "A ");
    EXPECT_EQ(decoded("82"), " ");
}

TEST(Decoding, FailsOnAFieldThatBeginsWithABlank) {
    for (const std::string hex : {"20", "20 20", "20 82 60"}) {
        EXPECT_EQ(test::error_of([&] { decoded(hex); }), error::invalid_call) << hex;
    }
}

TEST(Decoding, GivesBackWhatTheEncoderWroteWithOneBlank) {
    std::string letters;
    for (const auto& [code, character] : known_codes()) letters += character;
    std::mt19937 random(7);
    for (int i = 0; i < 500; ++i) {
        std::string text;
        const std::size_t length = 1 + random() % 12;
        for (std::size_t k = 0; k < length; ++k) text += letters[random() % letters.size()];
        if (length > 2 && random() % 2 == 0) text[1 + random() % (length - 2)] = ' ';
        LetterEncoder encoder;
        const std::string bytes = encoder.encode(text);
        EXPECT_EQ(bytes.size(), 2 * length - (text.find(' ') == std::string::npos ? 0 : 1));
        EXPECT_EQ(decode_letters(bytes), text);
        EXPECT_EQ(decode_letters(bytes + std::string(6, '\0')), text + "   ");
    }
}

}  // namespace
}  // namespace kalco

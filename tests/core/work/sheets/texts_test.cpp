#include "work/sheets/texts.h"

#include <gtest/gtest.h>

#include <random>

#include "disc/codec/latin1.h"
#include "support/filled_disc.h"

namespace kalco {
namespace {

using namespace std::string_literals;

bool is_control(int code) {
    return code < 0x20 || (code >= 0x7F && code < 0xA0);
}

TEST(Texts, EndAtTheFirstZero) {
    EXPECT_EQ(cell_of_text("ab\0cd"s), "ab");
    EXPECT_EQ(cell_of_text("\0ab"s), "");
    EXPECT_EQ(cell_of_text(""), "");
    EXPECT_EQ(cell_of_text(" ab "), " ab ");
    EXPECT_EQ(cell_of_wide_text("\x82\x60\0\x82\x61"s), "A");
    EXPECT_EQ(cell_of_wide_text("\0\x82\x60"s), "");
}

TEST(Texts, AreDigitsWhenNobodyCouldTypeThem) {
    EXPECT_EQ(cell_of_text("#1"), "#2331");
    EXPECT_EQ(cell_of_text("a#1"), "a#1");
    EXPECT_EQ(cell_of_text("a\nb"), "#610A62");
    EXPECT_EQ(cell_of_text("\"\""), "#2222");
    EXPECT_EQ(cell_of_text("\"\"\""), "\"\"\"");
    EXPECT_EQ(cell_of_text("\xD1\xFF"), "\xC3\x91\xC3\xBF");
}

TEST(Texts, HoldEveryByteButZero) {
    for (int code = 1; code <= 0xFF; ++code) {
        const std::string bytes = "A" + std::string(1, static_cast<char>(code));
        const std::string cell = cell_of_text(bytes);
        EXPECT_EQ(cell.front() == '#', is_control(code)) << code;
        const TextReading reading = text_of_cell(cell, 2);
        EXPECT_EQ(reading.mistake, "") << code;
        EXPECT_EQ(reading.bytes, bytes) << code;
        // Typed as it is, a control character is refused.
        EXPECT_EQ(text_of_cell(utf8_of_latin1(bytes), 2).mistake.empty(), !is_control(code)) << code;
    }
}

TEST(Texts, AreHeldToTheirLength) {
    EXPECT_EQ(text_of_cell("1234567890", 10).mistake, "");
    EXPECT_EQ(text_of_cell("12345678901", 10).mistake, "too long: 11 bytes, there is room for 10");
    EXPECT_EQ(text_of_cell("\xC3\x91\xC3\x91\xC3\x91", 3).bytes, "\xD1\xD1\xD1");
    EXPECT_EQ(text_of_cell("#41424344", 3).mistake, "too long: 4 bytes, there is room for 3");
    EXPECT_EQ(text_of_cell("#414243", 3).bytes, "ABC");
    EXPECT_EQ(wide_text_of_cell("ABCDE", 10).mistake, "");
    EXPECT_EQ(wide_text_of_cell("ABCDEF", 10).mistake, "too long: 12 bytes, there is room for 10");
    EXPECT_EQ(wide_text_of_cell("A B C D", 11).mistake, "");
    EXPECT_EQ(wide_text_of_cell("A B C D", 10).mistake, "too long: 11 bytes, there is room for 10");
}

TEST(Texts, AreRefusedWithLettersThatTheDiscLacks) {
    for (const char* cell : {"\xC4\x80", "a\xE2\x82\xAC", "\xF0\x9F\x98\x80"}) {
        EXPECT_EQ(text_of_cell(cell, 10).mistake, "a letter that the disc can't hold");
    }
    for (const char* cell : {"A1", "A-B", "A\xC3\x89", "A,", "A\tB", "A_", "@", "[", "`", "{"}) {
        EXPECT_NE(wide_text_of_cell(cell, 20).mistake.find("can't hold"), std::string::npos) << cell;
    }
    for (const char* cell : {" A", "A ", "A  B", " "}) {
        EXPECT_NE(wide_text_of_cell(cell, 20).mistake.find("blanks"), std::string::npos) << cell;
    }
}

TEST(Texts, TakeDigitsByPairsOnly) {
    for (const char* cell : {"#", "#4", "#414", "#4G", "#41 42", "#name", "# 41"}) {
        EXPECT_NE(text_of_cell(cell, 10).mistake, "") << cell;
        EXPECT_NE(wide_text_of_cell(cell, 10).mistake, "") << cell;
    }
    EXPECT_EQ(text_of_cell("#4a4B", 10).bytes, "JK");
    EXPECT_NE(text_of_cell("#4100", 10).mistake, "");
}

TEST(Texts, AreEmptiedByTwoQuotes) {
    EXPECT_EQ(text_of_cell("\"\"", 3).bytes, "");
    EXPECT_EQ(text_of_cell("\"\"", 3).mistake, "");
    EXPECT_EQ(wide_text_of_cell("\"\"", 3).bytes, "");
    EXPECT_EQ(wide_text_of_cell("\"\"", 3).mistake, "");
}

TEST(WideTexts, SpellLettersFullStopsAndSingleBlanks) {
    const std::string all = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz.";
    EXPECT_EQ(cell_of_wide_text(test::letter_code(all)), all);
    EXPECT_EQ(wide_text_of_cell(all, 200).bytes, test::letter_code(all));
    for (const char* name : {"A", ".", "A B", "P.S. Ghi j", "a b c d e"}) {
        EXPECT_EQ(cell_of_wide_text(test::letter_code(name)), name);
        EXPECT_EQ(wide_text_of_cell(name, 40).bytes, test::letter_code(name));
    }
}

TEST(WideTexts, AreDigitsForAnythingElse) {
    EXPECT_EQ(cell_of_wide_text(" \x82\x60"), "#208260");
    EXPECT_EQ(cell_of_wide_text("\x82\x60 "), "#826020");
    EXPECT_EQ(cell_of_wide_text("\x82\x60  \x82\x61"), "#826020208261");
    EXPECT_EQ(cell_of_wide_text("\x82"), "#82");
    EXPECT_EQ(cell_of_wide_text("\x82\x60\x82"), "#826082");
    EXPECT_EQ(cell_of_wide_text("AB"), "#4142");
    EXPECT_EQ(cell_of_wide_text("\x82\x80"), "#8280");
    EXPECT_EQ(cell_of_wide_text("\x82\x7A"), "#827A");
    EXPECT_EQ(cell_of_wide_text("\x81\x45"), "#8145");
}

TEST(WideTexts, ComeBackWhateverTheyAre) {
    std::mt19937 random(3);
    const std::string usual = "\x82\x81\x60\x44 \x61";
    for (int round = 0; round < 5000; ++round) {
        std::string bytes;
        for (auto length = random() % 8; length > 0; --length) {
            bytes += random() % 8 == 0 ? static_cast<char>(random() % 255 + 1) : usual[random() % usual.size()];
        }
        const TextReading reading = wide_text_of_cell(cell_of_wide_text(bytes), 8);
        if (bytes.empty()) continue;
        ASSERT_EQ(reading.mistake, "") << cell_of_wide_text(bytes);
        ASSERT_EQ(reading.bytes, bytes);
    }
}

}  // namespace
}  // namespace kalco

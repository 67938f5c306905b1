#include "disc/codec/lines.h"

#include <gtest/gtest.h>

#include <random>

namespace kalco {
namespace {

using Lines = std::vector<std::string>;

TEST(Lines, EndInThreeWays) {
    EXPECT_EQ(lines_of("a\r\nb\r\n"), (Lines{"a", "b"}));
    EXPECT_EQ(lines_of("a\nb\n"), (Lines{"a", "b"}));
    EXPECT_EQ(lines_of("a\rb\r"), (Lines{"a", "b"}));
    EXPECT_EQ(lines_of("a\rb\nc\r\nd"), (Lines{"a", "b", "c", "d"}));
}

TEST(Lines, CountTheLastOneWithoutAnEnd) {
    EXPECT_EQ(lines_of("a\r\nb"), (Lines{"a", "b"}));
    EXPECT_EQ(lines_of("a"), (Lines{"a"}));
    EXPECT_EQ(lines_of(""), Lines{});
}

TEST(Lines, CanBeEmpty) {
    EXPECT_EQ(lines_of("\r\n\r\n"), (Lines{"", ""}));
    EXPECT_EQ(lines_of("\n\r"), (Lines{"", ""}));
    EXPECT_EQ(lines_of("\r\r\na"), (Lines{"", "", "a"}));
    EXPECT_EQ(lines_of(std::string("a\0b\n", 4)), (Lines{std::string("a\0b", 3)}));
}

TEST(Lines, AreWrittenWithTheirEnds) {
    EXPECT_EQ(text_of_lines({"a", "", "b"}), "a\r\n\r\nb\r\n");
    EXPECT_EQ(text_of_lines({}), "");
}

TEST(Lines, ComeBackAsTheyWereWritten) {
    std::mt19937 random(5);
    for (int round = 0; round < 200; ++round) {
        Lines lines(random() % 6);
        for (std::string& line : lines) {
            for (auto length = random() % 5; length > 0; --length) line += static_cast<char>('a' + random() % 26);
        }
        EXPECT_EQ(lines_of(text_of_lines(lines)), lines);
    }
}

}  // namespace
}  // namespace kalco

#include "work/sheets/disc_bytes.h"

#include <gtest/gtest.h>

#include <random>

namespace kalco {
namespace {

constexpr std::array<int, 2> two_sectors{3, 4};

/// Sectors 3 and 4 of an image whose bytes count up.
DiscBytes counting() {
    return {[](ImagePos position, int bytes) {
                std::string result;
                for (int i = 0; i < bytes; ++i) result += static_cast<char>(position - 1 + i);
                return result;
            },
            two_sectors};
}

constexpr ImagePos start = ImagePos{3} * sector_bytes + 1;

std::string counted(ImagePos position, int bytes) {
    std::string result;
    for (int i = 0; i < bytes; ++i) result += static_cast<char>(position - 1 + i);
    return result;
}

TEST(DiscBytes, ReadsFieldsAlsoInTwoPieces) {
    const DiscBytes disc = counting();
    EXPECT_EQ(disc.read(Piece{start, 3}), counted(start, 3));
    const Pieces split{Piece{start + 2000, 2}, Piece{start + sector_bytes + 24, 3}};
    EXPECT_EQ(disc.read(split), counted(start + 2000, 2) + counted(start + sector_bytes + 24, 3));
}

TEST(DiscBytes, KnowsNothingOfOtherSectors) {
    const DiscBytes disc = counting();
    EXPECT_THROW(disc.read(Piece{start - 1, 1}), std::out_of_range);
    EXPECT_THROW(disc.read(Piece{start + ImagePos{2} * sector_bytes, 1}), std::out_of_range);
    EXPECT_THROW(disc.read(Piece{0, 1}), std::out_of_range);
}

TEST(DiscBytes, FillsATextWithZeroes) {
    DiscBytes disc = counting();
    const Pieces split{Piece{start + 2000, 2}, Piece{start + sector_bytes + 24, 3}};
    disc.write(split, "abc");
    EXPECT_EQ(disc.read(split), std::string("abc\0\0", 5));
    EXPECT_EQ(disc.read(Piece{start + 1999, 1}), counted(start + 1999, 1));
    EXPECT_EQ(disc.read(Piece{start + 2002, 1}), counted(start + 2002, 1));
    EXPECT_EQ(disc.read(Piece{start + sector_bytes + 23, 1}), counted(start + sector_bytes + 23, 1));
    EXPECT_EQ(disc.read(Piece{start + sector_bytes + 27, 1}), counted(start + sector_bytes + 27, 1));
}

TEST(DiscBytes, CountsBitsFromTheLowestOfTheFirstByteOn) {
    DiscBytes disc = counting();
    disc.put(start, "\x81\x42\x24");
    const Piece field{start, 3};
    EXPECT_EQ(disc.bits(field, {0, 1}), 1U);
    EXPECT_EQ(disc.bits(field, {1, 6}), 0U);
    EXPECT_EQ(disc.bits(field, {7, 3}), 0b101U);
    EXPECT_EQ(disc.bits(field, {0, 16}), 0x4281U);
    EXPECT_EQ(disc.bits(field, {14, 8}), 0b10010001U);
}

TEST(DiscBytes, SetsTheBitsOfARangeAlone) {
    std::mt19937 random(1);
    const Pieces split{Piece{start + 2000, 1}, Piece{start + sector_bytes + 24, 3}};
    for (int round = 0; round < 2000; ++round) {
        DiscBytes disc = counting();
        const DiscBytes before = disc;
        const int width = static_cast<int>(random() % 16) + 1;
        const int first = static_cast<int>(random() % (33 - static_cast<unsigned>(width)));
        const auto value = static_cast<unsigned>(random() & ((1U << width) - 1));
        disc.set_bits(split, {first, width}, value);
        ASSERT_EQ(disc.bits(split, {first, width}), value);
        for (int bit = 0; bit < 32; ++bit) {
            if (bit >= first && bit < first + width) continue;
            ASSERT_EQ(disc.bits(split, {bit, 1}), before.bits(split, {bit, 1})) << bit;
        }
        ASSERT_LE(differences(before, disc).size(), 2U);
    }
}

TEST(DiscBytes, DropsWhatIsPutOutsideItsSectors) {
    DiscBytes disc = counting();
    const DiscBytes before = disc;
    disc.put(start - 2, std::string(4, 'x'));
    disc.put(start + ImagePos{2} * sector_bytes - 1, "yz");
    disc.put(1, "far away");
    const std::vector<DiscBytes::Run> expected{{start, "xx"}, {start + ImagePos{2} * sector_bytes - 1, "y"}};
    EXPECT_EQ(differences(before, disc), expected);
}

TEST(DiscBytes, TellsNeighbouringDifferencesAsOneRun) {
    DiscBytes disc = counting();
    const DiscBytes before = disc;
    disc.put(start + 10, "\xEE\xEE");
    disc.put(start + 13, "\xEE");
    disc.put(start + sector_bytes - 1, "\xEE\xEE");
    const std::vector<DiscBytes::Run> expected{{start + 10, "\xEE\xEE"},
                                               {start + 13, "\xEE"},
                                               {start + sector_bytes - 1, "\xEE"},
                                               {start + sector_bytes, "\xEE"}};
    EXPECT_EQ(differences(before, disc), expected);
    EXPECT_TRUE(differences(disc, disc).empty());
}

TEST(DiscBytes, TakesAShortReadingForZeroes) {
    const DiscBytes disc([](ImagePos, int) { return std::string("ab"); }, two_sectors);
    EXPECT_EQ(disc.read(Piece{start, 4}), std::string("ab\0\0", 4));
}

}  // namespace
}  // namespace kalco

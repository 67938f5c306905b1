#include "work/sheets/known_bits.h"

#include <gtest/gtest.h>

namespace kalco {
namespace {

TEST(KnownBits, AreThoseOfTheFields) {
    const auto& known = known_bits();
    EXPECT_EQ(known.size(), 42U);
    const auto bits_at = [&](ImagePos position) {
        return int{known.at((position - 1) / sector_bytes)[static_cast<std::size_t>((position - 1) % sector_bytes)]};
    };
    EXPECT_EQ(bits_at(387793), 0xFF);
    // Spare bits of the first player's record: 3, 12 and 16 of its first word, 13 of its second.
    EXPECT_EQ(bits_at(2179493), 0xFF & ~(1 << 3));
    EXPECT_EQ(bits_at(2179494), 0xFF & ~(1 << 4));
    EXPECT_EQ(bits_at(2179495), 0xFF & ~(1 << 0));
    EXPECT_EQ(bits_at(2179496), 0xFF);
    EXPECT_EQ(bits_at(2179498), 0xFF & ~(1 << 5));
    // The spare bits of a nation's shirt numbers.
    EXPECT_EQ(bits_at(404717 + 3), 0x3F);
    EXPECT_EQ(bits_at(404717 + 15), 0x01);
    // The byte behind the default team's shirt numbers.
    EXPECT_EQ(bits_at(2014528), 0);
}

}  // namespace
}  // namespace kalco

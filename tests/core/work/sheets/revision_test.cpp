#include "work/sheets/revision.h"

#include <gtest/gtest.h>

#include <set>

#include "support/sheet_disc.h"
#include "work/sheets/ids.h"

namespace kalco {
namespace {

int row_of(const char* id) {
    return row_of_place(player_of_id(id).value());
}

/// An image in which the player's bytes are the digits and letters from "1" on, as many as he has.
DiscBytes with_player(const char* id, std::string_view bytes) {
    DiscBytes disc = test::sheets_of(test::random_image_bytes(1));
    const PlayerPlace place = player_of_id(id).value();
    disc.write(player_name_field(place), bytes.substr(0, 10));
    disc.write(player_record_field(place), bytes.substr(10, 12));
    if (const auto cost = cost_position(place)) disc.put(*cost, bytes.substr(22, 1));
    return disc;
}

TEST(Revision, IsTheUsualSumOverAllThatIsStored) {
    constexpr std::string_view bytes = "123456789abcdefghijklmn";
    EXPECT_EQ(revision(with_player("t00p01", bytes), row_of("t00p01")), "r30443F8E");
    EXPECT_EQ(revision(with_player("m149", bytes), row_of("m149")), "r30443F8E");
    EXPECT_EQ(revision(with_player("t62p23", bytes), row_of("t62p23")), "rFEAA17A7");
}

TEST(Revision, ChangesWithEveryBit) {
    const DiscBytes disc = test::sheets_of(test::demo_image_bytes());
    const PlayerPlace place = player_of_id("m409").value();
    const int row = row_of("m409");
    std::set<std::string> sums{revision(disc, row)};
    const auto flip = [&](const Pieces& field) {
        for (int bit = 0; bit < 8 * field.bytes(); ++bit) {
            DiscBytes other = disc;
            other.set_bits(field, {bit, 1}, 1 - disc.bits(field, {bit, 1}));
            EXPECT_TRUE(sums.insert(revision(other, row)).second) << bit;
        }
    };
    flip(player_name_field(place));
    flip(player_record_field(place));
    flip(Piece{cost_position(place).value(), 1});
    EXPECT_EQ(sums.size(), 1U + 8 * 23);
}

TEST(Revision, IsOnesOwn) {
    DiscBytes disc = test::sheets_of(test::demo_image_bytes());
    const std::string before = revision(disc, row_of("t10p04"));
    disc.write(player_name_field(player_of_id("t10p03").value()), "OTHER");
    disc.put(cost_position(player_of_id("t10p05").value()).value(), "x");
    EXPECT_EQ(revision(disc, row_of("t10p04")), before);
}

}  // namespace
}  // namespace kalco

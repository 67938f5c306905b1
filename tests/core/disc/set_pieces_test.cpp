#include "disc/set_pieces.h"

#include <gtest/gtest.h>

#include "support/printed_rows.h"

namespace kalco {
namespace {

TEST(SetPiecePlaces, AreThePrintedOnes) {
    for (const TeamRow row : every<TeamRow>()) {
        EXPECT_EQ(test::places_of(set_piece_field(row)), test::printed_set_pieces(row.value())) << row.value();
    }
    EXPECT_EQ(set_piece_field(TeamRow(53)).position(), 2329375);
    EXPECT_EQ(set_piece_field(TeamRow(54)).position(), 2329435);
    EXPECT_EQ(set_piece_field(TeamRow(85)).position(), 2329621);
}

}  // namespace
}  // namespace kalco

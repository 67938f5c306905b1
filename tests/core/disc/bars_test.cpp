#include "disc/bars.h"

#include <gtest/gtest.h>

#include <set>

#include "support/printed_rows.h"

namespace kalco {
namespace {

using test::places_of;
using test::printed_bars;

TEST(BarsField, LiesAtThePrintedPlaceForEveryRow) {
    std::set<ImagePos> used;
    for (int row = 0; row < 86; ++row) {
        EXPECT_EQ(places_of(bars_field(TeamRow(row))), printed_bars(row)) << row;
        for (const Piece& piece : bars_field(TeamRow(row))) {
            for (int i = 0; i < piece.bytes; ++i) EXPECT_TRUE(used.insert(piece.position + i).second) << row;
        }
    }
    EXPECT_EQ(used.size(), 86U * 5U);
}

TEST(BarsField, MeetsThePrintedEnds) {
    EXPECT_EQ(bars_field(TeamRow(0)).position(), 2328185);
    EXPECT_EQ(bars_field(TeamRow(2)).position(), 2328195);
    EXPECT_EQ(bars_field(TeamRow(3))[0], (Piece{2328200, 1}));
    EXPECT_EQ(bars_field(TeamRow(3))[1], (Piece{2328505, 4}));
    EXPECT_EQ(bars_field(TeamRow(4)).position(), 2328509);
    EXPECT_EQ(bars_field(TeamRow(53)).position(), 2328754);
    EXPECT_EQ(bars_field(TeamRow(54)).position(), 2328804);
    EXPECT_EQ(bars_field(TeamRow(85)).position(), 2328959);
    EXPECT_EQ(bars_field(TeamRow(54)).position() - (bars_field(TeamRow(53)).position() + 5), 45);
}

TEST(BarsField, IsThereForAllRowsButTheDefaultTeam) {
    for (const TeamRow row : every<TeamRow>()) EXPECT_EQ(has_bars(row), row.value() != 86) << row.value();
    EXPECT_FALSE(has_bars(TeamRow(-1)));
    EXPECT_FALSE(has_bars(TeamRow(87)));
}

}  // namespace
}  // namespace kalco

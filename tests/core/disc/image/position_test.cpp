#include "disc/image/position.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/disc_tables.h"

namespace kalco {
namespace {

TEST(Position, CountsFromOneBehindTheSectorsHead) {
    EXPECT_EQ(position_of(0), 25);
    EXPECT_EQ(position_of(1), 26);
    EXPECT_EQ(position_of(2047), 2072);
    EXPECT_EQ(position_of(2048), 2377);
    EXPECT_EQ(position_of(4095), 4424);
    EXPECT_EQ(position_of(4096), 4729);
}

TEST(Position, JumpsBy304AtASectorsEndAndByOneElsewhere) {
    for (UserOffset offset = 1; offset < 3 * user_bytes; ++offset) {
        const ImagePos jump = position_of(offset) - position_of(offset - 1);
        EXPECT_EQ(jump, offset % user_bytes == 0 ? 305 : 1) << offset;
    }
}

TEST(Position, HasAnInverse) {
    for (UserOffset offset = 0; offset < 3 * user_bytes; ++offset) {
        EXPECT_EQ(user_offset_of(position_of(offset)), offset);
    }
    EXPECT_EQ(position_of(user_offset_of(5652905)), 5652905);
}

TEST(Fields, LieWholeWhenTheSectorHoldsThem) {
    EXPECT_EQ(field_at(0, 10), Pieces(Piece{25, 10}));
    EXPECT_EQ(field_at(2038, 10), Pieces(Piece{2063, 10}));
    EXPECT_EQ(field_at(0, 2048), Pieces(Piece{25, 2048}));
    EXPECT_EQ(field_at(2048, 1), Pieces(Piece{2377, 1}));
    EXPECT_FALSE(field_at(2038, 10).split());
}

TEST(Fields, AreTwoPiecesOverASectorsEnd) {
    const Pieces field = field_at(2039, 10);
    ASSERT_TRUE(field.split());
    EXPECT_EQ(field[0], (Piece{2064, 9}));
    EXPECT_EQ(field[1], (Piece{2377, 1}));
    EXPECT_EQ(field.bytes(), 10);
    EXPECT_EQ(field.position(), 2064);
    EXPECT_EQ(field_at(2047, 10), Pieces(Piece{2072, 1}, Piece{2377, 9}));
}

TEST(Fields, AreEqualWhenAllOfThemIs) {
    const Pieces field(Piece{2064, 9}, Piece{2377, 1});
    EXPECT_EQ(field, Pieces(Piece{2064, 9}, Piece{2377, 1}));
    EXPECT_NE(field, Pieces(Piece{2065, 9}, Piece{2377, 1}));
    EXPECT_NE(field, Pieces(Piece{2064, 8}, Piece{2377, 1}));
    EXPECT_NE(field, Pieces(Piece{2064, 9}, Piece{2378, 1}));
    EXPECT_NE(field, Pieces(Piece{2064, 9}, Piece{2377, 2}));
    EXPECT_NE(field, Pieces(Piece{2064, 9}));
    EXPECT_NE(Pieces(Piece{2064, 9}), Pieces(Piece{2064, 9}, Piece{}));
    EXPECT_NE(Pieces(Piece{2064, 9}), Pieces(Piece{2065, 9}));
}

TEST(Fields, AreTheSameFromAPositionAsFromAnOffset) {
    for (UserOffset offset = 2000; offset < 2100; ++offset) {
        EXPECT_EQ(field_from(position_of(offset), 12), field_at(offset, 12)) << offset;
    }
}

TEST(Fields, SplitWhereThePrintedTablesSay) {
    const auto expect_split = [](const test::PrintedSplit& printed, int bytes) {
        const Pieces expected(Piece{printed.first, printed.first_bytes},
                              Piece{printed.second, bytes - printed.first_bytes});
        EXPECT_EQ(field_from(printed.first, bytes), expected) << printed.first;
    };
    for (const auto& split : test::printed_name_splits) expect_split(split, 10);
    for (const auto& split : test::printed_record_splits) expect_split(split, 12);
    for (const auto& split : test::printed_pool_name_splits) expect_split(split, 10);
    for (const auto& split : test::printed_pool_record_splits) expect_split(split, 12);
}

}  // namespace
}  // namespace kalco

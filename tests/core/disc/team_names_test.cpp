#include "disc/team_names.h"

#include <gtest/gtest.h>

#include <set>

#include "disc/runtime_error.h"
#include "support/disc_tables.h"
#include "support/filled_disc.h"
#include "support/memory_storage.h"

namespace kalco {
namespace {

/// Where the printed tables have a name, with its length; none of length 0.
struct PrintedName {
    std::int64_t position;
    int bytes;
};

PrintedName printed_name(int team, NamePlace place) {
    const test::PrintedTeam& facts = test::printed_teams[static_cast<std::size_t>(team)];
    if (place == NamePlace::short_name) return {2005373 - 4 * team, 3};
    if (place == NamePlace::full_width) {
        return team == 4 ? PrintedName{2003621, 10} : PrintedName{facts.full_width_position, facts.full_width_bytes};
    }
    const int table = static_cast<int>(place) - static_cast<int>(NamePlace::t1);
    return {test::table_position(team, table), facts.lengths[static_cast<std::size_t>(table)]};
}

TEST(NameFields, LieWhereTheTablesPrintThem) {
    int fields = 0;
    for (const Team team : every<Team>()) {
        for (const NamePlace place : name_places) {
            const PrintedName printed = printed_name(team.value(), place);
            const auto field = name_field(team, place);
            ASSERT_EQ(field.has_value(), printed.bytes > 0) << team.value() << ", " << static_cast<int>(place);
            if (!field) continue;
            ++fields;
            EXPECT_EQ(*field, field_from(printed.position, printed.bytes)) << team.value();
            EXPECT_EQ(field->split(), (team == Team(4) && place == NamePlace::full_width) ||
                                          (team == Team(5) && place == NamePlace::t2))
                << team.value();
        }
    }
    // Short names of all, full-width names of all but the default list, tables by the class of the team.
    EXPECT_EQ(fields, 96 + 95 + 5 * 54 + 9 + 6 * 32);
}

TEST(NameFields, CrossSectorEndsInTwoPieces) {
    EXPECT_EQ(name_field(Team(4), NamePlace::full_width), (Pieces{{2003621, 4}, {2003929, 6}}));
    EXPECT_EQ(name_field(Team(5), NamePlace::t2), (Pieces{{4823669, 4}, {4823977, 3}}));
}

TEST(NameFields, OfNoTeamAreNone) {
    for (const int team : {-1, 96, 1000}) {
        for (const NamePlace place : name_places) EXPECT_FALSE(name_field(Team(team), place)) << team;
    }
}

TEST(NameFields, ShareNoByte) {
    std::set<std::int64_t> taken;
    std::size_t bytes = 0;
    for (const Team team : every<Team>()) {
        for (const NamePlace place : name_places) {
            const auto field = name_field(team, place);
            if (!field) continue;
            for (const Piece& piece : *field) {
                for (int i = 0; i < piece.bytes; ++i) taken.insert(piece.position + i);
            }
            bytes += static_cast<std::size_t>(field->bytes());
        }
    }
    EXPECT_EQ(taken.size(), bytes);
}

TEST(NameBytes, StandAsTheyAre) {
    test::Disc disc{.bytes = test::filled_image()};
    Image image(test::opener_of(disc));
    image.open("disc.bin");
    for (const Team team : every<Team>()) {
        for (const NamePlace place : name_places) {
            const PrintedName printed = printed_name(team.value(), place);
            const std::string expected =
                printed.bytes == 0
                    ? std::string()
                    : test::user_data_at(disc.bytes, printed.position, static_cast<std::size_t>(printed.bytes));
            EXPECT_EQ(read_name_bytes(image, team, place), expected) << team.value();
        }
    }
}

class NamesInAnImage : public ::testing::Test {
protected:
    NamesInAnImage() : image_(test::opener_of(disc_)) {
        disc_.bytes.assign(2100000, 'x');
        disc_.bytes.resize(2900000, 'y');
        image_.open("disc.bin");
    }

    test::Disc disc_;
    Image image_;
};

TEST_F(NamesInAnImage, ReadsTheFirstTableUpToItsLength) {
    disc_.put(2830941, "ABCDEFGHIJ");
    EXPECT_EQ(read_table_name(image_, Team(0)), "ABCDEFG");
    disc_.put(2830941, std::string("AB\0DEFG", 7));
    EXPECT_EQ(read_table_name(image_, Team(0)), "AB");
    disc_.put(2830941, test::zeroes(7));
    EXPECT_EQ(read_table_name(image_, Team(0)), "");
    EXPECT_EQ(read_table_name(image_, Team(95)), "");
    EXPECT_EQ(read_table_name(image_, Team(96)), "");
}

TEST_F(NamesInAnImage, DecodesTheSplitNameInOneWalk) {
    // The single blank stands over the seam: in one walk it is doubled and the letters behind it stay on the grid.
    disc_.put(2003621, test::letter_code("A ") + "\x82");
    disc_.put(2003929, "\x61" + test::letter_code("CD") + test::zeroes(1));
    EXPECT_EQ(read_full_width_name(image_, Team(4)), "A BCD ");
}

TEST_F(NamesInAnImage, DecodesFullWidthNames) {
    disc_.put(2003981, test::letter_code("Eire") + test::zeroes(6));
    EXPECT_EQ(read_full_width_name(image_, Team(0)), "Eire   ");
    disc_.put(2002317, test::letter_code("Boca") + test::zeroes(2));
    EXPECT_EQ(read_full_width_name(image_, Team(94)), "Boca ");
    EXPECT_EQ(read_full_width_name(image_, Team(95)), "");
    EXPECT_EQ(read_full_width_name(image_, Team(-1)), "");
    disc_.put(2003981, " ");
    EXPECT_THROW(read_full_width_name(image_, Team(0)), RuntimeError);
}

}  // namespace
}  // namespace kalco

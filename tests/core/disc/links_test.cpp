#include "disc/links.h"

#include <gtest/gtest.h>

#include <random>

#include "support/club_tables.h"
#include "support/filled_disc.h"
#include "support/memory_storage.h"
#include "support/outcome.h"
#include "support/random_image.h"

namespace kalco {
namespace {

using test::printed_link_position;

TEST(LinkTables, LieWhereTheTablePrintsThem) {
    for (int club = 0; club < 32; ++club) {
        ImagePos position1 = 0;
        ImagePos position2 = 0;
        LinKML(row_of(Club(club)), position1, position2);
        EXPECT_EQ(position1, printed_link_position(club)) << club;
        EXPECT_EQ(position2, club == 6 ? 2013337 : 0) << club;
        EXPECT_EQ(link_table_field(Club(club)).split(), club == 6) << club;
        EXPECT_EQ(link_table_field(Club(club)).bytes(), 46) << club;
    }
    EXPECT_EQ(printed_link_position(31), 2014459);
    EXPECT_EQ(link_table_field(Club(6)), (Pieces{{2013005, 28}, {2013337, 18}}));
}

TEST(LinkTables, OfNoClubLeaveThePositionsAsTheyWere) {
    for (const int row : {-1, 0, 53, 86, 87}) {
        ImagePos position1 = 12;
        ImagePos position2 = 34;
        LinKML(TeamRow(row), position1, position2);
        EXPECT_EQ(position1, 12) << row;
        EXPECT_EQ(position2, 34) << row;
    }
}

class LinksOfAnImage : public ::testing::Test {
protected:
    LinksOfAnImage() : disc_{.bytes = test::random_image(32)}, image_(test::opener_of(disc_)) {
        image_.open("disc.bin");
    }

    test::Disc disc_;
    Image image_;
};

TEST_F(LinksOfAnImage, AreTheBytesOfTheirTable) {
    for (const Club club : every<Club>()) {
        const std::string bytes = test::user_data_at(disc_.bytes, printed_link_position(club.value()), 46);
        const Links links = read_links(image_, club);
        for (std::size_t slot = 0; slot < 23; ++slot) {
            EXPECT_EQ(links[slot].team, static_cast<unsigned char>(bytes[2 * slot])) << club.value();
            EXPECT_EQ(links[slot].number, static_cast<unsigned char>(bytes[2 * slot + 1])) << club.value();
        }
    }
}

TEST_F(LinksOfAnImage, ComeBackAsTheyWereWrittenAndTouchNothingElse) {
    std::mt19937 random(10);
    for (const Club club : every<Club>()) {
        Links links;
        std::string bytes;
        for (PlayerCode& code : links) {
            code = {static_cast<std::uint8_t>(random()), static_cast<std::uint8_t>(random())};
            bytes += {static_cast<char>(code.team), static_cast<char>(code.number)};
        }
        std::string expected = disc_.bytes;
        test::put_user_data(expected, printed_link_position(club.value()), bytes);
        write_links(image_, club, links);
        EXPECT_EQ(read_links(image_, club), links) << club.value();
        image_.commit();
        EXPECT_TRUE(test::same_image(disc_.bytes, expected)) << club.value();
    }
}

TEST_F(LinksOfAnImage, AreWrittenFromDigitsAsManyAsThereAre) {
    const std::string before = disc_.bytes;
    write_link_table(image_, Club(6), "");
    image_.commit();
    EXPECT_TRUE(test::same_image(disc_.bytes, before));
    std::string expected = before;
    test::put_user_data(expected, 2013005, "\x0A\x16\x25\x17");
    write_link_table(image_, Club(6), "0A162517");
    image_.commit();
    EXPECT_TRUE(test::same_image(disc_.bytes, expected));
}

TEST(Links, ToATeamAreItsPlayersInOrder) {
    const Links links = links_to_team(Team(62));
    for (std::size_t slot = 0; slot < 23; ++slot) {
        EXPECT_EQ(links[slot], (PlayerCode{62, static_cast<std::uint8_t>(slot)}));
    }
}

}  // namespace
}  // namespace kalco

#include "disc/links.h"

#include <gtest/gtest.h>

#include <random>

#include "support/filled_disc.h"
#include "support/memory_storage.h"

namespace kalco {
namespace {

std::int64_t printed_link_position(int club) {
    return club <= 6 ? 2012729 + 46 * club : 2013355 + 46 * (club - 7);
}

class LinksOfAnImage : public ::testing::Test {
protected:
    LinksOfAnImage() : disc_{.bytes = test::filled_image()}, image_(test::opener_of(disc_)) { image_.open("disc.bin"); }

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
        EXPECT_TRUE(disc_.bytes == expected) << club.value();
    }
}

TEST_F(LinksOfAnImage, AreWrittenFromDigitsAsManyAsThereAre) {
    const std::string before = disc_.bytes;
    write_link_table(image_, Club(6), "");
    EXPECT_TRUE(disc_.bytes == before);
    std::string expected = before;
    test::put_user_data(expected, 2013005, "\x0A\x16\x25\x17");
    write_link_table(image_, Club(6), "0A162517");
    EXPECT_TRUE(disc_.bytes == expected);
}

TEST(Links, ToATeamAreItsPlayersInOrder) {
    const Links links = links_to_team(Team(62));
    for (std::size_t slot = 0; slot < 23; ++slot) {
        EXPECT_EQ(links[slot], (PlayerCode{62, static_cast<std::uint8_t>(slot)}));
    }
}

}  // namespace
}  // namespace kalco

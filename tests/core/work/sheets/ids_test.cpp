#include "work/sheets/ids.h"

#include <gtest/gtest.h>

#include <set>

namespace kalco {
namespace {

TEST(Ids, NameEveryTeamAndClub) {
    EXPECT_EQ(team_id(Team(0)), "t00");
    EXPECT_EQ(team_id(default_list), "t95");
    EXPECT_EQ(club_id(Club(31)), "c31");
    for (const Team team : every<Team>()) EXPECT_EQ(team_of_id(team_id(team)), team);
    for (const Club club : every<Club>()) EXPECT_EQ(club_of_id(club_id(club)), club);
}

TEST(Ids, NameEveryPlayer) {
    EXPECT_EQ(player_id(RosterPlace{Team(0), 0}), "t00p01");
    EXPECT_EQ(player_id(RosterPlace{Team(62), 22}), "t62p23");
    EXPECT_EQ(player_id(PoolRow(0)), "m001");
    EXPECT_EQ(player_id(PoolRow(461)), "m462");
    std::set<std::string> ids;
    for (int row = 0; row < player_rows; ++row) {
        const std::string id = player_id(place_of_row(row));
        EXPECT_TRUE(ids.insert(id).second) << id;
        ASSERT_TRUE(player_of_id(id)) << id;
        EXPECT_EQ(row_of_place(*player_of_id(id)), row);
    }
    EXPECT_EQ(ids.size(), 63U * 23 + 462);
    EXPECT_EQ(team_of(place_of_row(22)), Team(0));
    EXPECT_EQ(team_of(place_of_row(23)), Team(1));
    EXPECT_EQ(team_of(place_of_row(1449)), default_list);
}

TEST(Ids, AreTakenToTheLetter) {
    for (const char* id : {"", "t", "t1", "t001", "T01", "t96", "t-1", "t 1", "t1 ", "01", "tt1", "t0x", "c01"}) {
        EXPECT_EQ(team_of_id(id), std::nullopt) << id;
    }
    for (const char* id : {"", "c32", "c1", "C01", "c001", "c-1", "t01"}) EXPECT_EQ(club_of_id(id), std::nullopt) << id;
    for (const char* id :
         {"",     "t00",  "t00p00", "t00p24", "t63p01", "t95p01", "t00P01", "t00p1",   "t00p001", "t00p0x", "t0p001",
          "m000", "m463", "m1",     "m0001",  "M001",   "m-01",   "m 01",   "t00p01 ", " t00p01", "c00p01"}) {
        EXPECT_EQ(player_of_id(id), std::nullopt) << id;
    }
}

}  // namespace
}  // namespace kalco

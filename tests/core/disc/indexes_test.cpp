#include "disc/indexes.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace kalco {
namespace {

TEST(Indexes, AreNotTakenForEachOther) {
    EXPECT_FALSE((std::is_convertible_v<int, Team>));
    EXPECT_FALSE((std::is_convertible_v<Team, int>));
    EXPECT_FALSE((std::is_convertible_v<Team, TeamRow>));
    EXPECT_FALSE((std::is_constructible_v<Club, Team>));
    EXPECT_FALSE((std::is_constructible_v<PoolRow, TeamRow>));
}

TEST(Indexes, RunThroughAllThatExist) {
    int teams = 0;
    for (const Team team : every<Team>()) EXPECT_EQ(team.value(), teams++);
    EXPECT_EQ(teams, 96);
    int rows = 0;
    for (const PoolRow row : every<PoolRow>()) rows += row.exists() ? 1 : 0;
    EXPECT_EQ(rows, 462);
    for (const int value : {-1, 32, 1000}) EXPECT_FALSE(Club(value).exists()) << value;
}

TEST(Indexes, TellTheClassesOfTeamsApart) {
    for (int team = -2; team < 98; ++team) {
        EXPECT_EQ(is_nation(Team(team)), team >= 0 && team <= 53) << team;
        EXPECT_EQ(has_roster(Team(team)), team >= 0 && team <= 62) << team;
        EXPECT_EQ(is_club(Team(team)), team >= 63 && team <= 94) << team;
    }
    for (int row = -2; row < 89; ++row) {
        EXPECT_EQ(is_nation(TeamRow(row)), row >= 0 && row <= 53) << row;
        EXPECT_EQ(is_club(TeamRow(row)), row >= 54 && row <= 85) << row;
    }
}

TEST(Indexes, LeadFromRowsToTeamsAndBack) {
    for (const TeamRow row : every<TeamRow>()) {
        EXPECT_EQ(team_of(row), Team(row.value() <= 53 ? row.value() : row.value() + 9));
        EXPECT_EQ(row_of(team_of(row)), row);
    }
    for (const int team : {-1, 54, 62, 96}) EXPECT_FALSE(row_of(Team(team))) << team;
}

TEST(Indexes, LeadFromClubsToTeamsAndBack) {
    for (const Club club : every<Club>()) {
        EXPECT_EQ(team_of(club), Team(club.value() + 63));
        EXPECT_EQ(row_of(club), TeamRow(club.value() + 54));
        EXPECT_EQ(club_of(team_of(club)), club);
        EXPECT_EQ(club_of(row_of(club)), club);
    }
    for (const int team : {-1, 62, 95}) EXPECT_FALSE(club_of(Team(team))) << team;
    for (const int row : {-1, 53, 86}) EXPECT_FALSE(club_of(TeamRow(row))) << row;
}

}  // namespace
}  // namespace kalco

#include "disc/teams.h"

#include <gtest/gtest.h>

#include "support/disc_tables.h"

namespace kalco {
namespace {

using test::printed_team;
using test::printed_teams;

TEST(Catalogue, HoldsThePrintedRows) {
    for (int team = 0; team < 96; ++team) {
        const TeamFacts& facts = team_facts[static_cast<std::size_t>(team)];
        EXPECT_EQ(facts.row, printed_team(team).row);
        EXPECT_EQ(facts.full_width_position, printed_team(team).full_width_position) << facts.row;
        EXPECT_EQ(facts.full_width_bytes, printed_team(team).full_width_bytes) << facts.row;
        EXPECT_EQ(facts.name_lengths, printed_team(team).lengths) << facts.row;
    }
}

TEST(Catalogue, ListsTheRows) {
    const auto all = all_team_rows();
    ASSERT_EQ(all.size(), 96U);
    for (std::size_t team = 0; team < all.size(); ++team) EXPECT_EQ(all[team], printed_teams[team].row);
    const auto shorter = short_team_rows();
    ASSERT_EQ(shorter.size(), 87U);
    for (std::size_t row = 0; row < 86; ++row) {
        EXPECT_EQ(shorter[row], printed_teams[row <= 53 ? row : row + 9].row) << row;
    }
    EXPECT_EQ(shorter[86], "Squadra Default ML");
    EXPECT_EQ(all[95], "Giocatori ML");
}

TEST(Catalogue, ListsTheClubs) {
    const auto clubs = club_rows();
    ASSERT_EQ(clubs.size(), 32U);
    for (std::size_t club = 0; club < clubs.size(); ++club) {
        EXPECT_EQ(clubs[club], printed_teams[63 + club].row) << club;
    }
}

}  // namespace
}  // namespace kalco

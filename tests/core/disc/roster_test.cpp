#include "disc/roster.h"

#include <gtest/gtest.h>

#include <span>

#include "support/disc_tables.h"

namespace kalco {
namespace {

using test::PrintedSplit;

Pieces printed_pieces(const PrintedSplit& split, int bytes) {
    return {{split.first, split.first_bytes}, {split.second, bytes - split.first_bytes}};
}

const PrintedSplit* find_split(std::span<const PrintedSplit> splits, int team, int player) {
    for (const PrintedSplit& split : splits) {
        if (split.team == team && split.player == player) return &split;
    }
    return nullptr;
}

auto by_place(Pieces (*field)(RosterPlace)) {
    return [field](int team, int player) { return field({Team(team), player}); };
}

/// All fields of a table follow each other along the user data and are cut where the printed splits say, nowhere else.
template <typename Field>
void expect_table(int first_team, int teams, int players, int bytes, std::int64_t first,
                  std::span<const PrintedSplit> splits, Field field) {
    std::int64_t position = first;
    for (int team = first_team; team < first_team + teams; ++team) {
        for (int player = 0; player < players; ++player) {
            const PrintedSplit* split = find_split(splits, team, player);
            const Pieces expected = split != nullptr ? printed_pieces(*split, bytes) : Pieces{Piece{position, bytes}};
            EXPECT_EQ(field(team, player), expected) << team << ", " << player;
            EXPECT_EQ(field(team, player).position(), position) << team << ", " << player;
            position = test::position_behind(position, bytes);
        }
    }
}

TEST(Roster, NamesFollowEachOther) {
    expect_table(0, 63, 23, 10, 387793, test::printed_name_splits, by_place(roster_name_field));
}

TEST(Roster, RecordsFollowEachOtherButForOneTeam) {
    expect_table(0, 31, 23, 12, 2179493, test::printed_record_splits, by_place(roster_record_field));
    expect_table(32, 31, 23, 12, 2189845, test::printed_record_splits, by_place(roster_record_field));
}

TEST(Roster, OneTeamIsShiftedFromItsFourteenthRecordOn) {
    for (int player = 0; player < 13; ++player) {
        EXPECT_EQ(roster_record_field({Team(31), player}), (Piece{2189421 - 12 * (13 - player), 12})) << player;
    }
    for (int player = 13; player < 23; ++player) {
        EXPECT_EQ(roster_record_field({Team(31), player}), (Piece{2189737 + 12 * (player - 13), 12})) << player;
    }
    EXPECT_EQ(roster_record_field({Team(31), 22}), roster_record_field({Team(32), 0}));
    EXPECT_EQ(roster_record_field({Team(31), 22}).position(), 2189845);
    for (int team = 0; team < 63; ++team) {
        for (int player = 0; player < 23; ++player)
            EXPECT_NE(roster_record_field({Team(team), player}).position(), 2189421);
    }
}

TEST(Roster, HasASlotBehindTheLastPlayer) {
    for (int team = 0; team < 62; ++team) {
        if (team == 31) continue;
        EXPECT_EQ(roster_record_field({Team(team), 23}), roster_record_field({Team(team + 1), 0})) << team;
    }
    EXPECT_EQ(roster_record_field({Team(31), 23}), (Piece{2189857, 12}));
    EXPECT_EQ(roster_record_field({Team(38), 23}), (Pieces{{2191777, 8}, {2192089, 4}}));
}

TEST(Roster, StartsTheTeamsAtTheKnownPlaces) {
    EXPECT_EQ(roster_name_field({Team(40), 0}).position(), 398513);
    EXPECT_EQ(roster_record_field({Team(40), 0}).position(), 2192357);
    EXPECT_EQ(roster_name_field({Team(0), 1}).position(), 388107);
    EXPECT_EQ(roster_name_field({Team(35), 14}).position(), 397199);
    EXPECT_EQ(roster_name_field({Team(35), 15}).position(), 397513);
    EXPECT_EQ(roster_record_field({Team(9), 0}).position(), 2182281);
    EXPECT_EQ(roster_record_field({Team(9), 7}).position(), 2182365);
    EXPECT_EQ(roster_record_field({Team(9), 8}).position(), 2182681);
    EXPECT_EQ(roster_record_field({Team(53), 19}).position(), 2196477);
    EXPECT_EQ(roster_record_field({Team(53), 20}).position(), 2196793);
    struct First {
        int team;
        std::int64_t name;
        std::int64_t record;
    };
    for (const First& first : {First{59, 403491, 2198209},
                               {60, 403721, 2198485},
                               {61, 403951, 2198761},
                               {62, 404181, 2199341},
                               {53, 401807, 2196249}}) {
        EXPECT_EQ(roster_name_field({Team(first.team), 0}).position(), first.name) << first.team;
        EXPECT_EQ(roster_record_field({Team(first.team), 0}).position(), first.record) << first.team;
    }
    for (int team = 54; team <= 60; ++team) {
        EXPECT_EQ(roster_name_field({Team(team), 0}).position(), 402341 + 230 * (team - 54)) << team;
        EXPECT_EQ(roster_record_field({Team(team), 0}).position(), 2196829 + 276 * (team - 54)) << team;
    }
}

TEST(Pool, FieldsFollowEachOther) {
    expect_table(95, 1, 462, 10, 2006289, test::printed_pool_name_splits,
                 [](int, int row) { return pool_name_field(PoolRow(row)); });
    expect_table(95, 1, 462, 12, 2204113, test::printed_pool_record_splits,
                 [](int, int row) { return pool_record_field(PoolRow(row)); });
    EXPECT_EQ(pool_name_field(PoolRow(204)).position(), 2008633);
    EXPECT_EQ(pool_record_field(PoolRow(149)).position(), 2206205);
    EXPECT_EQ(pool_record_field(PoolRow(320)).position(), 2208561);
}

TEST(Pool, HoldsTheDefaultTeamInTheKnownRows) {
    for (std::size_t place = 0; place < 23; ++place) {
        const test::PrintedDefaultSlot& slot = test::printed_default_slots[place];
        EXPECT_EQ(DefaultSlots[place], PoolRow(slot.row)) << place;
        EXPECT_EQ(pool_name_field(PoolRow(slot.row)), (Piece{slot.name, 10})) << place;
        EXPECT_EQ(pool_record_field(PoolRow(slot.row)), (Piece{slot.record, 12})) << place;
    }
}

TEST(Roster, CountsThePlayersByTeam) {
    for (int team = -1; team < 98; ++team) {
        const int players = team >= 0 && team <= 62 ? 23 : team == 95 ? 462 : 0;
        EXPECT_EQ(player_count(Team(team)), players) << team;
        EXPECT_EQ(has_cost(Team(team)), (team >= 0 && team <= 53) || team == 95) << team;
    }
}

}  // namespace
}  // namespace kalco

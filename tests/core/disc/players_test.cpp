#include "disc/players.h"

#include <gtest/gtest.h>

#include <set>

#include "support/disc_tables.h"
#include "support/filled_disc.h"
#include "support/memory_storage.h"

namespace kalco {
namespace {

/// All 1449 + 462 places.
std::vector<PlayerPlace> all_places() {
    std::vector<PlayerPlace> places;
    for (int team = 0; team < 63; ++team) {
        for (int player = 0; player < 23; ++player) places.emplace_back(RosterPlace{Team(team), player});
    }
    for (const PoolRow row : every<PoolRow>()) places.emplace_back(row);
    return places;
}

TEST(PlayerPlaces, HaveAFieldEach) {
    std::set<std::int64_t> names;
    std::set<std::int64_t> records;
    for (const PlayerPlace& place : all_places()) {
        EXPECT_EQ(player_name_field(place).bytes(), 10);
        EXPECT_EQ(player_record_field(place).bytes(), 12);
        names.insert(player_name_field(place).position());
        records.insert(player_record_field(place).position());
    }
    EXPECT_EQ(names.size(), 1449U + 462U);
    EXPECT_EQ(records.size(), 1449U + 462U - 1U) << "one record stands in two rosters";
    EXPECT_EQ(player_record_field(RosterPlace{Team(31), 22}), player_record_field(RosterPlace{Team(32), 0}));
    EXPECT_EQ(player_name_field(RosterPlace{Team(40), 0}).position(), 398513);
    EXPECT_EQ(player_record_field(RosterPlace{Team(40), 0}).position(), 2192357);
    EXPECT_EQ(player_name_field(PoolRow(408)), (Pieces{{2010673, 8}, {2010985, 2}}));
    EXPECT_EQ(player_record_field(PoolRow(319)), (Pieces{{2208245, 4}, {2208553, 8}}));
}

TEST(PlayerPlaces, FollowTheRowsOfTheTeamsList) {
    for (const Team team : every<Team>()) {
        for (const int player : {0, 22}) {
            const PlayerPlace place = place_of(team, player);
            if (team == Team(95)) {
                EXPECT_EQ(place, PlayerPlace(PoolRow(player)));
            } else {
                EXPECT_EQ(place, (PlayerPlace(RosterPlace{team, player}))) << team.value();
            }
        }
    }
    EXPECT_EQ(place_of(Team(95), 461), PlayerPlace(PoolRow(461)));
}

TEST(PlayerPlaces, FollowTheRowsOfTheShorterLists) {
    for (int row = 0; row < 54; ++row) {
        EXPECT_EQ(place_of(TeamRow(row), 22), PlayerPlace(RosterPlace{Team(row), 22})) << row;
    }
    for (int row = 54; row < 86; ++row) EXPECT_FALSE(place_of(TeamRow(row), 0)) << row;
    for (int player = 0; player < 23; ++player) {
        const int row = test::printed_default_slots[static_cast<std::size_t>(player)].row;
        EXPECT_EQ(place_of(TeamRow(86), player), PlayerPlace(PoolRow(row))) << player;
    }
}

class PlayersOfAnImage : public ::testing::Test {
protected:
    PlayersOfAnImage() : disc_{.bytes = test::filled_image()}, image_(test::opener_of(disc_)) {
        image_.open("disc.bin");
    }

    test::Disc disc_;
    Image image_;
};

TEST_F(PlayersOfAnImage, AreReadByTheirPlace) {
    for (int team = 0; team < 63; ++team) {
        for (int player = 0; player < 23; ++player) {
            const RosterPlace place{Team(team), player};
            EXPECT_EQ(read_player_name(image_, place), test::player_name(team, player));
            const auto cost = team < 54 ? std::optional(test::player_cost(team, player)) : std::nullopt;
            EXPECT_EQ(read_cost(image_, place), cost) << team;
        }
    }
    for (const PoolRow row : every<PoolRow>()) {
        EXPECT_EQ(read_player_name(image_, row), test::player_name(95, row.value()));
        EXPECT_EQ(read_cost(image_, row), test::player_cost(95, row.value()));
    }
    disc_.put(3067405, "\xFF");
    EXPECT_EQ(read_cost(image_, RosterPlace{Team(0), 0}), 255);
}

}  // namespace
}  // namespace kalco

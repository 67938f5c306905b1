#include "disc/players.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

#include "disc/codec/hextext.h"
#include "disc/runtime_error.h"
#include "support/disc_tables.h"
#include "support/filled_disc.h"
#include "support/memory_storage.h"
#include "support/outcome.h"
#include "support/random_image.h"

namespace kalco {
namespace {

using test::put;

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

TEST(PlayerPlaces, HaveTheirCostsOneByteAPlayer) {
    for (const PlayerPlace& place : all_places()) {
        const auto cost = cost_position(place);
        if (const auto* const row = std::get_if<PoolRow>(&place)) {
            EXPECT_EQ(cost, 3069513 + row->value());
            continue;
        }
        const auto& [team, player] = std::get<RosterPlace>(place);
        ASSERT_EQ(cost.has_value(), team < Team(54)) << team.value();
        EXPECT_EQ(cost.value_or(0), team < Team(54) ? 3067405 + 23 * team.value() + player : 0);
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

TEST_F(PlayersOfAnImage, AreListedInTheOrderOfTheirTables) {
    const std::vector<std::string> rosters = read_roster_names(image_);
    ASSERT_EQ(rosters.size(), 1449U);
    for (int row = 0; row < 1449; ++row) {
        EXPECT_EQ(rosters[static_cast<std::size_t>(row)], test::player_name(row / 23, row % 23)) << row;
    }
    const std::vector<std::string> pool = read_pool_names(image_);
    ASSERT_EQ(pool.size(), 462U);
    for (int row = 0; row < 462; ++row) {
        EXPECT_EQ(pool[static_cast<std::size_t>(row)], test::player_name(95, row)) << row;
    }
}

TEST_F(PlayersOfAnImage, ShowNamesTrimmedThenUpToTheFirstZero) {
    const auto shown = [&](const std::string& bytes) {
        disc_.put(387793, bytes.substr(0, 8));
        disc_.put(388105, bytes.substr(8));
        return read_player_name(image_, RosterPlace{Team(0), 0});
    };
    EXPECT_EQ(shown("ABCDEFGHIJ"), "ABCDEFGHIJ");
    EXPECT_EQ(shown(" AB CD    "), "AB CD");
    EXPECT_EQ(shown(std::string("AB\0CD", 5) + test::zeroes(5)), "AB");
    EXPECT_EQ(shown("AB  " + test::zeroes(6)), "AB  ");
    EXPECT_EQ(shown("  " + test::zeroes(8)), "");
    EXPECT_EQ(shown("          "), "");
    EXPECT_EQ(shown("\xE8\xC0\xFF" + test::zeroes(7)), "\xE8\xC0\xFF");
}

/// The bytes of a field, read and put apart from the image under test.
std::string bytes_of(const std::string& image, const Pieces& field) {
    std::string bytes;
    for (const Piece& piece : field) {
        bytes += test::bytes_at(image, piece.position, static_cast<std::size_t>(piece.bytes));
    }
    return bytes;
}

TEST_F(PlayersOfAnImage, ComeBackAsTheyWereWrittenAndTouchNothingElse) {
    std::mt19937 random(463);
    std::string expected = disc_.bytes;
    for (const PlayerPlace& place : all_places()) {
        std::string name(random() % 11, ' ');
        for (char& letter : name) letter = static_cast<char>('A' + random() % 26);
        const std::string record = test::random_bytes(random, 12);
        write_player_name(image_, place, ' ' + name + "  ");
        write_player_record(image_, place, hex_line(record));
        put(expected, player_name_field(place), test::padded_name(name));
        put(expected, player_record_field(place), record);
        EXPECT_EQ(read_player_name(image_, place), name);
        image_.commit();
        EXPECT_EQ(bytes_of(disc_.bytes, player_record_field(place)), record);
        const int cost = static_cast<int>(random() % 256);
        write_cost(image_, place, cost);
        if (const auto position = cost_position(place)) {
            put(expected, *position, std::string(1, static_cast<char>(cost)));
            EXPECT_EQ(read_cost(image_, place), cost);
        }
    }
    image_.commit();
    EXPECT_TRUE(test::same_image(disc_.bytes, expected));
}

TEST_F(PlayersOfAnImage, TakeAShorterRecordAsItIs) {
    std::string expected = disc_.bytes;
    put(expected, Piece{player_record_field(PoolRow(7)).position(), 3}, "\xAB\xCD\xEF");
    write_player_record(image_, PoolRow(7), "AB cdEF");
    image_.commit();
    EXPECT_TRUE(test::same_image(disc_.bytes, expected));
    write_player_record(image_, PoolRow(7), "");
    image_.commit();
    EXPECT_TRUE(test::same_image(disc_.bytes, expected));
}

TEST_F(PlayersOfAnImage, RefuseACostThatIsNoByte) {
    const std::string before = disc_.bytes;
    for (const int cost : {-1, 256, 1000}) {
        EXPECT_EQ(test::error_of([&] { write_cost(image_, PoolRow(0), cost); }), error::overflow) << cost;
    }
    EXPECT_EQ(disc_.bytes, before);
}

}  // namespace
}  // namespace kalco

#include "ctl/demo/demo_disc.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "ctl/demo/demo_image.h"
#include "disc/bars.h"
#include "disc/codec/hextext.h"
#include "disc/codec/latin1.h"
#include "disc/codec/letters.h"
#include "disc/formation.h"
#include "disc/links.h"
#include "disc/numbers.h"
#include "disc/player_record.h"
#include "disc/players.h"
#include "disc/set_pieces.h"
#include "disc/team_names.h"
#include "support/memory_storage.h"
#include "support/record_words.h"

namespace kalco {
namespace {

std::string raw_bytes(const demo::DemoDisc& disc) {
    std::string bytes;
    for (std::uint32_t number = 0; number < disc.sectors(); ++number) {
        const RawSector sector = disc.sector(number);
        bytes.append(sector.begin(), sector.end());
    }
    return bytes;
}

/// The image of seed 1, open.
class DemoImage : public testing::Test {
protected:
    static void SetUpTestSuite() { bytes = new std::string(raw_bytes(demo::make_demo_disc(1))); }
    static void TearDownTestSuite() { delete bytes; }

    DemoImage() {
        disc.bytes = *bytes;
        image.open("disc.bin");
    }

    test::Disc disc;
    Image image{test::opener_of(disc)};
    static inline std::string* bytes = nullptr;
};

int byte_of(char value) {
    return static_cast<unsigned char>(value);
}

void expect_legal(const std::string& record, const std::string& where) {
    const Words words = words_of_record(record);
    const DecodedPlayer decoded = decode_player(words);
    ASSERT_FALSE(decoded.stopped) << where;
    const PlayerValues values = test::values_of_texts(decoded);
    EXPECT_EQ(pack_player(values), words) << where;
    EXPECT_GE(values.height, lowest_height) << where;
    EXPECT_LE(values.height, highest_height) << where;
    for (const std::int64_t skill : values.skills) {
        EXPECT_GE(skill, lowest_skill) << where;
        EXPECT_LE(skill, highest_skill) << where;
    }
}

TEST_F(DemoImage, HasValidSectorsBeyondTheLastTable) {
    ASSERT_EQ(bytes->size() % sector_bytes, 0U);
    EXPECT_GE(bytes->size(), 5653000U + 2U * sector_bytes);
    for (std::size_t number = 0; number < bytes->size() / sector_bytes; ++number) {
        RawSector sector{};
        std::copy_n(bytes->begin() + static_cast<std::ptrdiff_t>(number * sector_bytes), sector_bytes, sector.begin());
        ASSERT_EQ(kind_of(sector), SectorKind::form1) << number;
        ASSERT_FALSE(bad_fields(system_area_sectors, sector).any()) << number;
        std::array<std::uint8_t, user_bytes> user{};
        std::copy_n(sector.begin() + user_start, user_bytes, user.begin());
        ASSERT_EQ(sector, make_sector(static_cast<std::uint32_t>(number), user));
    }
}

TEST_F(DemoImage, BeginsWithAVolumeDescriptor) {
    const auto user_data = [](std::size_t sector, std::size_t offset, std::size_t count) {
        return bytes->substr(sector * sector_bytes + user_start + offset, count);
    };
    EXPECT_EQ(bytes->substr(0x9319, 5), "CD001");
    EXPECT_EQ(user_data(16, 0, 8), std::string("\1CD001\1\0", 8));
    EXPECT_EQ(user_data(16, 40, 32), "KALCO_DEMO_1                    ");
    // 2416 sectors, low byte first, then high byte first.
    EXPECT_EQ(bytes->size() / sector_bytes, 0x970U);
    EXPECT_EQ(user_data(16, 80, 8), std::string("\x70\x09\0\0\0\0\x09\x70", 8));
    EXPECT_EQ(user_data(16, 128, 4), std::string("\0\x08\x08\0", 4));
    EXPECT_EQ(user_data(16, 813, 17), std::string("2001010100000000\0", 17));
    EXPECT_EQ(user_data(17, 0, 8), std::string("\xFF"
                                               "CD001\1\0",
                                               8));
    EXPECT_EQ(user_data(17, 8, 2040), std::string(2040, '\0'));
    EXPECT_EQ(user_data(15, 0, 2048), std::string(2048, '\0'));
}

// Descriptors took the place of what meant nothing: every other sector is the same as ever.
TEST(DemoSeeds, KeepTheSectorsBehindTheDescriptors) {
    std::uint64_t hash = 0xCBF29CE484222325U;
    for (const char byte : raw_bytes(demo::make_demo_disc(1)).substr(18 * sector_bytes)) {
        hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001B3U;
    }
    EXPECT_EQ(hash, 0x189F02058D629614U);
}

TEST_F(DemoImage, NamesEveryTeamInEveryTable) {
    for (const Team team : every<Team>()) {
        const std::string row(team_facts[team.place()].row);
        const std::string short_name = image.read(short_name_position(team), short_name_bytes + 1);
        EXPECT_EQ(short_name[0], upper(row)[0]);
        EXPECT_TRUE(std::all_of(short_name.begin(), short_name.end() - 1, [](char c) { return c >= 'A' && c <= 'Z'; }));
        EXPECT_EQ(short_name.back(), '\0');
        for (const NamePlace table : name_places) {
            const auto field = name_field(team, table);
            if (!field || table < NamePlace::t1) continue;
            const std::string name(until_zero(image.read(*field)));
            EXPECT_FALSE(name.empty()) << row;
            EXPECT_EQ(upper(row).substr(0, name.size()), name);
            const Piece& last = (*field)[field->size() - 1];
            EXPECT_EQ(image.read(last.position + last.bytes, 1), std::string(1, '\0')) << row;
        }
        if (team == default_list) continue;
        const std::string name(trim(read_full_width_name(image, team)));
        EXPECT_GE(name.size(), 3U) << row;
        EXPECT_EQ(row.substr(0, name.size()), name);
    }
}

TEST_F(DemoImage, HoldsLegalPlayersOnly) {
    for (const Team team : every<Team>()) {
        for (int player = 0; player < player_count(team); ++player) {
            const std::string where = std::to_string(team.value()) + '/' + std::to_string(player);
            const PlayerPlace place = place_of(team, player);
            const std::string name = read_player_name(image, place);
            EXPECT_GE(name.size(), 3U) << where;
            EXPECT_LE(name.size(), 10U) << where;
            expect_legal(image.read(player_record_field(place)), where);
            if (has_cost(team)) {
                const int cost = read_cost(image, place).value();
                EXPECT_TRUE(cost >= 1 && cost <= highest_cost) << where << ": " << cost;
            }
        }
    }
    expect_legal(image.read(2189421, player_record_bytes), "the slot of no player");
}

TEST_F(DemoImage, VariesItsPlayers) {
    std::set<std::string> records;
    std::set<std::string> names;
    std::set<std::string> roles;
    for (Team team(0); has_roster(team); ++team) {
        for (int player = 0; player < roster_players; ++player) {
            const std::string record = image.read(roster_record_field({team, player}));
            records.insert(record);
            names.insert(read_player_name(image, RosterPlace{team, player}));
            roles.insert(decode_player(words_of_record(record)).role.value());
        }
        const std::string keeper = image.read(roster_record_field({team, 0}));
        EXPECT_EQ(decode_player(words_of_record(keeper)).role, "Portiere") << team.value();
    }
    EXPECT_GT(records.size(), 1380U);
    EXPECT_GT(names.size(), 1000U);
    EXPECT_EQ(roles.size(), role_texts.size());
}

TEST_F(DemoImage, GivesEveryTeamAFormation) {
    for (int row = 0; row < TeamRow::count; ++row) {
        const std::string record = image.read(formation_field(TeamRow(row)));
        for (std::size_t k = 0; k < outfield_players; ++k) {
            EXPECT_NE(role_label(hex_digits(record.substr(k, 1))), unknown_role_label) << row;
            EXPECT_GT(byte_of(record[outfield_players + k]), 5) << row;
            EXPECT_LT(byte_of(record[outfield_players + k]), pitch_x_steps) << row;
            EXPECT_GT(byte_of(record[2 * outfield_players + k]), 5) << row;
            EXPECT_LT(byte_of(record[2 * outfield_players + k]), pitch_y_steps - 5) << row;
        }
    }
    EXPECT_EQ(hex_digits(image.read(2306857, outfield_players)), module_named("4-4-2B")->roles);
    // The nine teams without a row have theirs between the nations' and the clubs'.
    for (ImagePos position = 2305625; position < 2305895; position += formation_bytes) {
        EXPECT_NE(role_label(hex_digits(image.read(position, 1))), unknown_role_label) << position;
    }
}

TEST_F(DemoImage, PutsPlayersWhereTheirFormationWantsThem) {
    for (int team = 0; team < nation_count; ++team) {
        if (Team(team) == shifted_team) continue;
        const std::string record = image.read(formation_field(TeamRow(team)));
        for (int k = 0; k < outfield_players; ++k) {
            const std::string_view label = role_label(hex_digits(record.substr(static_cast<std::size_t>(k), 1)));
            const auto role =
                decode_player(words_of_record(image.read(roster_record_field({Team(team), k + 1})))).role.value();
            EXPECT_EQ(label.substr(0, 2) == "CA", role == "Centravanti") << team << ' ' << k;
            EXPECT_EQ(label.substr(0, 3) == "TER", role == "Terzino") << team << ' ' << k;
        }
    }
}

TEST_F(DemoImage, FillsTheBars) {
    for (int row = 0; row < bar_teams; ++row) {
        for (const char bar : image.read(bars_field(TeamRow(row)))) EXPECT_TRUE(bar >= 3 && bar <= 9) << row;
    }
    for (const char bar : image.read(2328759, 45)) EXPECT_TRUE(bar >= 3 && bar <= 9);
}

TEST_F(DemoImage, NumbersEveryTeamWithoutRepeats) {
    for (int row = 0; row < TeamRow::count; ++row) {
        const std::string record = image.read(number_field(TeamRow(row)));
        const std::vector<std::string> entries =
            is_nation(TeamRow(row)) ? decode_national_numbers(record) : decode_club_numbers(record);
        ASSERT_EQ(entries.size(), 23U);
        EXPECT_EQ(entries[0], "01") << row;
        EXPECT_EQ(std::set<std::string>(entries.begin(), entries.end()).size(), 23U) << row;
        for (const std::string& entry : entries) EXPECT_EQ(entry.size(), 2U) << row;
        // A nation's players carry the number in their records too.
        if (!is_nation(TeamRow(row)) || Team(row) == shifted_team) continue;
        for (int player = 0; player < roster_players; ++player) {
            const DecodedPlayer decoded =
                decode_player(words_of_record(image.read(roster_record_field({Team(row), player}))));
            EXPECT_EQ(std::stoi(decoded.number.value()), std::stoi(entries[static_cast<std::size_t>(player)]));
        }
    }
    EXPECT_EQ(image.read(2014505, 1), std::string(1, '\0'));
}

TEST_F(DemoImage, AssignsSetPiecesToTheFirstEleven) {
    for (int row = 0; row < TeamRow::count; ++row) {
        for (const char pick : image.read(set_piece_field(TeamRow(row))))
            EXPECT_LT(byte_of(pick), set_piece_rows) << row;
    }
    for (const char pick : image.read(2329629, set_piece_bytes)) EXPECT_LT(byte_of(pick), set_piece_rows);
}

TEST_F(DemoImage, LinksClubsToPlayersThatExist) {
    int of_the_pool = 0;
    int whole_teams = 0;
    std::vector<std::string> unknown;
    for (const Club club : every<Club>()) {
        const Links links = read_links(image, club);
        for (Team team(0); has_roster(team); ++team) whole_teams += links == links_to_team(team) ? 1 : 0;
        std::set<std::string> codes;
        for (const PlayerCode link : links) {
            codes.insert(digits_of(link));
            const auto player = player_of(link);
            if (!player) {
                unknown.push_back(digits_of(link));
            } else if (const auto* const row = std::get_if<PoolRow>(&*player)) {
                ++of_the_pool;
                EXPECT_EQ(std::count(DefaultSlots.begin(), DefaultSlots.end(), *row), 0) << digits_of(link);
            }
        }
        EXPECT_EQ(codes.size(), 23U) << club.value();
    }
    EXPECT_GT(of_the_pool, 150);
    EXPECT_EQ(whole_teams, 4);
    EXPECT_EQ(unknown, std::vector<std::string>{"2517"});
}

TEST(DemoSeeds, GiveTheSameBytesForever) {
    std::uint64_t hash = 0xCBF29CE484222325U;
    for (const char byte : raw_bytes(demo::make_demo_disc(1))) {
        hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001B3U;
    }
    EXPECT_EQ(hash, 0xB51CB4CBA1DAB3CDU);
}

TEST(DemoSeeds, GiveOtherPlayersEach) {
    test::Disc first{raw_bytes(demo::make_demo_disc(1))};
    test::Disc second{raw_bytes(demo::make_demo_disc(2))};
    Image image(test::opener_of(first));
    Image other(test::opener_of(second));
    image.open("1");
    other.open("2");
    int same = 0;
    for (int player = 0; player < roster_players; ++player) {
        same += image.read(roster_record_field({Team(0), player})) == other.read(roster_record_field({Team(0), player}))
                    ? 1
                    : 0;
    }
    EXPECT_LT(same, 3);
    EXPECT_EQ(read_table_name(image, Team(0)), read_table_name(other, Team(0)));
}

TEST(DemoDisc, RefusesWhatDoesNotFit) {
    demo::DemoDisc disc(2);
    EXPECT_THROW(disc.put(2 * user_bytes - 1, "ab"), std::out_of_range);
    EXPECT_THROW(disc.put(field_at(10, 2), "abc"), std::length_error);
}

TEST(DemoDisc, PutsAFieldOverASectorEnd) {
    demo::DemoDisc disc(2);
    disc.put(field_at(user_bytes - 2, 5), "abc");
    EXPECT_EQ(disc.sector(0)[user_start + user_bytes - 1], 'b');
    EXPECT_EQ(disc.sector(1)[user_start], 'c');
    EXPECT_EQ(disc.sector(1)[user_start + 1], 0);
}

}  // namespace
}  // namespace kalco

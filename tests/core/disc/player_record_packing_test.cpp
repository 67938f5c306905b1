#include <gtest/gtest.h>

#include <random>

#include "disc/player_record.h"
#include "support/record_words.h"

namespace kalco {
namespace {

using test::signed_word;
using test::unit;
using test::values_of_texts;

TEST(Pack, StartsFromTheSmallestPlayer) {
    EXPECT_EQ(pack_player(PlayerValues{}), (Words{7340032, 0, 0}));
    PlayerValues out;
    out.in_role = false;
    EXPECT_EQ(pack_player(out), (Words{-2140143616, 0, 0}));
}

TEST(Pack, GivesTheAttackItsOwnTerm) {
    const std::array<std::int64_t, 8> terms{0,           536870912,   1073741824,  1610612736,
                                            -2147483648, -1610612736, -1073741824, -536870912};
    PlayerValues values;
    for (int attack = 12; attack <= 19; ++attack) {
        values.skill(Skill::attack) = attack;
        EXPECT_EQ(pack_player(values)[1], terms[static_cast<std::size_t>(attack - 12)]) << attack;
    }
    for (const int attack : {11, 20, 0, -5, 100}) {
        values.skill(Skill::attack) = attack;
        EXPECT_EQ(pack_player(values)[1], 0) << attack;
    }
}

TEST(Pack, GivesTheFootItsOwnTerm) {
    PlayerValues values;
    EXPECT_EQ(pack_player(values)[2], 0);
    values.foot = 1;
    EXPECT_EQ(pack_player(values)[2], 1073741824);
    values.foot = 2;
    EXPECT_EQ(pack_player(values)[2], -2147483648);
    values.foot = 3;
    EXPECT_EQ(pack_player(values)[2], -1073741824);
    for (const int foot : {-1, 4, 100}) {
        values.foot = foot;
        EXPECT_EQ(pack_player(values)[2], 0) << foot;
    }
}

TEST(Pack, LetsLargeValuesRunIntoTheNextField) {
    PlayerValues values;
    values.skill(Skill::shot_power) = 20;
    EXPECT_EQ(pack_player(values)[2], 64);
    values = {};
    values.age = 47;
    EXPECT_EQ(pack_player(values)[1], 1024);
    values = {};
    values.number = 32;
    values.in_role = false;
    values.height = 211;
    EXPECT_LT(pack_player(values)[0], 0);
    values.height = 212;
    EXPECT_GE(pack_player(values)[0], 0) << "the sign is lost";
}

/// Whether one of the quotients is exactly one unit, where a record does not read back.
bool reads_back(const PlayerValues& values) {
    const std::int64_t rest = pack_player(values)[0] & (unit(20) - 1);
    const std::int64_t boots_rest = pack_player(values)[2] & (unit(27) - 1);
    if (rest == 8192 || rest == 131072) return false;
    if (rest == 0 && values.height == 156) return false;
    if (rest == 0 && values.height == 155 && values.number == 2) return false;
    return !(values.boots == 1 && boots_rest == 0);
}

PlayerValues random_values(std::mt19937& random) {
    const auto below = [&random](std::uint32_t limit) { return static_cast<std::int64_t>(random() % limit); };
    PlayerValues values;
    values.role = below(8);
    values.hair_style = below(32);
    values.hair_colour = below(8);
    values.beard_style = below(7);
    values.beard_colour = below(7);
    values.height = 155 + below(56);
    values.number = 1 + below(32);
    values.in_role = below(2) == 0;
    values.skin = below(4);
    values.build = below(8);
    values.age = 15 + below(32);
    values.boots = below(8);
    values.foot = below(3);
    for (std::int64_t& skill : values.skills) skill = 12 + below(8);
    return values;
}

TEST(PackAndDecode, GiveBackRandomPlayers) {
    std::mt19937 random(4321);
    for (int i = 0; i < 20000; ++i) {
        const PlayerValues values = random_values(random);
        const Words words = pack_player(values);
        EXPECT_EQ(unpack_player(words), values) << i;
        for (const std::int64_t word : words) EXPECT_EQ(word, signed_word(word));
        if (!reads_back(values)) continue;
        const DecodedPlayer player = decode_player(words);
        ASSERT_FALSE(player.stopped) << i;
        const PlayerValues back = values_of_texts(player);
        EXPECT_EQ(back, values) << i;
        EXPECT_EQ(pack_player(back), words) << i;
    }
}

TEST(PackAndDecode, GiveBackEveryValueOfEveryField) {
    std::mt19937 random(99);
    const std::vector<std::pair<std::int64_t PlayerValues::*, std::pair<int, int>>> fields{
        {&PlayerValues::role, {0, 7}},         {&PlayerValues::hair_style, {0, 31}},
        {&PlayerValues::hair_colour, {0, 7}},  {&PlayerValues::beard_style, {0, 6}},
        {&PlayerValues::beard_colour, {0, 6}}, {&PlayerValues::height, {155, 211}},
        {&PlayerValues::number, {1, 32}},      {&PlayerValues::skin, {0, 3}},
        {&PlayerValues::build, {0, 7}},        {&PlayerValues::age, {15, 46}},
        {&PlayerValues::boots, {0, 7}},        {&PlayerValues::foot, {0, 2}}};
    const auto expect_back = [](const PlayerValues& values) {
        if (!reads_back(values)) return;
        EXPECT_EQ(values_of_texts(decode_player(pack_player(values))), values);
    };
    for (int round = 0; round < 20; ++round) {
        PlayerValues base = random_values(random);
        for (const auto& [field, range] : fields) {
            PlayerValues values = base;
            for (int value = range.first; value <= range.second; ++value) {
                values.*field = value;
                expect_back(values);
            }
        }
        for (std::size_t skill = 0; skill < skill_count; ++skill) {
            PlayerValues values = base;
            for (int value = 12; value <= 19; ++value) {
                values.skills[skill] = value;
                expect_back(values);
            }
        }
    }
}

TEST(PackAndDecode, LoseOnlyTheExactUnits) {
    PlayerValues values;
    values.beard_style = 1;
    EXPECT_EQ(decode_player(pack_player(values)).beard_style, "A");
    values = {};
    values.beard_colour = 1;
    EXPECT_EQ(decode_player(pack_player(values)).beard_colour, "A");
    values = {};
    values.height = 156;
    EXPECT_EQ(decode_player(pack_player(values)).height, "155");
    values = {};
    values.number = 2;
    EXPECT_EQ(decode_player(pack_player(values)).number, "1");
    values = {};
    values.role = 1;
    values.boots = 1;
    EXPECT_EQ(decode_player(pack_player(values)).boots, "A");
}
}  // namespace
}  // namespace kalco

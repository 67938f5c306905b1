#include "players/record.h"

#include <gtest/gtest.h>

#include <random>

#include "codec/hextext.h"
#include "runtime_error.h"

namespace kalco {
namespace {

using Texts = std::vector<std::string>;

constexpr std::int64_t unit(int bit) {
    return std::int64_t{1} << bit;
}

/// The signed value of a word of unsigned bits.
std::int64_t signed_word(std::int64_t bits) {
    bits &= 0xFFFFFFFF;
    return bits >= unit(31) ? bits - unit(32) : bits;
}

/// The first word of a height field of 7 (155 cm), number 1, and the sign for "Si" or "No".
std::int64_t first_word(std::int64_t low_bits, int height_field = 7, int number_field = 0, bool out = false) {
    return signed_word(low_bits + height_field * unit(20) + number_field * unit(26) + (out ? unit(31) : 0));
}

DecodedPlayer decoded_first(std::int64_t word) {
    return decode_player({word, 0, 0});
}

DecodedPlayer decoded_second(std::int64_t word) {
    return decode_player({first_word(1), word, 0});
}

DecodedPlayer decoded_third(std::int64_t word) {
    return decode_player({first_word(1), 0, word});
}

std::string skill_text(const DecodedPlayer& player, Skill skill) {
    return player.skill(skill).value_or("(unset)");
}

TEST(Record, ReadsTheKnownPlayer) {
    const DecodedPlayer player = decode_player({635839574, -758741619, 1415927664});
    EXPECT_FALSE(player.stopped);
    EXPECT_EQ(player.role, "Centravanti");
    EXPECT_EQ(player.hair_style, "B3");
    EXPECT_EQ(player.hair_colour, "C");
    EXPECT_EQ(player.beard_style, "B");
    EXPECT_EQ(player.beard_colour, "D");
    EXPECT_TRUE(player.beard_style_shown);
    EXPECT_TRUE(player.beard_colour_shown);
    EXPECT_EQ(player.height, "178");
    EXPECT_EQ(player.number, "10");
    EXPECT_EQ(player.out_of_role, "No");
    EXPECT_EQ(player.skin, "B - Giallo");
    EXPECT_EQ(player.build, "D 70\xF7"
                            "75 Kg");
    EXPECT_EQ(player.age, "27");
    EXPECT_EQ(player.boots, "C");
    EXPECT_EQ(player.foot, "Sinistro");
    const std::array<std::pair<Skill, const char*>, 16> skills{{
        {Skill::reaction, "13"},
        {Skill::balance, "14"},
        {Skill::stamina, "15"},
        {Skill::dribbling, "16"},
        {Skill::speed, "17"},
        {Skill::acceleration, "16"},
        {Skill::attack, "18"},
        {Skill::defence, "12"},
        {Skill::shot_power, "18"},
        {Skill::shot_accuracy, "17"},
        {Skill::passing, "15"},
        {Skill::technique, "17"},
        {Skill::heading, "14"},
        {Skill::jump, "13"},
        {Skill::curve, "15"},
        {Skill::positivity, "16"},
    }};
    for (const auto& [skill, text] : skills) EXPECT_EQ(skill_text(player, skill), text);
}

TEST(Record, PacksTheKnownPlayer) {
    PlayerValues values;
    values.role = 6;
    values.hair_style = 5;
    values.hair_colour = 2;
    values.beard_style = 1;
    values.beard_colour = 3;
    values.height = 178;
    values.number = 10;
    values.skin = 1;
    values.build = 3;
    values.age = 27;
    values.boots = 2;
    values.foot = 1;
    // Attack, defence, balance, stamina, speed, acceleration, passing, power, accuracy, jump, heading, technique,
    // dribbling, curve, positivity, reaction.
    values.skills = {18, 12, 14, 15, 17, 16, 15, 18, 17, 13, 14, 17, 16, 15, 16, 13};
    EXPECT_EQ(pack_player(values), (Words{635839574, -758741619, 1415927664}));
}

TEST(Record, TellsEveryBitOnce) {
    std::array<std::int64_t, 4> used{};
    std::vector<BitField> fields{role_bits,   hair_style_bits, hair_colour_bits, beard_style_bits, beard_colour_bits,
                                 height_bits, number_bits,     out_of_role_bits, skin_bits,        build_bits,
                                 age_bits,    boots_bits,      foot_bits};
    fields.insert(fields.end(), skill_bits.begin(), skill_bits.end());
    fields.insert(fields.end(), spare_bits.begin(), spare_bits.end());
    for (const BitField& field : fields) {
        const std::int64_t mask = (unit(field.width) - 1) * field.unit();
        const auto word = static_cast<std::size_t>(field.word);
        EXPECT_EQ(used[word] & mask, 0) << field.name;
        used[word] |= mask;
    }
    for (std::size_t word = 1; word <= 3; ++word) EXPECT_EQ(used[word], 0xFFFFFFFF) << word;
}

TEST(Record, KnowsTheTextsOfItsTables) {
    const auto texts = [](const auto& table) { return Texts(table.begin(), table.end()); };
    EXPECT_EQ(texts(role_texts),
              (Texts{"Portiere", "Difensore Centrale", "Terzino", "Centrocampista Difensivo", "Centrocampista Laterale",
                     "Trequartista", "Centravanti", "Attaccante Laterale"}));
    EXPECT_EQ(texts(role_rows),
              (Texts{"Portiere", "Terzino", "Difensore Centrale", "Centrocampista Difensivo", "Centrocampista Laterale",
                     "Trequartista", "Attaccante Laterale", "Centravanti"}));
    EXPECT_EQ(texts(hair_style_texts),
              (Texts{"A1", "A2", "A3", "B1", "B2", "B3", "B4", "B5", "B6", "C1", "C2", "D1", "D2", "E1", "E2", "F1",
                     "F2", "F3", "G1", "H1", "I1", "I2", "I3", "J1", "K1", "L1", "L2", "L3", "M1", "N1", "O1", "P1"}));
    EXPECT_EQ(texts(skin_texts), (Texts{"A - Bianco", "B - Giallo", "C - Marrone", "D - Nero"}));
    const std::string to = "\xF7";
    EXPECT_EQ(texts(build_texts),
              (Texts{"A < 60 Kg", "B 60" + to + "65 Kg", "C 65" + to + "70 Kg", "D 70" + to + "75 Kg",
                     "E 75" + to + "80 Kg", "F 80" + to + "85 Kg", "G 85" + to + "90 Kg", "H > 90 Kg"}));
    EXPECT_EQ(texts(foot_texts), (Texts{"Destro", "Sinistro", "Ambi"}));
    EXPECT_EQ(texts(hair_colour_texts), (Texts{"A", "B", "C", "D", "E", "F", "G", "H"}));
    EXPECT_EQ(texts(boots_texts), (Texts{"A", "B", "C", "D", "E", "F", "G", "H"}));
    EXPECT_EQ(texts(beard_texts), (Texts{"A", "B", "C", "D", "E", "F", "G"}));
    EXPECT_EQ(texts(out_of_role_texts), (Texts{"Si", "No"}));
}

TEST(DecodeFirstWord, TellsOutOfRoleByTheSign) {
    EXPECT_EQ(decoded_first(0).out_of_role, "No");
    EXPECT_EQ(decoded_first(-1).out_of_role, "Si");
    EXPECT_EQ(decoded_first(first_word(1)).out_of_role, "No");
    EXPECT_EQ(decoded_first(first_word(1, 7, 0, true)).out_of_role, "Si");
}

TEST(DecodeFirstWord, ReadsEveryNumberAndHeight) {
    for (const bool out : {false, true}) {
        for (int number = 0; number < 32; ++number) {
            for (int height = 7; height < 64; ++height) {
                const DecodedPlayer player = decoded_first(first_word(1, height, number, out));
                EXPECT_EQ(player.number, std::to_string(number + 1)) << number << ' ' << height;
                EXPECT_EQ(player.height, std::to_string(height + 148)) << number << ' ' << height;
                EXPECT_EQ(player.role, "Difensore Centrale");
            }
        }
    }
}

TEST(DecodeFirstWord, BorrowsSmallHeightsFromTheNumber) {
    for (int number = 1; number < 32; ++number) {
        for (int height = 0; height < 7; ++height) {
            const DecodedPlayer player = decoded_first(first_word(1, height, number));
            EXPECT_EQ(player.number, std::to_string(number));
            EXPECT_EQ(player.height, std::to_string(height + 212));
        }
    }
    for (int height = 0; height < 7; ++height) {
        const DecodedPlayer player = decoded_first(first_word(1, height, 0));
        EXPECT_EQ(player.number, "1");
        EXPECT_EQ(player.height, "155");
        EXPECT_TRUE(player.stopped);
        EXPECT_FALSE(player.hair_colour);
        EXPECT_FALSE(player.role);
        EXPECT_FALSE(player.skin);
        EXPECT_FALSE(player.foot);
    }
}

TEST(DecodeFirstWord, StopsAtTheHairOfAnEmptyRecord) {
    const DecodedPlayer player = decode_player({0, 0, 0});
    EXPECT_TRUE(player.stopped);
    EXPECT_EQ(player.out_of_role, "No");
    EXPECT_EQ(player.number, "1");
    EXPECT_EQ(player.height, "155");
    EXPECT_EQ(player.beard_style, "A");
    EXPECT_EQ(player.beard_colour, "A");
    EXPECT_FALSE(player.beard_style_shown);
    EXPECT_FALSE(player.beard_colour_shown);
    for (const auto* field : {&player.hair_colour, &player.hair_style, &player.role, &player.skin, &player.build,
                              &player.age, &player.boots, &player.foot}) {
        EXPECT_FALSE(field->has_value());
    }
    for (const auto& skill : player.skills) EXPECT_FALSE(skill);
}

TEST(DecodeFirstWord, TakesAQuotientOfExactlyOneForNone) {
    const DecodedPlayer height = decoded_first(first_word(0, 8));
    EXPECT_EQ(height.height, "155");
    EXPECT_EQ(height.beard_colour, "A");
    EXPECT_TRUE(height.beard_colour_shown);
    EXPECT_EQ(height.role, "Portiere");
    const DecodedPlayer number = decoded_first(first_word(0, 7, 1));
    EXPECT_EQ(number.number, "1");
    EXPECT_EQ(number.height, "219");
    // With anything below, both read as they stand.
    EXPECT_EQ(decoded_first(first_word(1, 8)).height, "156");
    EXPECT_EQ(decoded_first(first_word(1, 7, 1)).number, "2");
}

TEST(DecodeFirstWord, SkipsHairAndRoleAtExactlyOneBeardUnit) {
    for (const std::int64_t rest : {8192, 131072}) {
        const DecodedPlayer player = decoded_first(first_word(rest));
        EXPECT_FALSE(player.stopped);
        EXPECT_EQ(player.beard_style, "A");
        EXPECT_EQ(player.beard_colour, "A");
        EXPECT_FALSE(player.beard_style_shown);
        EXPECT_FALSE(player.beard_colour_shown);
        EXPECT_FALSE(player.hair_colour);
        EXPECT_FALSE(player.hair_style);
        EXPECT_FALSE(player.role);
        EXPECT_EQ(player.skin, "A - Bianco");
        EXPECT_EQ(player.foot, "Destro");
    }
}

TEST(DecodeFirstWord, ReadsEveryBeard) {
    for (int colour = 0; colour < 8; ++colour) {
        for (int style = 0; style < 8; ++style) {
            const DecodedPlayer player = decoded_first(first_word(colour * unit(17) + style * unit(13) + 1));
            const bool colour_read = colour > 0;
            const bool style_read = colour_read || style > 0;
            EXPECT_EQ(player.beard_colour, beard_texts[static_cast<std::size_t>(colour % 7)]);
            EXPECT_EQ(player.beard_style, beard_texts[static_cast<std::size_t>(style % 7)]);
            EXPECT_EQ(player.beard_colour_shown, colour_read) << colour << ' ' << style;
            EXPECT_EQ(player.beard_style_shown, style_read) << colour << ' ' << style;
            EXPECT_EQ(player.role, "Difensore Centrale");
        }
    }
}

TEST(DecodeFirstWord, ReadsEveryHairAndRole) {
    for (int role = 0; role < 8; ++role) {
        for (int style = 0; style < 32; ++style) {
            for (int colour = 0; colour < 8; ++colour) {
                const DecodedPlayer player = decoded_first(first_word(role + style * unit(4) + colour * unit(9)));
                EXPECT_EQ(player.role, role_texts[static_cast<std::size_t>(role)]);
                EXPECT_EQ(player.hair_style, hair_style_texts[static_cast<std::size_t>(style)]);
                EXPECT_EQ(player.hair_colour, hair_colour_texts[static_cast<std::size_t>(colour)]);
                EXPECT_FALSE(player.beard_style_shown);
            }
        }
    }
}

TEST(DecodeFirstWord, ShowsSpareBitsInTheFieldsBelow) {
    for (int role = 0; role < 8; ++role) EXPECT_EQ(decoded_first(first_word(8 + role)).role, "Portiere");
    // Bit 12: the quotient for the hair colour is 8 to 15.99.
    const DecodedPlayer eight = decoded_first(first_word(unit(12) + 5 * unit(4) + 3));
    EXPECT_EQ(eight.hair_colour, "A");
    EXPECT_EQ(eight.hair_style, "B3");
    EXPECT_EQ(eight.role, "Centrocampista Difensivo");
    const DecodedPlayer nine = decoded_first(first_word(unit(12) + unit(9) + 5 * unit(4) + 3));
    EXPECT_EQ(nine.hair_colour, "A");
    EXPECT_EQ(nine.hair_style, "B3");
    // From 10 on the digit is 1, so that only one unit goes and the style is too large.
    const DecodedPlayer ten = decoded_first(first_word(unit(12) + 2 * unit(9) + 5 * unit(4) + 3));
    EXPECT_EQ(ten.hair_colour, "B");
    EXPECT_EQ(ten.hair_style, "A1");
    EXPECT_EQ(ten.role, "Centrocampista Difensivo");
    // Bit 16: the same for the beard style.
    const DecodedPlayer beard = decoded_first(first_word(unit(16) + 3 * unit(13) + 3));
    EXPECT_EQ(beard.beard_style, "B");
    EXPECT_EQ(beard.hair_colour, "B");
    const DecodedPlayer ninth = decoded_first(first_word(unit(16) + unit(13) + 2 * unit(9) + 3));
    EXPECT_EQ(ninth.beard_style, "A");
    EXPECT_TRUE(ninth.beard_style_shown);
    EXPECT_EQ(ninth.hair_colour, "C");
}

TEST(DecodeSecondWord, ReadsTheAttackByRanges) {
    struct Range {
        std::int64_t first;
        std::int64_t last;
        const char* attack;
    };
    for (const Range& range : {Range{0, 536870911, "12"},
                               {536870912, 1073741823, "13"},
                               {1073741824, 1610612735, "14"},
                               {1610612736, 2147483647, "15"},
                               {-2147483648, -1610612737, "16"},
                               {-1610612736, -1073741825, "17"},
                               {-1073741824, -536870913, "18"},
                               {-536870912, -1, "19"}}) {
        for (const std::int64_t word : {range.first, range.first + 1, range.last}) {
            EXPECT_EQ(skill_text(decoded_second(word), Skill::attack), range.attack) << word;
        }
        const DecodedPlayer lowest = decoded_second(range.first);
        EXPECT_EQ(skill_text(lowest, Skill::acceleration), "12");
        EXPECT_EQ(lowest.age, "15");
        EXPECT_EQ(skill_text(decoded_second(range.last), Skill::acceleration), "19");
    }
}

TEST(DecodeSecondWord, ReadsEveryField) {
    const std::array<std::pair<Skill, int>, 6> skills{{{Skill::acceleration, 26},
                                                       {Skill::speed, 23},
                                                       {Skill::dribbling, 20},
                                                       {Skill::stamina, 17},
                                                       {Skill::balance, 14},
                                                       {Skill::reaction, 10}}};
    for (const auto& [skill, bit] : skills) {
        for (int value = 0; value < 8; ++value) {
            const DecodedPlayer player = decoded_second(value * unit(bit));
            for (const auto& [other, other_bit] : skills) {
                EXPECT_EQ(skill_text(player, other), std::to_string(12 + (other_bit == bit ? value : 0)));
            }
        }
    }
    for (int age = 0; age < 32; ++age) {
        for (int build = 0; build < 8; ++build) {
            for (int skin = 0; skin < 4; ++skin) {
                const DecodedPlayer player = decoded_second(age * 32 + build * 4 + skin);
                EXPECT_EQ(player.age, std::to_string(15 + age));
                EXPECT_EQ(player.build, build_texts[static_cast<std::size_t>(build)]);
                EXPECT_EQ(player.skin, skin_texts[static_cast<std::size_t>(skin)]);
            }
        }
    }
}

TEST(DecodeSecondWord, ShowsItsSpareBitInTheReaction) {
    const DecodedPlayer eight = decoded_second(unit(13) + 5 * 32 + 1);
    EXPECT_EQ(skill_text(eight, Skill::reaction), "20");
    EXPECT_EQ(eight.age, "20");
    EXPECT_EQ(eight.skin, "B - Giallo");
    EXPECT_EQ(skill_text(decoded_second(unit(13) + unit(10)), Skill::reaction), "21");
    const DecodedPlayer ten = decoded_second(unit(13) + 2 * unit(10) + 3 * 4);
    EXPECT_EQ(skill_text(ten, Skill::reaction), "13");
    // Nine units of 1024 are left for the age.
    EXPECT_EQ(ten.age, std::to_string(15 + 9 * 32));
    EXPECT_EQ(ten.build, "D 70\xF7"
                         "75 Kg");
}

TEST(DecodeThirdWord, ReadsTheFoot) {
    EXPECT_EQ(decoded_third(0).foot, "Destro");
    EXPECT_EQ(decoded_third(1073741823).foot, "Destro");
    EXPECT_EQ(decoded_third(1073741824).foot, "Sinistro");
    EXPECT_EQ(decoded_third(2147483647).foot, "Sinistro");
    EXPECT_EQ(decoded_third(-2147483648).foot, "Ambi");
    EXPECT_EQ(decoded_third(-1).foot, "Ambi");
    EXPECT_EQ(skill_text(decoded_third(1073741824 + 5), Skill::defence), "17");
    EXPECT_EQ(skill_text(decoded_third(-2147483648 + 5), Skill::defence), "17");
}

TEST(DecodeThirdWord, ReadsTheBootsStrictlyAboveOne) {
    for (int boots = 0; boots < 8; ++boots) {
        const DecodedPlayer player = decoded_third(boots * unit(27) + 1);
        EXPECT_EQ(player.boots, boots_texts[static_cast<std::size_t>(boots)]);
        EXPECT_EQ(skill_text(player, Skill::positivity), "12");
    }
    const DecodedPlayer exact = decoded_third(unit(27));
    EXPECT_EQ(exact.boots, "A");
    EXPECT_EQ(skill_text(exact, Skill::positivity), "20");
    EXPECT_EQ(skill_text(exact, Skill::curve), "12");
    EXPECT_EQ(decoded_third(2 * unit(27)).boots, "C");
}

TEST(DecodeThirdWord, ReadsBootsWithBothFootBitsSet) {
    for (int stored = 0; stored < 8; ++stored) {
        const DecodedPlayer player = decoded_third(signed_word(unit(31) + unit(30) + stored * unit(27) + 1));
        EXPECT_EQ(player.foot, "Ambi");
        EXPECT_EQ(player.boots, stored < 2 ? "A" : "B") << stored;
        EXPECT_FALSE(player.stopped);
    }
    // Stored 2: one of ten units goes, nine are left: 72 units of positivity, digit 7.
    const DecodedPlayer player = decoded_third(signed_word(unit(31) + unit(30) + 2 * unit(27)));
    EXPECT_EQ(skill_text(player, Skill::positivity), "19");
    // 65 units of positivity are 520 of the curve, digit 5; 515 are left, 4120 of the jump, digit 4, and so on.
    EXPECT_EQ(skill_text(player, Skill::curve), "17");
    EXPECT_EQ(skill_text(player, Skill::jump), "16");
}

TEST(DecodeThirdWord, ReadsEveryField) {
    const std::array<std::pair<Skill, int>, 9> skills{{{Skill::positivity, 24},
                                                       {Skill::curve, 21},
                                                       {Skill::jump, 18},
                                                       {Skill::heading, 15},
                                                       {Skill::technique, 12},
                                                       {Skill::passing, 9},
                                                       {Skill::shot_accuracy, 6},
                                                       {Skill::shot_power, 3},
                                                       {Skill::defence, 0}}};
    for (const auto& [skill, bit] : skills) {
        for (int value = 0; value < 8; ++value) {
            const DecodedPlayer player = decoded_third(value * unit(bit));
            for (const auto& [other, other_bit] : skills) {
                EXPECT_EQ(skill_text(player, other), std::to_string(12 + (other_bit == bit ? value : 0)));
            }
        }
    }
}

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

/// Reads a clean record by its bits, the other way than the decoder's.
PlayerValues values_of_bits(const Words& words) {
    const auto bits = [&words](int word, int bit, int width) {
        return ((words[static_cast<std::size_t>(word - 1)] & 0xFFFFFFFF) >> bit) & (unit(width) - 1);
    };
    PlayerValues values;
    values.role = bits(1, 0, 3);
    values.hair_style = bits(1, 4, 5);
    values.hair_colour = bits(1, 9, 3);
    values.beard_style = bits(1, 13, 3);
    values.beard_colour = bits(1, 17, 3);
    values.height = 148 + bits(1, 20, 6);
    values.number = 1 + bits(1, 26, 5);
    values.in_role = bits(1, 31, 1) == 0;
    values.skin = bits(2, 0, 2);
    values.build = bits(2, 2, 3);
    values.age = 15 + bits(2, 5, 5);
    values.boots = bits(3, 27, 3);
    values.foot = bits(3, 30, 2);
    for (std::size_t i = 0; i < skill_count; ++i) {
        values.skills[i] = 12 + bits(skill_bits[i].word, skill_bits[i].bit, 3);
    }
    return values;
}

PlayerValues values_of_texts(const DecodedPlayer& player) {
    PlayerValues values;
    values.role = value_of(role_texts, player.role.value());
    values.hair_style = value_of(hair_style_texts, player.hair_style.value());
    values.hair_colour = value_of(hair_colour_texts, player.hair_colour.value());
    values.beard_style = value_of(beard_texts, player.beard_style);
    values.beard_colour = value_of(beard_texts, player.beard_colour);
    values.height = std::stoi(player.height.value());
    values.number = std::stoi(player.number.value());
    values.in_role = player.out_of_role.value() == "No";
    values.skin = value_of(skin_texts, player.skin.value());
    values.build = value_of(build_texts, player.build.value());
    values.age = std::stoi(player.age.value());
    values.boots = value_of(boots_texts, player.boots.value());
    values.foot = value_of(foot_texts, player.foot.value());
    for (std::size_t i = 0; i < skill_count; ++i) values.skills[i] = std::stoi(player.skills[i].value());
    return values;
}

bool same_values(const PlayerValues& a, const PlayerValues& b) {
    return a.role == b.role && a.hair_style == b.hair_style && a.hair_colour == b.hair_colour &&
           a.beard_style == b.beard_style && a.beard_colour == b.beard_colour && a.height == b.height &&
           a.number == b.number && a.in_role == b.in_role && a.skin == b.skin && a.build == b.build && a.age == b.age &&
           a.boots == b.boots && a.foot == b.foot && a.skills == b.skills;
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
        EXPECT_TRUE(same_values(values_of_bits(words), values)) << i;
        for (const std::int64_t word : words) EXPECT_EQ(word, signed_word(word));
        if (!reads_back(values)) continue;
        const DecodedPlayer player = decode_player(words);
        ASSERT_FALSE(player.stopped) << i;
        const PlayerValues back = values_of_texts(player);
        EXPECT_TRUE(same_values(back, values)) << i;
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
        EXPECT_TRUE(same_values(values_of_texts(decode_player(pack_player(values))), values));
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

/// The decoder's steps once more, on quotients as decimal texts.
class TextDecoder {
public:
    struct Stop {};

    static Texts decode(const Words& words) {
        TextDecoder decoder;
        try {
            decoder.first(words[0]);
            decoder.second(words[1]);
            decoder.third(words[2]);
        } catch (const Stop&) {
            decoder.found_.emplace_back("stopped");
        }
        return decoder.found_;
    }

private:
    static std::string quotient(std::int64_t n, std::int64_t d) {
        std::string text = n < 0 ? "-" : "";
        const std::int64_t positive = n < 0 ? -n : n;
        text += std::to_string(positive / d);
        if (positive % d != 0) text += ",5";
        return text;
    }
    static std::int64_t whole(std::int64_t n, std::int64_t d) { return std::stoll(quotient(n, d)); }
    static std::int64_t digit(std::int64_t n, std::int64_t d) {
        const char first = quotient(n, d).front();
        if (first == '-') throw Stop{};
        return first - '0';
    }
    template <std::size_t n>
    void add(const std::array<std::string_view, n>& table, std::int64_t value) {
        found_.emplace_back(
            table[value >= 0 && value < static_cast<std::int64_t>(n) ? static_cast<std::size_t>(value) : 0]);
    }

    void first(std::int64_t t) {
        found_.emplace_back(std::to_string(t).front() == '-' ? "Si" : "No");
        std::int64_t b = (t < 0 ? t : t - 2147483648) + 2140143616;
        const std::int64_t number = b > 67108864 ? whole(b, 67108864) + 1 : 1;
        b -= (number - 1) * 67108864;
        const std::int64_t height = b > 1048576 ? whole(b, 1048576) + 155 : 155;
        std::int64_t r = b - (height - 155) * 1048576;
        found_.push_back(std::to_string(number));
        found_.push_back(std::to_string(height));
        if (r == 8192 || r == 131072) {
            found_.emplace_back("skipped");
            return;
        }
        if (r > 131072) {
            const std::int64_t colour = digit(r, 131072);
            add(beard_texts, colour);
            r -= colour * 131072;
        }
        if (b - (height - 155) * 1048576 > 8192) {
            const std::int64_t style = digit(r, 8192);
            add(beard_texts, style);
            r -= style * 8192;
        }
        const std::int64_t colour = digit(r, 512);
        add(hair_colour_texts, colour);
        r -= colour * 512;
        add(hair_style_texts, whole(r, 16));
        r -= whole(r, 16) * 16;
        add(role_texts, r);
    }

    void picked(std::int64_t& v, std::initializer_list<std::int64_t> divisors) {
        for (const std::int64_t divisor : divisors) {
            const std::int64_t d = v >= divisor ? digit(v, divisor) : 0;
            found_.push_back(std::to_string(d + 12));
            v -= d * divisor;
        }
    }

    void second(std::int64_t v) {
        const std::array<std::int64_t, 8> bases{0,           536870912,   1073741824,  1610612736,
                                                -2147483648, -1610612736, -1073741824, -536870912};
        for (std::size_t i = 0; i < bases.size(); ++i) {
            if (v < bases[i] || v > bases[i] + 536870911) continue;
            found_.push_back(std::to_string(12 + i));
            v -= bases[i];
            break;
        }
        picked(v, {67108864, 8388608, 1048576, 131072, 16384, 1024});
        found_.push_back(std::to_string(whole(v, 32) + 15));
        v -= whole(v, 32) * 32;
        const std::int64_t build = digit(v, 4);
        add(build_texts, build);
        v -= build * 4;
        add(skin_texts, v);
    }

    void third(std::int64_t w) {
        if (w >= 1073741824) {
            found_.emplace_back("Sinistro");
            w -= 1073741824;
        } else if (w < 0) {
            found_.emplace_back("Ambi");
            w += 2147483648;
        } else {
            found_.emplace_back("Destro");
        }
        const std::int64_t boots = w > 134217728 ? digit(w, 134217728) : 0;
        add(boots_texts, boots);
        w -= boots * 134217728;
        picked(w, {16777216, 2097152, 262144, 32768, 4096, 512, 64, 8});
        found_.push_back(std::to_string(w + 12));
    }

    Texts found_;
};

Texts in_step_order(const DecodedPlayer& player) {
    Texts found{*player.out_of_role, *player.number, *player.height};
    if (!player.hair_colour && !player.stopped) found.emplace_back("skipped");
    if (player.beard_colour_shown) found.push_back(player.beard_colour);
    if (player.beard_style_shown) found.push_back(player.beard_style);
    if (player.hair_colour) found.insert(found.end(), {*player.hair_colour, *player.hair_style, *player.role});
    if (player.stopped) {
        found.emplace_back("stopped");
        return found;
    }
    for (const Skill skill : {Skill::attack, Skill::acceleration, Skill::speed, Skill::dribbling, Skill::stamina,
                              Skill::balance, Skill::reaction}) {
        found.push_back(skill_text(player, skill));
    }
    found.insert(found.end(), {*player.age, *player.build, *player.skin, *player.foot, *player.boots});
    for (const Skill skill : {Skill::positivity, Skill::curve, Skill::jump, Skill::heading, Skill::technique,
                              Skill::passing, Skill::shot_accuracy, Skill::shot_power, Skill::defence}) {
        found.push_back(skill_text(player, skill));
    }
    return found;
}

TEST(DecodePlayerSteps, AgreeWithTheTextsOfQuotientsForAnyWords) {
    std::mt19937 random(777);
    for (int i = 0; i < 60000; ++i) {
        Words words{};
        for (std::int64_t& word : words) {
            std::int64_t bits = random() & 0xFFFFFFFF;
            // Sparse words reach the thresholds.
            if (i % 3 == 1) bits &= static_cast<std::int64_t>(random());
            if (i % 3 == 2) bits &= static_cast<std::int64_t>(random()) & static_cast<std::int64_t>(random());
            word = signed_word(bits);
        }
        if (i % 2 == 0) words[0] = signed_word(words[0] | 7 * unit(20));
        EXPECT_EQ(in_step_order(decode_player(words)), TextDecoder::decode(words))
            << words[0] << ' ' << words[1] << ' ' << words[2];
    }
    for (int low = 0; low < 20; ++low) {
        for (int bit = 0; bit < 32; ++bit) {
            const Words words{first_word(unit(bit)) - low + 10, signed_word(unit(bit) + low),
                              signed_word(unit(bit)) - 0};
            EXPECT_EQ(in_step_order(decode_player(words)), TextDecoder::decode(words)) << words[0];
        }
    }
}

TEST(RecordTexts, CutAnEntryIntoItsGroups) {
    const std::string entry = "56 24 E6 25 8D 85 C6 D2 70 57 65 54";
    EXPECT_EQ(groups_of_entry(entry), (std::array<std::string, 3>{"56 24 E6 25", "8D 85 C6 D2", "70 57 65 54"}));
    EXPECT_EQ(groups_of_entry(""), (std::array<std::string, 3>{}));
    EXPECT_EQ(groups_of_entry("56 24"), (std::array<std::string, 3>{"56 24", "", "56 24"}));
}

TEST(RecordTexts, ReadAGroupAsASignedWord) {
    EXPECT_EQ(word_of_group("56 24 E6 25"), 635839574);
    EXPECT_EQ(word_of_group("8D 85 C6 D2"), -758741619);
    EXPECT_EQ(word_of_group("00 00 00 80"), -2147483648);
    EXPECT_EQ(word_of_group("FF FF FF FF"), -1);
    EXPECT_EQ(word_of_group("FF FF FF 7F"), 2147483647);
    EXPECT_EQ(word_of_group("00 80 00 00"), 32768);
    EXPECT_EQ(word_of_group(" 8D 85 C6 D"), 0x0DC6858D) << "a single digit counts as a byte";
    for (const char* group : {"", "56", "56 24 E6"}) EXPECT_THROW(word_of_group(group), RuntimeError) << group;
}

TEST(RecordTexts, GiveTheDigitsOfAWordInFileOrder) {
    EXPECT_EQ(file_order_digits(635839574), "5624E625");
    EXPECT_EQ(file_order_digits(-758741619), "8D85C6D2");
    EXPECT_EQ(file_order_digits(0), "00000000");
    EXPECT_EQ(file_order_digits(-2147483648), "00000080");
    EXPECT_EQ(file_order_digits(-2), "FEFFFFFF");
    EXPECT_EQ(file_order_digits(-2147483649), "FFFFFF7F");
    for (const std::int64_t word : {std::int64_t{-1}, std::int64_t{2147483648}, std::int64_t{-2147483650}}) {
        try {
            file_order_digits(word);
            ADD_FAILURE() << word;
        } catch (const RuntimeError& failure) {
            EXPECT_EQ(failure.number(), error::overflow) << word;
        }
    }
}

TEST(RecordTexts, GiveBackAnyWord) {
    std::mt19937 random(5);
    for (int i = 0; i < 5000; ++i) {
        const std::int64_t word = signed_word(random() & 0xFFFFFFFF);
        if (word == -1) continue;
        EXPECT_EQ(word_of_group(hex_line(bytes_of_digits(file_order_digits(word)))), word);
    }
}

TEST(RecordTexts, CountUnknownTextsAsZero) {
    EXPECT_EQ(value_of(role_texts, "Centravanti"), 6);
    EXPECT_EQ(value_of(role_texts, "centravanti"), 0);
    EXPECT_EQ(value_of(role_texts, ""), 0);
    EXPECT_EQ(value_of(hair_style_texts, "P1"), 31);
    EXPECT_EQ(value_of(foot_texts, "Ambi"), 2);
    EXPECT_EQ(value_of(beard_texts, "H"), 0);
}

}  // namespace
}  // namespace kalco

#include "disc/player_record.h"

#include <gtest/gtest.h>

#include <random>

#include "disc/codec/hextext.h"
#include "disc/runtime_error.h"
#include "support/outcome.h"
#include "support/record_words.h"

namespace kalco {
namespace {

using Texts = std::vector<std::string>;

using test::first_word;
using test::signed_word;
using test::skill_text;
using test::unit;

DecodedPlayer decoded_first(std::int64_t word) {
    return decode_player({word, 0, 0});
}

DecodedPlayer decoded_second(std::int64_t word) {
    return decode_player({first_word(1), word, 0});
}

DecodedPlayer decoded_third(std::int64_t word) {
    return decode_player({first_word(1), 0, word});
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

TEST(RecordTexts, CutAnEntryIntoItsGroups) {
    const std::string entry = "56 24 E6 25 8D 85 C6 D2 70 57 65 54";
    EXPECT_EQ(groups_of_entry(entry), (std::array<std::string, 3>{"56 24 E6 25", "8D 85 C6 D2", "70 57 65 54"}));
    EXPECT_EQ(entry_of_groups(groups_of_entry(entry)), entry);
    EXPECT_EQ(entry_of_groups({"", "", ""}), "  ");
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
        EXPECT_EQ(test::error_of([&] { file_order_digits(word); }), error::overflow) << word;
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

// The stored reading of a player's record: masks, and nothing lost on the way there and back.

#include <gtest/gtest.h>

#include <functional>
#include <random>
#include <set>
#include <vector>

#include "disc/image/image.h"
#include "disc/player_record.h"
#include "disc/roster.h"
#include "support/memory_storage.h"
#include "support/random_image.h"

namespace kalco {
namespace {

std::string random_record(std::mt19937& random) {
    return test::random_bytes(random, player_record_bytes);
}

TEST(RecordTable, TellsEveryBitOnceInItsOrder) {
    int word = 1;
    int bit = 0;
    for (const BitField& field : record_fields) {
        EXPECT_EQ(field.word, word) << field.name;
        EXPECT_EQ(field.bit, bit) << field.name;
        EXPECT_GT(field.width, 0) << field.name;
        bit += field.width;
        if (bit != 32) continue;
        bit = 0;
        ++word;
    }
    EXPECT_EQ(word, 4);
}

TEST(RecordTable, NamesEveryFieldOnce) {
    std::set<std::string_view> names;
    std::set<std::string_view> captions;
    std::size_t spare = 0;
    for (const BitField& field : record_fields) {
        EXPECT_TRUE(names.insert(field.name).second) << field.name;
        if (field.caption.empty()) {
            ++spare;
        } else {
            EXPECT_TRUE(captions.insert(field.caption).second) << field.name;
        }
    }
    EXPECT_EQ(spare, spare_count);
}

TEST(RecordWords, AreLittleEndianAndSigned) {
    const std::string record("\x56\x24\xE6\x25\x8D\x85\xC6\xD2\x70\x57\x65\x54", 12);
    EXPECT_EQ(words_of_record(record), (Words{635839574, -758741619, 1415927664}));
    EXPECT_EQ(record_of_words({635839574, -758741619, 1415927664}), record);
    EXPECT_EQ(words_of_record(std::string(12, '\xFF')), (Words{-1, -1, -1}));
    EXPECT_EQ(record_of_words({-1, -1, -1}), std::string(12, '\xFF'));
    EXPECT_EQ(words_of_record("\x01"), (Words{1, 0, 0})) << "missing bytes count as 0";
    EXPECT_EQ(record_of_words({0x1FFFFFFFF, -4294967295, 2147483648}),
              std::string("\xFF\xFF\xFF\xFF\x01\0\0\0\0\0\0\x80", 12))
        << "the low 32 bits";
}

TEST(StoredBits, AreThoseOfTheWorkedExample) {
    const std::string record("\x56\x24\xE6\x25\x8D\x85\xC6\xD2\x70\x57\x65\x54", 12);
    EXPECT_EQ(stored_bits(record, role_bits), 6);
    EXPECT_EQ(stored_bits(record, height_bits), 30);
    EXPECT_EQ(stored_bits(record, number_bits), 9);
    EXPECT_EQ(stored_bits(record, foot_bits), 1);
    EXPECT_EQ(stored_bits(record, bits_of(Skill::attack)), 6);
    EXPECT_EQ(stored_bits(record, bits_of(Skill::reaction)), 1);
}

TEST(StoredBits, HoldEveryValueAndLeaveAllOthersAlone) {
    std::mt19937 random(2024);
    for (const BitField& field : record_fields) {
        for (int round = 0; round < 20; ++round) {
            const std::string before = random_record(random);
            for (int value = 0; value < field.count(); ++value) {
                std::string record = before;
                store_bits(record, field, value);
                ASSERT_EQ(record.size(), 12U);
                EXPECT_EQ(stored_bits(record, field), value) << field.name;
                for (const BitField& other : record_fields) {
                    if (other.name == field.name) continue;
                    EXPECT_EQ(stored_bits(record, other), stored_bits(before, other)) << field.name << other.name;
                }
            }
        }
    }
}

TEST(StoredBits, KeepAValueInsideItsField) {
    std::string record(12, '\0');
    store_bits(record, hair_colour_bits, 9);
    EXPECT_EQ(words_of_record(record), (Words{512, 0, 0}));
    store_bits(record, hair_colour_bits, -1);
    EXPECT_EQ(words_of_record(record), (Words{7 * 512, 0, 0}));
}

/// Every field by what it holds in the values.
std::vector<std::pair<BitField, std::function<std::int64_t&(PlayerValues&)>>> numeric_fields() {
    std::vector<std::pair<BitField, std::function<std::int64_t&(PlayerValues&)>>> fields;
    const auto add = [&fields](const BitField& bits, std::int64_t PlayerValues::*member) {
        fields.emplace_back(bits, [member](PlayerValues& values) -> std::int64_t& { return values.*member; });
    };
    add(role_bits, &PlayerValues::role);
    add(hair_style_bits, &PlayerValues::hair_style);
    add(hair_colour_bits, &PlayerValues::hair_colour);
    add(beard_style_bits, &PlayerValues::beard_style);
    add(beard_colour_bits, &PlayerValues::beard_colour);
    add(height_bits, &PlayerValues::height);
    add(number_bits, &PlayerValues::number);
    add(skin_bits, &PlayerValues::skin);
    add(build_bits, &PlayerValues::build);
    add(age_bits, &PlayerValues::age);
    add(boots_bits, &PlayerValues::boots);
    add(foot_bits, &PlayerValues::foot);
    for (std::size_t i = 0; i < skill_count; ++i) {
        fields.emplace_back(skill_bits[i], [i](PlayerValues& values) -> std::int64_t& { return values.skills[i]; });
    }
    for (std::size_t i = 0; i < spare_count; ++i) {
        fields.emplace_back(spare_bits[i], [i](PlayerValues& values) -> std::int64_t& { return values.spare[i]; });
    }
    return fields;
}

TEST(PackAndUnpack, GiveBackEveryValueOfEveryField) {
    std::mt19937 random(7);
    const auto fields = numeric_fields();
    ASSERT_EQ(fields.size() + 1, record_fields.size()) << "out of role is the one that is no number";
    for (int round = 0; round < 30; ++round) {
        PlayerValues base = unpack_player(words_of_record(random_record(random)));
        base.in_role = round % 2 == 0;
        for (const auto& [bits, member] : fields) {
            for (int value = 0; value < bits.count(); ++value) {
                PlayerValues values = base;
                member(values) = bits.base + value;
                const Words words = pack_player(values);
                EXPECT_EQ(stored_bits(words, bits), value) << bits.name;
                EXPECT_EQ(stored_bits(words, out_of_role_bits), base.in_role ? 0 : 1);
                EXPECT_TRUE(unpack_player(words) == values) << bits.name << ' ' << value;
                EXPECT_EQ(words_of_record(record_of_words(words)), words) << "each is a signed 32-bit number";
            }
        }
    }
}

TEST(PackAndUnpack, GiveBackAnyRecordWithItsSpareBits) {
    std::mt19937 random(8);
    for (int round = 0; round < 20000; ++round) {
        const std::string record = random_record(random);
        EXPECT_EQ(record_of_words(pack_player(unpack_player(words_of_record(record)))), record) << round;
    }
    for (int bit = 0; bit < 96; ++bit) {
        std::string record(12, '\0');
        record[static_cast<std::size_t>(bit / 8)] = static_cast<char>(1 << bit % 8);
        EXPECT_EQ(record_of_words(pack_player(unpack_player(words_of_record(record)))), record) << bit;
    }
}

TEST(PackAndUnpack, GiveBackEveryPlayerOfARandomImage) {
    test::Disc disc{test::random_image(11)};
    Image image(test::opener_of(disc));
    image.open("disc.bin");
    int players = 0;
    const auto expect_back = [&](const Pieces& field) {
        const std::string record = image.read(field);
        const PlayerValues values = unpack_player(words_of_record(record));
        EXPECT_EQ(record_of_words(pack_player(values)), record);
        std::string built(12, '\0');
        for (const BitField& bits : record_fields) store_bits(built, bits, stored_bits(record, bits));
        EXPECT_EQ(built, record);
        ++players;
    };
    for (Team team(0); has_roster(team); ++team) {
        for (int player = 0; player < roster_players; ++player) expect_back(roster_record_field({team, player}));
    }
    for (const PoolRow row : every<PoolRow>()) expect_back(pool_record_field(row));
    EXPECT_EQ(players, 1449 + 462);
}

}  // namespace
}  // namespace kalco

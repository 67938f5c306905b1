// The stored readings by row of the list of 87: numbers, formations, bars and set pieces, there and back.

#include <gtest/gtest.h>

#include "disc/bars.h"
#include "disc/formation.h"
#include "disc/numbers.h"
#include "disc/set_pieces.h"
#include "support/editor_run.h"
#include "support/memory_storage.h"
#include "support/random_image.h"

namespace kalco {
namespace {

constexpr TeamRow nation(10);
constexpr TeamRow club(60);

class RandomDisc : public ::testing::Test {
protected:
    RandomDisc() : disc{test::random_image(23)}, image(test::opener_of(disc)) { image.open("disc.bin"); }

    test::Disc disc;
    Image image;
};

TEST_F(RandomDisc, GivesBackEveryRow) {
    const std::string before = disc.bytes;
    int bars = 0;
    for (const TeamRow row : every<TeamRow>()) {
        const std::string numbers = image.read(number_field(row));
        EXPECT_EQ(pack_numbers(row, unpack_numbers(row, numbers)), numbers) << row.value();
        write_numbers(image, row, pack_numbers(row, read_numbers(image, row)));
        const std::string formation = image.read(formation_field(row));
        EXPECT_EQ(pack_formation(unpack_formation(formation)), formation) << row.value();
        write_formation(image, row, pack_formation(read_formation(image, row)));
        write_set_pieces(image, row, pack_set_pieces(read_set_pieces(image, row)));
        if (!has_bars(row)) continue;
        ++bars;
        write_bars(image, row, pack_bars(read_bars(image, row)));
    }
    EXPECT_EQ(bars, 86);
    image.commit();
    EXPECT_TRUE(test::same_image(disc.bytes, before));
}

TEST_F(RandomDisc, HoldsWhatIsWrittenAndNothingElseChanges) {
    std::mt19937 random(31);
    for (const TeamRow row : every<TeamRow>()) {
        std::string expected = disc.bytes;
        const auto lay = [&expected](const Pieces& field, std::string bytes) {
            for (const Piece& piece : field) {
                const auto count = static_cast<std::size_t>(piece.bytes);
                expected.replace(static_cast<std::size_t>(piece.position - 1), count, bytes.substr(0, count));
                bytes.erase(0, count);
            }
        };
        const std::string numbers = test::random_bytes(random, is_nation(row) ? 16 : 23);
        write_numbers(image, row, pack_numbers(row, unpack_numbers(row, numbers)));
        lay(number_field(row), numbers);
        const std::string formation = test::random_bytes(random, 30);
        write_formation(image, row, pack_formation(unpack_formation(formation)));
        lay(formation_field(row), formation);
        const std::string takers = test::random_bytes(random, 6);
        write_set_pieces(image, row, pack_set_pieces(unpack_set_pieces(takers)));
        lay(set_piece_field(row), takers);
        if (has_bars(row)) {
            const std::string bars = test::random_bytes(random, 5);
            write_bars(image, row, pack_bars(unpack_bars(bars)));
            lay(bars_field(row), bars);
        }
        image.commit();
        EXPECT_TRUE(test::same_image(disc.bytes, expected)) << row.value();
    }
}

TEST(StoredNumbers, AreThoseOfKnownRecords) {
    const std::string rising("\x20\x88\x41\x0A\xE6\xA0\xA4\x16\xAC\xB9\x07\x23\x72\xD2\x6A\x01", 16);
    StoredNumbers expected;
    for (int player = 0; player < 23; ++player) expected.numbers[static_cast<std::size_t>(player)] = player + 1;
    EXPECT_EQ(unpack_numbers(nation, rising), expected);
    EXPECT_EQ(pack_numbers(nation, expected), rising);
    EXPECT_EQ(unpack_numbers(club, std::string("\x00\x62\xFF", 3) + std::string(20, '\x09')).numbers[1], 99);
    EXPECT_EQ(unpack_numbers(default_team_row, std::string(23, '\xFF')).numbers[22], 256);
    EXPECT_EQ(unpack_numbers(nation, "").numbers[22], 1) << "missing bytes are 0";
}

TEST(StoredNumbers, AreNotMisreadAsTheShownOnesAre) {
    // The second byte 0x80 is the fourth player's lowest bit; a spare bit does not touch the sixth player.
    const std::string record = std::string("\x00\x80\x00\x40", 4) + std::string(12, '\0');
    const StoredNumbers stored = unpack_numbers(nation, record);
    EXPECT_EQ(stored.numbers[2], 1);
    EXPECT_EQ(stored.numbers[3], 2);
    EXPECT_EQ(stored.numbers[5], 1);
    EXPECT_EQ(stored.spare, (std::array<std::uint32_t, 4>{1, 0, 0, 0}));
    EXPECT_EQ(decode_national_numbers(record)[2], "32");
    EXPECT_EQ(decode_national_numbers(record)[5], "32");
}

TEST(StoredNumbers, GiveBackEveryValueOfEveryPlayer) {
    std::mt19937 random(3);
    for (const TeamRow row : {nation, club, default_team_row}) {
        const int highest = is_nation(row) ? 32 : 256;
        const std::string record = test::random_bytes(random, is_nation(row) ? 16 : 23);
        const StoredNumbers before = unpack_numbers(row, record);
        for (std::size_t player = 0; player < 23; ++player) {
            StoredNumbers stored = before;
            for (int number = 1; number <= highest; ++number) {
                stored.numbers[player] = number;
                EXPECT_EQ(unpack_numbers(row, pack_numbers(row, stored)), stored) << player << ' ' << number;
            }
        }
    }
}

TEST(StoredNumbers, GiveBackEverySpareBit) {
    for (std::size_t word = 0; word < 4; ++word) {
        for (std::uint32_t bits = 0; bits < (word < 3 ? 4U : 128U); ++bits) {
            StoredNumbers stored = unpack_numbers(nation, std::string(16, '\0'));
            stored.spare[word] = bits;
            const std::string record = pack_numbers(nation, stored);
            EXPECT_EQ(unpack_numbers(nation, record), stored) << word << ' ' << bits;
            EXPECT_EQ(static_cast<unsigned char>(record[4 * word + 3]), bits << (word < 3 ? 6 : 1)) << word;
        }
    }
}

TEST(StoredFormation, HasThreeColumnsOfTen) {
    std::string record;
    for (char byte = 0; byte < 30; ++byte) record += byte;
    const Formation formation = unpack_formation(record);
    EXPECT_EQ(formation.roles, (Formation::Column{0, 1, 2, 3, 4, 5, 6, 7, 8, 9}));
    EXPECT_EQ(formation.x, (Formation::Column{10, 11, 12, 13, 14, 15, 16, 17, 18, 19}));
    EXPECT_EQ(formation.y, (Formation::Column{20, 21, 22, 23, 24, 25, 26, 27, 28, 29}));
    const Formation part = unpack_formation(record.substr(0, 12));
    EXPECT_EQ(part.x, (Formation::Column{10, 11, 0, 0, 0, 0, 0, 0, 0, 0})) << "missing bytes are 0";
    EXPECT_EQ(part.y, Formation::Column{});
}

TEST(StoredBytes, HoldEveryValue) {
    for (int value = 0; value < 256; ++value) {
        const auto byte = static_cast<char>(value);
        for (std::size_t bar = 0; bar < 5; ++bar) {
            Bars bars{};
            bars[bar] = static_cast<std::uint8_t>(value);
            EXPECT_EQ(pack_bars(bars)[bar], byte);
            EXPECT_EQ(unpack_bars(pack_bars(bars)), bars);
        }
        for (std::size_t place = 0; place < 6; ++place) {
            SetPieces takers{};
            takers[place] = static_cast<std::uint8_t>(value);
            EXPECT_EQ(pack_set_pieces(takers)[place], byte);
            EXPECT_EQ(unpack_set_pieces(pack_set_pieces(takers)), takers);
        }
    }
    EXPECT_EQ(unpack_bars("\x03\x04"), (Bars{3, 4, 0, 0, 0}));
    EXPECT_EQ(unpack_set_pieces("\x03"), (SetPieces{3, 0, 0, 0, 0, 0}));
}

}  // namespace
}  // namespace kalco

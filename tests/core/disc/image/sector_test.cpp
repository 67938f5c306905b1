#include "disc/image/sector.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <random>
#include <stdexcept>
#include <vector>

namespace {

using kalco::bad_fields;
using kalco::disc_time;
using kalco::kind_of;
using kalco::make_sector;
using kalco::RawSector;
using kalco::SectorKind;

using UserData = std::array<std::uint8_t, kalco::user_bytes>;

UserData random_user_data(std::uint32_t seed) {
    std::mt19937 random(seed);
    UserData user{};
    for (auto& byte : user) byte = static_cast<std::uint8_t>(random() & 0xFF);
    return user;
}

// The checks below are worked out by other ways than the sectors are made: the EDC by long division of the whole bit
// string, the parities by the sums that must vanish, with multiplication by shift and add.

std::uint32_t edc_by_division(const RawSector& sector) {
    // x^32 + x^31 + x^16 + x^15 + x^4 + x^3 + x + 1, the product of the format's two factors.
    constexpr std::uint64_t divisor = 0x18001801BULL;
    std::uint64_t rest = 0;
    const auto feed = [&rest](bool bit) {
        rest = (rest << 1) | (bit ? 1U : 0U);
        if ((rest >> 32) != 0) rest ^= divisor;
    };
    for (std::size_t k = 16; k < 2072; ++k)
        for (unsigned bit = 0; bit < 8; ++bit) feed(((sector[k] >> bit) & 1) != 0);
    for (int bit = 0; bit < 32; ++bit) feed(false);
    std::uint32_t mirrored = 0;
    for (unsigned bit = 0; bit < 32; ++bit)
        if (((rest >> bit) & 1) != 0) mirrored |= 0x80000000U >> bit;
    return mirrored;
}

std::uint32_t stored_edc(const RawSector& sector) {
    return sector[2072] | std::uint32_t{sector[2073]} << 8 | std::uint32_t{sector[2074]} << 16 |
           std::uint32_t{sector[2075]} << 24;
}

unsigned multiply(unsigned a, unsigned b) {
    unsigned product = 0;
    for (; b != 0; b >>= 1) {
        if ((b & 1) != 0) product ^= a;
        a <<= 1;
        if ((a & 0x100) != 0) a ^= 0x11D;
    }
    return product;
}

struct Syndromes {
    unsigned sum = 0;
    unsigned weighted = 0;
    bool zero() const { return sum == 0 && weighted == 0; }
};

// `indices` count bytes from the header on, first to last of one code word; the header counts as zero.
Syndromes syndromes(const RawSector& sector, const std::vector<std::size_t>& indices) {
    Syndromes result;
    for (const std::size_t index : indices) {
        const unsigned byte = index < 4 ? 0U : sector[12 + index];
        result.sum ^= byte;
        result.weighted = multiply(result.weighted, 2) ^ byte;
    }
    return result;
}

std::vector<std::size_t> p_word(std::size_t column, std::size_t lane) {
    std::vector<std::size_t> indices;
    for (std::size_t row = 0; row < 26; ++row) indices.push_back(2 * (43 * row + column) + lane);
    return indices;
}

std::vector<std::size_t> q_word(std::size_t diagonal, std::size_t lane) {
    std::vector<std::size_t> indices;
    for (std::size_t step = 0; step < 43; ++step) indices.push_back(2 * ((44 * step + 43 * diagonal) % 1118) + lane);
    indices.push_back(2 * (43 * 26 + diagonal) + lane);
    indices.push_back(2 * (44 * 26 + diagonal) + lane);
    return indices;
}

TEST(Sector, SyncHeaderAndSubHeader) {
    const UserData user = random_user_data(1);
    const RawSector sector = make_sector(0, user);
    const std::array<std::uint8_t, 24> expected{0,   255, 255, 255, 255, 255, 255, 255, 255, 255, 255, 0,
                                                0x0, 0x2, 0x0, 0x2, 0,   0,   8,   0,   0,   0,   8,   0};
    EXPECT_TRUE(std::equal(expected.begin(), expected.end(), sector.begin()));
    EXPECT_TRUE(std::equal(user.begin(), user.end(), sector.begin() + 24));
}

TEST(Sector, AddressIsTheDiscsClockInBcd) {
    const UserData user{};
    struct Case {
        std::uint32_t lba;
        std::array<std::uint8_t, 3> clock;
        const char* time;
    };
    for (const Case& c : {Case{0, {0x00, 0x02, 0x00}, "00:02:00"}, Case{74, {0x00, 0x02, 0x74}, "00:02:74"},
                          Case{75, {0x00, 0x03, 0x00}, "00:03:00"}, Case{16, {0x00, 0x02, 0x16}, "00:02:16"},
                          Case{1234, {0x00, 0x18, 0x34}, "00:18:34"}, Case{4349, {0x00, 0x59, 0x74}, "00:59:74"},
                          Case{4350, {0x01, 0x00, 0x00}, "01:00:00"}, Case{332999, {0x74, 0x01, 0x74}, "74:01:74"},
                          Case{449849, {0x99, 0x59, 0x74}, "99:59:74"}}) {
        const RawSector sector = make_sector(c.lba, user);
        EXPECT_TRUE(std::equal(c.clock.begin(), c.clock.end(), sector.begin() + 12)) << c.lba;
        EXPECT_EQ(disc_time(c.lba), c.time);
    }
    EXPECT_THROW(make_sector(449850, user), std::out_of_range);
    EXPECT_THROW(make_sector(0xFFFFFFFF, user), std::out_of_range);
    EXPECT_EQ(disc_time(449850), "100:00:00");
    EXPECT_EQ(disc_time(0x100000000), "954437:12:46");
}

TEST(Sector, KindsAreToldBySyncModeAndForm) {
    RawSector sector = make_sector(0, UserData{});
    EXPECT_EQ(kind_of(sector), SectorKind::form1);
    sector[18] |= 0x20;
    EXPECT_EQ(kind_of(sector), SectorKind::form2);
    sector[18] = 0xDF;
    sector[22] = 0xFF;  // the copy is not looked at
    EXPECT_EQ(kind_of(sector), SectorKind::form1);
    sector[15] = 1;
    EXPECT_EQ(kind_of(sector), SectorKind::mode1);
    for (const int mode : {0, 3, 0x11, 0xFF}) {
        sector[15] = static_cast<std::uint8_t>(mode);
        EXPECT_EQ(kind_of(sector), SectorKind::other) << mode;
    }
    for (std::size_t k = 0; k < 12; ++k) {
        sector = make_sector(0, UserData{});
        sector[k] ^= 0x10;
        EXPECT_EQ(kind_of(sector), SectorKind::other) << k;
    }
}

TEST(Sector, EdcIsTheRestOfTheDivision) {
    for (std::uint32_t seed = 0; seed < 20; ++seed) {
        const RawSector sector = make_sector(seed * 7919, random_user_data(seed));
        EXPECT_EQ(stored_edc(sector), edc_by_division(sector));
    }
    const RawSector zeros = make_sector(0, UserData{});
    EXPECT_EQ(stored_edc(zeros), edc_by_division(zeros));
    EXPECT_NE(stored_edc(zeros), 0U);  // the sub-header is not zero
}

TEST(Sector, SyndromesOfAllParityWordsVanish) {
    for (std::uint32_t seed = 0; seed < 10; ++seed) {
        const RawSector sector = make_sector(seed * 40009, random_user_data(seed));
        for (std::size_t lane = 0; lane < 2; ++lane) {
            for (std::size_t column = 0; column < 43; ++column)
                EXPECT_TRUE(syndromes(sector, p_word(column, lane)).zero()) << column;
            for (std::size_t diagonal = 0; diagonal < 26; ++diagonal)
                EXPECT_TRUE(syndromes(sector, q_word(diagonal, lane)).zero()) << diagonal;
        }
    }
}

// Every byte behind the header lies in exactly one P word up to the Q parity, and in exactly one Q word.
TEST(Sector, ParityWordsCoverTheSector) {
    std::vector<int> p_count(2340);
    std::vector<int> q_count(2340);
    for (std::size_t lane = 0; lane < 2; ++lane) {
        for (std::size_t column = 0; column < 43; ++column)
            for (const std::size_t index : p_word(column, lane)) ++p_count[index];
        for (std::size_t diagonal = 0; diagonal < 26; ++diagonal)
            for (const std::size_t index : q_word(diagonal, lane)) ++q_count[index];
    }
    for (std::size_t index = 0; index < 2340; ++index) {
        EXPECT_EQ(p_count[index], index < 2236 ? 1 : 0) << index;
        EXPECT_EQ(q_count[index], 1) << index;
    }
}

TEST(Sector, SyndromesFindASingleWrongByte) {
    RawSector sector = make_sector(12, random_user_data(5));
    sector[1000] ^= 0x40;
    const std::size_t index = 1000 - 12;
    const std::size_t column = index / 2 % 43;
    const std::size_t row = index / 86;
    const Syndromes found = syndromes(sector, p_word(column, index % 2));
    EXPECT_EQ(found.sum, 0x40U);
    unsigned weighted = found.sum;
    for (std::size_t k = row; k < 25; ++k) weighted = multiply(weighted, 2);
    EXPECT_EQ(found.weighted, weighted);
}

TEST(Sector, AMovedSectorKeepsItsChecks) {
    const UserData user = random_user_data(9);
    const RawSector here = make_sector(0, user);
    const RawSector there = make_sector(123456, user);
    EXPECT_FALSE(std::equal(here.begin(), here.begin() + 16, there.begin()));
    EXPECT_TRUE(std::equal(here.begin() + 16, here.end(), there.begin() + 16));
}

TEST(Sector, MadeSectorsFit) {
    EXPECT_FALSE(bad_fields(16, make_sector(0, UserData{})).any());
    for (std::uint32_t seed = 0; seed < 50; ++seed)
        EXPECT_FALSE(bad_fields(16, make_sector(seed * 8999, random_user_data(seed))).any());
}

}  // namespace

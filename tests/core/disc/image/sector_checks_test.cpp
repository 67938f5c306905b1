#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

#include "disc/image/sector.h"
#include "support/sectors.h"

namespace kalco {
namespace {

using test::random_sector;
using test::sector_of;

constexpr std::int64_t first_data_sector = system_area_sectors;
constexpr CheckFields all_fit{};

std::uint32_t crc32(std::span<const std::uint8_t> bytes) {
    std::uint32_t crc = 0xFFFFFFFFU;
    for (const std::uint8_t byte : bytes) {
        crc ^= byte;
        for (int bit = 0; bit < 8; ++bit) crc = (crc >> 1) ^ ((crc & 1U) != 0 ? 0xEDB88320U : 0U);
    }
    return ~crc;
}

std::vector<std::uint8_t> bytes_of(const RawSector& sector, std::size_t from, std::size_t count) {
    return {sector.begin() + static_cast<std::ptrdiff_t>(from),
            sector.begin() + static_cast<std::ptrdiff_t>(from + count)};
}

using Bytes = std::vector<std::uint8_t>;

/// A ramp that begins anew with the user data, at byte 16 or 24.
auto ramp(int bytes_before) {
    return [next = -bytes_before]() mutable { return static_cast<std::uint8_t>(next++); };
}
auto same(std::uint8_t byte) {
    return [byte] { return byte; };
}

TEST(SectorChecks, KnownForm1Sectors) {
    struct Case {
        RawSector sector;
        Bytes edc;
        std::uint32_t parities;
    };
    for (const Case& c : {Case{sector_of(SectorKind::form1, same(0x00)), {0x0B, 0x88, 0x81, 0x94}, 0x181BBBFD},
                          Case{sector_of(SectorKind::form1, ramp(8)), {0xE9, 0x0C, 0xD0, 0x59}, 0xF4C6D15B},
                          Case{sector_of(SectorKind::form1, same(0xFF)), {0xF5, 0x38, 0xF0, 0x68}, 0x8BE31E64}}) {
        EXPECT_EQ(bytes_of(c.sector, 2072, 4), c.edc);
        EXPECT_EQ(crc32(bytes_of(c.sector, 2076, 276)), c.parities);
        EXPECT_EQ(bad_fields(first_data_sector, c.sector), all_fit);
    }
}

TEST(SectorChecks, KnownMode1Sector) {
    const RawSector sector = sector_of(SectorKind::mode1, ramp(0));
    EXPECT_EQ(bytes_of(sector, 2064, 12), (Bytes{0x27, 0x97, 0x39, 0xE6, 0, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(crc32(bytes_of(sector, 2076, 276)), 0xBAD11F34U);
    EXPECT_EQ(bad_fields(first_data_sector, sector), all_fit);
}

TEST(SectorChecks, KnownForm2Sector) {
    const RawSector sector = sector_of(SectorKind::form2, ramp(8));
    EXPECT_EQ(bytes_of(sector, 2348, 4), (Bytes{0x73, 0x49, 0x75, 0xD6}));
    EXPECT_EQ(sector[2347], static_cast<std::uint8_t>(2347 - 24));
    EXPECT_EQ(bad_fields(first_data_sector, sector), all_fit);
}

TEST(SectorChecks, RenewalChangesTheCheckFieldsAlone) {
    std::mt19937 random(1);
    for (const SectorKind kind : {SectorKind::mode1, SectorKind::form1, SectorKind::form2, SectorKind::other}) {
        for (int round = 0; round < 30; ++round) {
            const RawSector valid = random_sector(kind, random);
            RawSector renewed = valid;
            renew_checks(renewed);
            EXPECT_EQ(renewed, valid);
            // Junk in the check fields goes; the header, also an impossible one, and the user data stay.
            RawSector junk = valid;
            for (std::size_t k = kind == SectorKind::mode1   ? layout::mode1_edc
                                 : kind == SectorKind::form1 ? layout::form1_edc
                                                             : layout::form2_edc;
                 k < junk.size(); ++k) {
                if (kind != SectorKind::mode1 || k < 2068 || k >= 2076)
                    junk[k] = static_cast<std::uint8_t>(random() | 1U);
            }
            renewed = junk;
            renew_checks(renewed);
            EXPECT_EQ(renewed, kind == SectorKind::other ? junk : valid);
        }
    }
}

TEST(SectorChecks, AHeaderIsNeverRewritten) {
    std::mt19937 random(2);
    for (const SectorKind kind : {SectorKind::mode1, SectorKind::form1, SectorKind::form2}) {
        RawSector sector = random_sector(kind, random);
        sector[12] = 0xFF;
        sector[13] = 0x99;
        sector[1000] ^= 0x01;
        RawSector renewed = sector;
        renew_checks(renewed);
        EXPECT_TRUE(std::equal(sector.begin(), sector.begin() + 2064, renewed.begin()));
        EXPECT_EQ(bad_fields(first_data_sector, renewed), all_fit);
    }
}

TEST(SectorChecks, TheAddressCountsInMode1Alone) {
    std::mt19937 random(3);
    RawSector sector = random_sector(SectorKind::form1, random);
    sector[13] ^= 0x01;
    EXPECT_EQ(bad_fields(first_data_sector, sector), all_fit);
    sector = random_sector(SectorKind::mode1, random);
    sector[13] ^= 0x01;
    EXPECT_EQ(bad_fields(first_data_sector, sector), (CheckFields{true, true, true}));
}

// The bytes behind the EDC of Mode 1 are part of both parities; whatever they hold stays.
TEST(SectorChecks, TheGapOfMode1IsCoveredAndStays) {
    RawSector sector = sector_of(SectorKind::mode1, ramp(0));
    sector[2070] = 7;
    EXPECT_EQ(bad_fields(first_data_sector, sector), (CheckFields{false, true, true}));
    renew_checks(sector);
    EXPECT_EQ(sector[2070], 7);
    EXPECT_EQ(bad_fields(first_data_sector, sector), all_fit);
}

// What is bad follows from what covers what: a field is compared with what the renewal would write.
TEST(SectorChecks, EverySingleBitErrorIsFoundAndNamed) {
    std::mt19937 random(4);
    RawSector sector = random_sector(SectorKind::form1, random);
    for (std::size_t k = 16; k < sector.size(); ++k) {
        for (unsigned bit = 0; bit < 8; ++bit) {
            const auto flip = static_cast<std::uint8_t>(1U << bit);
            sector[k] ^= flip;
            if (!(k == 18 && flip == layout::form2_bit)) {
                const CheckFields expected = k < 2072   ? CheckFields{true, true, true}
                                             : k < 2076 ? CheckFields{true, false, false}
                                             : k < 2248 ? CheckFields{false, true, false}
                                                        : CheckFields{false, false, true};
                ASSERT_EQ(bad_fields(first_data_sector, sector), expected) << k << ' ' << bit;
            }
            sector[k] ^= flip;
        }
    }
    EXPECT_EQ(bad_fields(first_data_sector, sector), all_fit);
}

TEST(SectorChecks, EverySingleBitErrorOfForm2IsFound) {
    std::mt19937 random(5);
    RawSector sector = random_sector(SectorKind::form2, random);
    for (std::size_t k = 16; k < sector.size(); ++k) {
        for (unsigned bit = 0; bit < 8; ++bit) {
            const auto flip = static_cast<std::uint8_t>(1U << bit);
            if (k == 18 && flip == layout::form2_bit) continue;
            sector[k] ^= flip;
            ASSERT_EQ(bad_fields(first_data_sector, sector), (CheckFields{true, false, false})) << k << ' ' << bit;
            sector[k] ^= flip;
        }
    }
}

TEST(SectorChecks, AZeroEdcOfForm2IsAbsent) {
    std::mt19937 random(6);
    RawSector sector = random_sector(SectorKind::form2, random);
    std::fill(sector.begin() + 2348, sector.end(), std::uint8_t{0});
    for (const std::int64_t number : {0, 15, 16, 2403}) EXPECT_EQ(bad_fields(number, sector), all_fit);
    const RawSector before = sector;
    renew_checks(sector);
    EXPECT_EQ(sector, before);
    sector[2351] = 1;
    EXPECT_EQ(bad_fields(3, sector), (CheckFields{true, false, false}));
}

TEST(SectorChecks, AZeroEdcInTheSystemAreaIsAbsent) {
    std::mt19937 random(7);
    for (const SectorKind kind : {SectorKind::mode1, SectorKind::form1}) {
        RawSector sector = random_sector(kind, random);
        const auto edc = sector.begin() + (kind == SectorKind::mode1 ? 2064 : 2072);
        std::fill_n(edc, 4, std::uint8_t{0});
        sector[2100] ^= 0x55;
        sector[2300] ^= 0x55;
        EXPECT_EQ(bad_fields(0, sector), all_fit);
        EXPECT_EQ(bad_fields(15, sector), all_fit);
        EXPECT_EQ(bad_fields(16, sector), (CheckFields{true, true, true}));
        // Any other EDC there is looked at, and the parities with it.
        edc[3] = 1;
        EXPECT_EQ(bad_fields(15, sector), (CheckFields{true, true, true}));
        renew_checks(sector);
        EXPECT_EQ(bad_fields(15, sector), all_fit);
    }
}

TEST(SectorChecks, OtherSectorsPass) {
    std::mt19937 random(8);
    EXPECT_EQ(bad_fields(first_data_sector, random_sector(SectorKind::other, random)), all_fit);
    EXPECT_EQ(bad_fields(first_data_sector, RawSector{}), all_fit);
    RawSector sector = random_sector(SectorKind::form1, random);
    sector[15] = 0;
    EXPECT_EQ(bad_fields(first_data_sector, sector), all_fit);
}

}  // namespace
}  // namespace kalco

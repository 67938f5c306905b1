#include "work/edit.h"

#include <gtest/gtest.h>

#include <random>

#include "disc/image/file_error.h"
#include "support/memory_storage.h"
#include "support/sectors.h"

namespace kalco {
namespace {

constexpr std::int64_t sectors = 24;
constexpr std::int64_t edited = 20;

/// A disc of 24 sectors in memory, and an edit of it.
class EditTest : public testing::Test {
protected:
    EditTest() {
        for (std::int64_t k = 0; k < sectors; ++k) {
            disc.bytes += test::as_text(test::random_sector(SectorKind::form1, random));
        }
    }
    static ImagePos at(std::int64_t sector, std::size_t offset) {
        return sector * sector_bytes + static_cast<ImagePos>(offset) + 1;
    }
    RawSector sector(std::int64_t number) const {
        RawSector bytes{};
        std::copy_n(disc.bytes.begin() + number * sector_bytes, sector_bytes, bytes.begin());
        return bytes;
    }
    void put(std::int64_t number, const RawSector& sector) { disc.put(at(number, 0), test::as_text(sector)); }

    /// Writes the bytes into sector 20, or another one, and commits.
    void edit(std::size_t offset, const std::string& bytes, std::int64_t number = edited) {
        Edit edit("disc.bin", false, test::opener_of(disc));
        edit.image().open(edit.path());
        edit.image().write(at(number, offset), bytes);
        edit.commit("test");
    }

    std::mt19937 random{1};
    test::Disc disc;
};

TEST_F(EditTest, RenewsWhatFittedBefore) {
    for (const SectorKind kind : {SectorKind::mode1, SectorKind::form1, SectorKind::form2}) {
        put(edited, test::random_sector(kind, random));
        RawSector expected = sector(edited);
        for (std::size_t k = 0; k < 5; ++k) expected[100 + k] = static_cast<std::uint8_t>("FIELD"[k]);
        renew_checks(expected);
        const std::string before = disc.bytes;
        edit(100, "FIELD");
        EXPECT_EQ(sector(edited), expected);
        disc.put(at(edited, 0), before.substr(edited * sector_bytes, sector_bytes));
        EXPECT_EQ(disc.bytes, before) << "another sector has changed";
    }
}

TEST_F(EditTest, LeavesTheFieldsOfASectorThatDidNotFit) {
    for (const std::size_t wrong : {500U, 2073U, 2100U, 2300U}) {
        RawSector bytes = test::random_sector(SectorKind::form1, random);
        bytes[wrong] ^= 0x10;
        put(edited, bytes);
        edit(100, "FIELD");
        for (std::size_t k = 0; k < 5; ++k) bytes[100 + k] = static_cast<std::uint8_t>("FIELD"[k]);
        EXPECT_EQ(sector(edited), bytes) << wrong;
    }
}

TEST_F(EditTest, LeavesOtherSectorsAsWritten) {
    RawSector bytes = test::random_sector(SectorKind::other, random);
    put(edited, bytes);
    edit(2, "FIELD");
    for (std::size_t k = 0; k < 5; ++k) bytes[2 + k] = static_cast<std::uint8_t>("FIELD"[k]);
    EXPECT_EQ(sector(edited), bytes);
}

// Filling in what was left out would change what some games look at.
TEST_F(EditTest, AnEdcThatWasLeftOutStaysSo) {
    RawSector bytes = test::random_sector(SectorKind::form1, random);
    std::fill_n(bytes.begin() + layout::form1_edc, layout::edc_bytes, std::uint8_t{0});
    put(3, bytes);
    edit(100, "FIELD", 3);
    for (std::size_t k = 0; k < 5; ++k) bytes[100 + k] = static_cast<std::uint8_t>("FIELD"[k]);
    EXPECT_EQ(sector(3), bytes);

    bytes = test::random_sector(SectorKind::form2, random);
    std::fill_n(bytes.begin() + layout::form2_edc, layout::edc_bytes, std::uint8_t{0});
    put(edited, bytes);
    edit(100, "FIELD");
    for (std::size_t k = 0; k < 5; ++k) bytes[100 + k] = static_cast<std::uint8_t>("FIELD"[k]);
    EXPECT_EQ(sector(edited), bytes);
}

TEST_F(EditTest, TellsAllThatChanges) {
    const std::string before = disc.bytes;
    Edit edit("disc.bin", false, test::opener_of(disc));
    edit.image().open(edit.path());
    edit.image().write(at(edited, 100), "FIELD");
    edit.image().write(at(2, 2071), "a");
    edit.image().write(at(3, 24), "b");
    // Parities alone: they are renewed to what they were.
    edit.image().write(at(5, 2300), "parities");
    const std::vector<SectorChange> changes = edit.settle();
    ASSERT_EQ(changes.size(), 3U);
    EXPECT_EQ(changes[0].sector, 2);
    EXPECT_EQ(changes[1].sector, 3);
    EXPECT_EQ(changes[2].sector, edited);
    EXPECT_EQ(changes[2].before, before.substr(edited * sector_bytes, sector_bytes));
    EXPECT_EQ(disc.bytes, before);
    EXPECT_EQ(edit.settle(), changes);
    edit.commit("test");
    EXPECT_EQ(disc.bytes.substr(edited * sector_bytes, sector_bytes), changes[2].after);
    EXPECT_FALSE(bad_fields(edited, sector(edited)).any());
}

TEST_F(EditTest, WritesNothingInADryRun) {
    const std::string before = disc.bytes;
    Edit edit("disc.bin", true, test::opener_of(disc));
    edit.image().open(edit.path());
    edit.image().write(at(edited, 100), "FIELD");
    EXPECT_EQ(edit.settle().size(), 1U);
    edit.commit("test");
    EXPECT_EQ(disc.bytes, before);
    EXPECT_EQ(disc.writes, 0);
}

TEST_F(EditTest, WritesNothingWithoutACommit) {
    const std::string before = disc.bytes;
    {
        Edit edit("disc.bin", false, test::opener_of(disc));
        edit.image().open(edit.path());
        edit.image().write(at(edited, 100), "FIELD");
    }
    EXPECT_EQ(disc.bytes, before);
    EXPECT_EQ(disc.writes, 0);
    EXPECT_FALSE(disc.held);
}

TEST_F(EditTest, WritesNothingWhenNothingChanges) {
    edit(100, disc.bytes.substr(edited * sector_bytes + 100, 50));
    EXPECT_EQ(disc.writes, 0);
    EXPECT_EQ(disc.flushes, 0);
}

TEST_F(EditTest, KeepsTheLength) {
    const std::string before = disc.bytes;
    EXPECT_THROW(edit(2350, "abc", sectors - 1), FileError);
    EXPECT_THROW(edit(0, "abc", sectors + 10), FileError);
    EXPECT_EQ(disc.bytes, before);
    EXPECT_EQ(disc.writes, 0);
}

}  // namespace
}  // namespace kalco

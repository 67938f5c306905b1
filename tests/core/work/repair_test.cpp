#include "work/repair.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <random>

#include "core/disc/image/saved_image.h"
#include "disc/image/file_error.h"
#include "support/memory_storage.h"
#include "support/sectors.h"
#include "work/edit.h"

namespace kalco {
namespace {

using test::all_kinds;
using test::CallFault;
using test::FakeFiles;
using test::image_name;
using test::journal_name;

void no_progress(std::int64_t) {}

std::string text_of(const std::vector<RawSector>& disc) {
    std::string bytes;
    for (const RawSector& sector : disc) bytes += test::as_text(sector);
    return bytes;
}

/// What a repair of the sectors leaves in memory.
Repair repaired(test::Disc& disc, const SectorChoice& choice = {}) {
    Edit edit("disc.bin", false, test::opener_of(disc));
    edit.image().open(edit.path());
    Repair repair = repair_image(edit.image(), choice, no_progress);
    edit.commit("test");
    return repair;
}

/// Valid sectors of all kinds.
std::vector<RawSector> valid_disc(std::int64_t sectors, std::mt19937& random) {
    std::vector<RawSector> disc;
    for (std::int64_t k = 0; k < sectors; ++k) disc.push_back(test::random_sector(all_kinds[random() % 4], random));
    return disc;
}

// What lies in the check fields is lost in any case; what they check is as it is.
TEST(Repair, MakesEverySectorFitAndChangesNothingElse) {
    std::mt19937 random(1);
    for (int round = 0; round < 5; ++round) {
        std::vector<RawSector> sectors = valid_disc(200, random);
        std::vector<RawSector> expected = sectors;
        std::vector<std::int64_t> bad;
        for (std::size_t k = 0; k < sectors.size(); ++k) {
            if (random() % 3 != 0) continue;
            RawSector& sector = sectors[k];
            for (auto errors = 1 + random() % 9; errors > 0; --errors) {
                const std::size_t place = 24 + random() % 2328;
                sector[place] = static_cast<std::uint8_t>(random() | 1U);
            }
            expected[k] = sector;
            if (k < 16 || !bad_fields(static_cast<std::int64_t>(k), sector).any()) continue;
            bad.push_back(static_cast<std::int64_t>(k));
            renew_checks(expected[k]);
        }
        test::Disc disc{text_of(sectors)};
        const Repair repair = repaired(disc);
        EXPECT_TRUE(disc.bytes == text_of(expected));
        std::vector<std::int64_t> renewed;
        for (const check::BadSector& one : repair.renewed) renewed.push_back(one.sector);
        EXPECT_EQ(renewed, bad);
        EXPECT_EQ(repair.summary.bad, static_cast<std::int64_t>(bad.size()));
        EXPECT_EQ(repair.summary.sectors, 200);

        disc.writes = disc.flushes = 0;
        EXPECT_TRUE(repaired(disc).renewed.empty());
        EXPECT_EQ(disc.writes, 0);
        EXPECT_EQ(disc.flushes, 0);
    }
}

TEST(Repair, LeavesTheSystemArea) {
    std::mt19937 random(2);
    std::vector<RawSector> sectors;
    for (int k = 0; k < 17; ++k) {
        RawSector sector = test::random_sector(SectorKind::form1, random);
        sector[2100] ^= 1;
        if (k < 8) std::fill_n(sector.begin() + layout::form1_edc, layout::edc_bytes, std::uint8_t{0});
        sectors.push_back(sector);
    }
    test::Disc disc{text_of(sectors)};
    const Repair repair = repaired(disc);
    EXPECT_EQ(repair.renewed, (std::vector<check::BadSector>{{16, {false, true, false}}}));
    renew_checks(sectors[16]);
    EXPECT_TRUE(disc.bytes == text_of(sectors));
}

TEST(Repair, LeavesHeadersAndWhatHasNoEdc) {
    std::mt19937 random(3);
    std::vector<RawSector> sectors = valid_disc(16, random);
    RawSector wrong_header = test::random_sector(SectorKind::form1, random);
    wrong_header[12] = 0xAA;
    wrong_header[300] ^= 1;
    sectors.push_back(wrong_header);
    RawSector without = test::random_sector(SectorKind::form2, random);
    without[300] ^= 1;
    std::fill_n(without.begin() + layout::form2_edc, layout::edc_bytes, std::uint8_t{0});
    sectors.push_back(without);
    test::Disc disc{text_of(sectors)};
    EXPECT_EQ(repaired(disc).renewed, (std::vector<check::BadSector>{{16, {true, true, true}}}));
    renew_checks(sectors[16]);
    EXPECT_EQ(sectors[16][12], 0xAA);
    EXPECT_TRUE(disc.bytes == text_of(sectors));
}

TEST(Repair, LooksAtTheChosenSectorsAlone) {
    std::mt19937 random(4);
    std::vector<RawSector> sectors = valid_disc(16, random);
    for (int k = 0; k < 4; ++k) {
        sectors.push_back(test::random_sector(SectorKind::mode1, random));
        sectors.back()[2249] ^= 1;
    }
    test::Disc disc{text_of(sectors)};
    const std::vector<int> choice{5, 17, 19};
    const Repair repair = repaired(disc, choice);
    EXPECT_EQ(repair.renewed, (std::vector<check::BadSector>{{17, {false, false, true}}, {19, {false, false, true}}}));
    EXPECT_EQ(repair.summary.sectors, 3);
    for (const std::size_t k : {17U, 19U}) renew_checks(sectors[k]);
    EXPECT_TRUE(disc.bytes == text_of(sectors));
}

/// A disc of which a repair renews three sectors, on the fake file system.
class RepairFaults : public testing::Test {
protected:
    RepairFaults() {
        std::mt19937 random(5);
        std::vector<RawSector> sectors = valid_disc(16, random);
        for (int k = 0; k < 6; ++k) sectors.push_back(test::random_sector(SectorKind::form1, random));
        for (const std::size_t k : {16U, 18U, 21U}) sectors[k][500] ^= 0xFF;
        before = text_of(sectors);
        for (const std::size_t k : {16U, 18U, 21U}) renew_checks(sectors[k]);
        after = text_of(sectors);
        files.put(image_name, before);
        EXPECT_EQ(run(0, {}), Ended::told_saved);
        EXPECT_EQ(files.bytes(image_name), after);
        calls = static_cast<int>(files.log().size());
        const auto removal = std::find(files.log().begin(), files.log().end(), std::string("remove ") + journal_name);
        removal_of_journal = static_cast<int>(removal - files.log().begin()) + 1;
        EXPECT_LT(removal_of_journal, calls);
        EXPECT_GT(calls, 25);
    }

    enum class Ended { told_saved, error, killed };

    /// Everything that a repair does, from the opening on, with a fault at one of its calls.
    Ended run(int call, CallFault fault) {
        files.plan(call, fault);
        try {
            Edit edit(image_name, false, test::opener_on(files, Failures::Kind::file));
            edit.image().open(edit.path());
            repair_image(edit.image(), {}, no_progress);
            edit.commit("test");
            return Ended::told_saved;
        } catch (const FileError&) {
            return Ended::error;
        } catch (const test::Killed&) {
            return Ended::killed;
        }
    }
    void start_anew() {
        files = FakeFiles();
        files.put(image_name, before);
    }

    FakeFiles files;
    std::string before;
    std::string after;
    int calls = 0;
    int removal_of_journal = 0;
};

TEST_F(RepairFaults, AFailureAtAnyCallLeavesTheOldImage) {
    for (int call = 1; call <= calls; ++call) {
        for (const int code : {EIO, ENOSPC}) {
            start_anew();
            EXPECT_EQ(run(call, {CallFault::Kind::fails, code}), Ended::error) << call;
            // Without its journal the save stands, whatever comes.
            const std::string& expected = call > removal_of_journal ? after : before;
            EXPECT_TRUE(files.bytes(image_name) == expected) << call << " of " << calls;
            EXPECT_TRUE(test::after_next_opening(files) == expected) << call;
        }
    }
}

TEST_F(RepairFaults, AKillAtAnyCallLeavesTheOldOrTheNewImage) {
    int old_ones = 0;
    int new_ones = 0;
    for (int call = 1; call <= calls; ++call) {
        for (const auto kind : {CallFault::Kind::killed_before, CallFault::Kind::killed_after}) {
            for (const bool machine_stops : {false, true}) {
                start_anew();
                EXPECT_EQ(run(call, {kind, 0}), Ended::killed);
                std::mt19937 chance(static_cast<unsigned>(call));
                if (machine_stops) files.stop_machine(&chance);
                files.plan(0);
                const std::string left = test::after_next_opening(files);
                (left == before ? old_ones : new_ones) += 1;
                EXPECT_TRUE(left == before || left == after) << call;
                // Made again, it is done.
                EXPECT_EQ(run(0, {}), Ended::told_saved);
                EXPECT_TRUE(files.bytes(image_name) == after);
                EXPECT_FALSE(files.has(journal_name));
            }
        }
    }
    EXPECT_GT(old_ones, 0);
    EXPECT_GT(new_ones, 0);
}

}  // namespace
}  // namespace kalco

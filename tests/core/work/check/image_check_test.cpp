#include "work/check/image_check.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <stdexcept>

#include "support/sectors.h"

namespace kalco::check {
namespace {

using test::all_kinds;

/// Sectors in memory, and what is told of them.
class ImageCheck : public testing::Test {
protected:
    void add(const RawSector& sector) { bytes.insert(bytes.end(), sector.begin(), sector.end()); }
    std::int64_t count() const { return static_cast<std::int64_t>(bytes.size()) / sector_bytes; }
    SectorView sector(std::int64_t number) const {
        return std::span(bytes).subspan(static_cast<std::size_t>(number * sector_bytes)).first<sector_bytes>();
    }
    ReadSectors reader() const {
        return [this](std::int64_t first, std::span<std::uint8_t> to) {
            const auto from = static_cast<std::size_t>(first * sector_bytes);
            ASSERT_LE(from + to.size(), bytes.size());
            std::copy_n(bytes.begin() + static_cast<std::ptrdiff_t>(from), to.size(), to.begin());
        };
    }
    Listener listener() {
        return {[this](const BadSector& bad) { told.push_back(bad); },
                [this](std::int64_t done) { progress.push_back(done); }};
    }
    /// Of all kinds, one in three with an error in its last bytes.
    void add_random(std::int64_t sectors) {
        for (std::int64_t k = 0; k < sectors; ++k) {
            RawSector sector = test::random_sector(all_kinds[random() % 4], random);
            if (random() % 3 == 0) sector[16 + random() % 2336] ^= static_cast<std::uint8_t>(1U << random() % 8);
            add(sector);
        }
    }
    std::vector<BadSector> expected() const {
        std::vector<BadSector> result;
        for (std::int64_t number = 0; number < count(); ++number) {
            if (const CheckFields bad = bad_fields(number, sector(number)); bad.any()) result.push_back({number, bad});
        }
        return result;
    }

    std::mt19937 random{1};
    std::vector<std::uint8_t> bytes;
    std::vector<BadSector> told;
    std::vector<std::int64_t> progress;
};

TEST_F(ImageCheck, FindsWhatThePlainWayFinds) {
    add_random(300);
    const std::vector<BadSector> bad = expected();
    ASSERT_GT(bad.size(), 30U);
    for (const EdcMethod& edc : edc_methods()) {
        for (const ParityMethod& parities : parity_methods()) {
            told.clear();
            const Summary summary = check_all(count(), reader(), listener(), 1, {edc.fits, parities.fit});
            EXPECT_EQ(told, bad) << edc.name << ", " << parities.name;
            EXPECT_EQ(summary.sectors, 300);
            EXPECT_EQ(summary.bad, static_cast<std::int64_t>(bad.size()));
            for (const SectorKind kind : all_kinds) {
                std::int64_t of_kind = 0;
                for (std::int64_t k = 0; k < count(); ++k) of_kind += kind_of(sector(k)) == kind ? 1 : 0;
                EXPECT_EQ(summary.of_kind[static_cast<std::size_t>(kind)], of_kind);
            }
        }
    }
}

TEST_F(ImageCheck, TellsInOrderWithAnyNumberOfThreads) {
    for (int k = 0; k < 1000; ++k) {
        RawSector sector{};
        std::copy(layout::sync_pattern.begin(), layout::sync_pattern.end(), sector.begin());
        sector[layout::mode] = 2;
        sector[layout::sub_mode] = layout::form2_bit;
        if (k % 7 == 0) sector[2351] = 1;
        add(sector);
    }
    for (const unsigned threads : {1U, 2U, 3U, 8U, 0U}) {
        told.clear();
        progress.clear();
        const Summary summary = check_all(count(), reader(), listener(), threads);
        EXPECT_EQ(summary.bad, 143);
        EXPECT_EQ(told.size(), 143U);
        for (std::size_t k = 0; k < told.size(); ++k) EXPECT_EQ(told[k].sector, static_cast<std::int64_t>(7 * k));
        EXPECT_EQ(progress.size(), 16U);
        EXPECT_TRUE(std::is_sorted(progress.begin(), progress.end()));
        EXPECT_EQ(progress.back(), 1000);
    }
}

TEST_F(ImageCheck, LooksAtSomeSectorsAlone) {
    add_random(60);
    for (std::int64_t k = 0; k < count(); ++k) bytes[static_cast<std::size_t>(k * sector_bytes)] = 0;
    std::vector<int> numbers{3, 17, 18, 40, 59};
    std::vector<BadSector> bad;
    for (const BadSector& one : expected()) {
        if (std::find(numbers.begin(), numbers.end(), one.sector) != numbers.end()) bad.push_back(one);
    }
    const Summary summary = check_these(numbers, reader(), listener());
    EXPECT_EQ(told, bad);
    EXPECT_EQ(summary.sectors, 5);
    EXPECT_EQ(summary.bad, static_cast<std::int64_t>(bad.size()));
    EXPECT_EQ(progress, (std::vector<std::int64_t>{1, 2, 3, 4, 5}));
}

TEST_F(ImageCheck, AudioInTheMiddleStopsNothing) {
    RawSector broken = test::random_sector(SectorKind::form1, random);
    broken[2100] ^= 1;
    for (int k = 0; k < 100; ++k) add(test::random_sector(SectorKind::form1, random));
    for (int k = 0; k < 100; ++k) add(test::random_sector(SectorKind::other, random));
    add(broken);
    const Summary summary = check_all(count(), reader(), listener(), 2);
    EXPECT_EQ(told, (std::vector<BadSector>{{200, {false, true, false}}}));
    EXPECT_EQ(summary.of_kind, (std::array<std::int64_t, 4>{0, 101, 0, 100}));
}

TEST_F(ImageCheck, AnEmptyImageHasNoBadSector) {
    const Summary summary = check_all(0, reader(), listener());
    EXPECT_EQ(summary.sectors, 0);
    EXPECT_EQ(summary.bad, 0);
    EXPECT_TRUE(told.empty());
}

// The sector that can't be read is behind four blocks that can; the fifth and later ones say nothing.
TEST_F(ImageCheck, ThrowsOnWhatCannotBeReadInItsTurn) {
    RawSector broken = test::random_sector(SectorKind::form2, random);
    broken[100] ^= 1;
    for (int k = 0; k < 640; ++k) add(broken);
    for (const unsigned threads : {1U, 4U}) {
        told.clear();
        const auto read = [this](std::int64_t first, std::span<std::uint8_t> to) {
            if (first >= 256) throw std::runtime_error("sector " + std::to_string(first));
            reader()(first, to);
        };
        try {
            check_all(count(), read, listener(), threads);
            ADD_FAILURE() << "nothing was thrown";
        } catch (const std::runtime_error& failure) {
            EXPECT_STREQ(failure.what(), "sector 256");
        }
        EXPECT_EQ(told.size(), 256U);
    }
}

TEST_F(ImageCheck, EndsWhenTheListenerThrows) {
    RawSector broken = test::random_sector(SectorKind::form2, random);
    broken[100] ^= 1;
    for (int k = 0; k < 640; ++k) add(broken);
    for (const unsigned threads : {1U, 4U}) {
        int heard = 0;
        const Listener listener{[&heard](const BadSector&) {
            if (++heard == 70) throw std::runtime_error("enough");
        }};
        EXPECT_THROW(check_all(count(), reader(), listener, threads), std::runtime_error);
        EXPECT_EQ(heard, 70);
    }
}

// Sector numbers and positions beyond 32 bits; the bytes are made when they are asked for.
TEST_F(ImageCheck, CountsBeyondFourGigabytes) {
    constexpr std::int64_t sectors = 2200000;  // 5.2 GB
    RawSector broken = test::random_sector(SectorKind::form1, random);
    broken[2300] ^= 1;
    const auto read = [&](std::int64_t first, std::span<std::uint8_t> to) {
        if (first + static_cast<std::int64_t>(to.size()) / sector_bytes == sectors) {
            std::copy(broken.begin(), broken.end(), to.end() - sector_bytes);
        }
    };
    const Summary summary = check_all(sectors, read, listener(), 2);
    EXPECT_EQ(summary.sectors, sectors);
    EXPECT_EQ(told, (std::vector<BadSector>{{sectors - 1, {false, false, true}}}));
}

}  // namespace
}  // namespace kalco::check

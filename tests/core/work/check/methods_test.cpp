#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "disc/image/sector_layout.h"
#include "support/sectors.h"
#include "work/check/edc.h"
#include "work/check/parities.h"

// Every way to check a field against the plain renewal, on random sectors.
namespace kalco::check {
namespace {

using test::random_sector;

std::uint8_t random_byte(std::mt19937& random) {
    return static_cast<std::uint8_t>(random() & 0xFFU);
}

struct Stretch {
    SectorKind kind;
    std::size_t from, end;
};
/// What the EDC covers, with it.
constexpr Stretch stretches[] = {
    {SectorKind::mode1, 0, 2068}, {SectorKind::form1, 16, 2076}, {SectorKind::form2, 16, 2352}};

std::span<const std::uint8_t> part(const RawSector& sector, const Stretch& stretch) {
    return std::span(sector).subspan(stretch.from, stretch.end - stretch.from);
}

TEST(EdcMethods, AreTheOnesOfThisProcessor) {
    EXPECT_EQ(edc_methods().front().name, "division");
#ifdef __x86_64__
    EXPECT_EQ(edc_methods().size(), __builtin_cpu_supports("pclmul") ? 2U : 1U);
#endif
}

TEST(EdcMethods, TakeWhatFits) {
    std::mt19937 random(1);
    for (const EdcMethod& method : edc_methods()) {
        for (const Stretch& stretch : stretches) {
            for (int round = 0; round < 100; ++round) {
                EXPECT_TRUE(method.fits(part(random_sector(stretch.kind, random), stretch))) << method.name;
            }
            EXPECT_TRUE(method.fits(part(RawSector{}, stretch))) << method.name;
        }
    }
}

TEST(EdcMethods, FindEverySingleBitError) {
    std::mt19937 random(2);
    for (const EdcMethod& method : edc_methods()) {
        for (const Stretch& stretch : stretches) {
            RawSector sector = random_sector(stretch.kind, random);
            for (std::size_t bit = 8 * stretch.from; bit < 8 * stretch.end; ++bit) {
                const auto flip = static_cast<std::uint8_t>(1U << bit % 8);
                sector[bit / 8] ^= flip;
                ASSERT_FALSE(method.fits(part(sector, stretch))) << method.name << ' ' << bit;
                sector[bit / 8] ^= flip;
            }
        }
    }
}

// What a method must not take for right is a stretch that differs by a multiple of its own polynomial alone.
TEST(EdcMethods, AgreeWithThePlainWayOnManyErrors) {
    std::mt19937 random(3);
    for (const EdcMethod& method : edc_methods()) {
        for (const Stretch& stretch : stretches) {
            const RawSector valid = random_sector(stretch.kind, random);
            const RawSector other = random_sector(stretch.kind, random);
            RawSector sum{};
            for (std::size_t k = 0; k < sum.size(); ++k) sum[k] = valid[k] ^ other[k];
            EXPECT_TRUE(method.fits(part(sum, stretch))) << method.name;
            for (int round = 0; round < 200; ++round) {
                RawSector broken = valid;
                for (auto errors = random() % 20; errors > 0; --errors) {
                    broken[stretch.from + random() % (stretch.end - stretch.from)] = random_byte(random);
                }
                EXPECT_EQ(method.fits(part(broken, stretch)), broken == valid) << method.name;
            }
        }
    }
}

ParityArea area(const RawSector& sector) {
    return std::span(sector).subspan<layout::parity_start>();
}

TEST(ParityMethods, AreTheOnesOfThisProcessor) {
    EXPECT_EQ(parity_methods().front().name, "16 bytes at once");
#ifdef __x86_64__
    EXPECT_EQ(parity_methods().size(), __builtin_cpu_supports("avx2") ? 2U : 1U);
#endif
}

TEST(ParityMethods, TakeWhatFits) {
    std::mt19937 random(4);
    for (const ParityMethod& method : parity_methods()) {
        DiagonalRows rows;
        for (int round = 0; round < 100; ++round) {
            EXPECT_TRUE(method.fit(area(random_sector(SectorKind::form1, random)), Header::counts_as_zero, rows));
            EXPECT_TRUE(method.fit(area(random_sector(SectorKind::mode1, random)), Header::counts, rows));
        }
    }
}

TEST(ParityMethods, LookAtTheHeaderWhereItCounts) {
    std::mt19937 random(5);
    for (const ParityMethod& method : parity_methods()) {
        DiagonalRows rows;
        EXPECT_FALSE(method.fit(area(random_sector(SectorKind::form1, random)), Header::counts, rows)) << method.name;
        EXPECT_FALSE(method.fit(area(random_sector(SectorKind::mode1, random)), Header::counts_as_zero, rows));
    }
}

TEST(ParityMethods, FindEverySingleBitError) {
    std::mt19937 random(6);
    for (const ParityMethod& method : parity_methods()) {
        DiagonalRows rows;
        RawSector sector = random_sector(SectorKind::mode1, random);
        for (std::size_t bit = 8 * layout::parity_start; bit < 8 * sector.size(); ++bit) {
            const auto flip = static_cast<std::uint8_t>(1U << bit % 8);
            sector[bit / 8] ^= flip;
            ASSERT_FALSE(method.fit(area(sector), Header::counts, rows)) << method.name << ' ' << bit;
            sector[bit / 8] ^= flip;
        }
        EXPECT_TRUE(method.fit(area(sector), Header::counts, rows)) << method.name;
    }
}

std::uint8_t product(unsigned a, unsigned b) {
    unsigned result = 0;
    for (; b != 0; b >>= 1) {
        if ((b & 1U) != 0) result ^= a;
        a = (a << 1) ^ ((a & 0x80U) != 0 ? 0x11DU : 0);
    }
    return static_cast<std::uint8_t>(result);
}

/// A word of one of the codes: the offsets of its bytes in a sector, from front to back.
using Word = std::vector<std::size_t>;

Word column(std::size_t lane) {
    Word word;
    for (std::size_t row = 0; row < 26; ++row) word.push_back(12 + 86 * row + lane);
    return word;
}
Word diagonal(std::size_t lane) {
    Word word;
    for (std::size_t step = 0; step < 43; ++step)
        word.push_back(12 + 2 * ((43 * (lane / 2) + 44 * step) % 1118) + lane % 2);
    word.push_back(2248 + lane);
    word.push_back(2300 + lane);
    return word;
}

/// What a byte of a word is multiplied with in the weighted sum.
std::uint8_t weight(const Word& word, std::size_t place) {
    std::uint8_t result = 1;
    for (std::size_t k = place + 1; k < word.size(); ++k) result = product(result, 2);
    return result;
}

class HiddenErrors : public testing::Test {
protected:
    /// Every method finds the error that the word itself, or one of its two sums, can't see.
    void expect_found(const Word& word, const std::vector<std::size_t>& places,
                      const std::vector<std::uint8_t>& values) {
        RawSector broken = valid;
        for (std::size_t k = 0; k < places.size(); ++k) broken[word[places[k]]] ^= values[k];
        for (const ParityMethod& method : parity_methods()) {
            ASSERT_FALSE(method.fit(area(broken), Header::counts, rows)) << method.name << ' ' << word[0];
        }
    }
    /// `count` places of the word.
    std::vector<std::size_t> places(const Word& word, std::size_t count) {
        std::vector<std::size_t> all(word.size());
        for (std::size_t k = 0; k < all.size(); ++k) all[k] = k;
        std::shuffle(all.begin(), all.end(), random);
        all.resize(count);
        return all;
    }
    void expect_all_found(const Word& word) {
        const auto two = places(word, 2);
        expect_found(word, two, {0x35, 0x35});                                  // the plain sum vanishes
        expect_found(word, two, {weight(word, two[1]), weight(word, two[0])});  // the weighted one
        const auto three = places(word, 3);
        const std::uint8_t a = weight(word, three[0]);
        const std::uint8_t b = weight(word, three[1]);
        const std::uint8_t c = weight(word, three[2]);
        const auto sum = [](std::uint8_t x, std::uint8_t y) { return static_cast<std::uint8_t>(x ^ y); };
        expect_found(word, three, {sum(b, c), sum(a, c), sum(a, b)});  // both: the other code finds it
    }

    std::mt19937 random{7};
    RawSector valid = random_sector(SectorKind::mode1, random);
    DiagonalRows rows;
};

TEST_F(HiddenErrors, OfColumns) {
    for (std::size_t lane = 0; lane < 86; ++lane) expect_all_found(column(lane));
}

TEST_F(HiddenErrors, OfDiagonals) {
    for (std::size_t lane = 0; lane < 52; ++lane) expect_all_found(diagonal(lane));
}

// A sector that is not valid, then one that is: nothing stays behind in the rows.
TEST(ParityMethods, KeepNothingFromOneSectorToTheNext) {
    std::mt19937 random(8);
    const RawSector valid = random_sector(SectorKind::form1, random);
    RawSector full{};
    full.fill(0xFF);
    for (const ParityMethod& method : parity_methods()) {
        DiagonalRows rows;
        EXPECT_FALSE(method.fit(area(full), Header::counts, rows));
        EXPECT_TRUE(method.fit(area(valid), Header::counts_as_zero, rows));
        EXPECT_TRUE(method.fit(area(RawSector{}), Header::counts, rows));
    }
}

}  // namespace
}  // namespace kalco::check

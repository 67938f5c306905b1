#include "disc/image/journal_format.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "disc/image/crc32.h"

namespace kalco::journal {
namespace {

constexpr std::uint64_t number = 0x1122334455667788;

Reader reader_of(const std::string& bytes) {
    return Reader([bytes](std::int64_t offset, std::size_t count) {
        const auto start = static_cast<std::size_t>(offset);
        return start < bytes.size() ? bytes.substr(start, count) : std::string();
    });
}

std::string encoded(const Save& save, std::uint64_t random = number) {
    std::string bytes;
    encode(save, random, [&bytes](std::string_view blocks) { bytes += blocks; });
    return bytes;
}

std::string random_bytes(std::mt19937& random, std::size_t count) {
    std::string bytes(count, '\0');
    for (char& byte : bytes) byte = static_cast<char>(random());
    return bytes;
}

/// A save of `count` sectors of an image of ten and a half.
Save some_save(std::size_t count) {
    std::mt19937 random(static_cast<unsigned>(count));
    Save save;
    save.length_before = save.length_after = 10 * sector_bytes + 100;
    for (std::size_t k = 0; k < count; ++k) {
        const std::size_t bytes = k == 10 ? 100 : sector_bytes;
        save.sectors.push_back(
            {static_cast<std::int64_t>(k), random_bytes(random, bytes), random_bytes(random, bytes)});
    }
    return save;
}

Save save_that_grows() {
    return {"", {{0, "abc", "abXYZ"}}, 3, 5};
}

std::vector<SectorChange> sectors_of(const Reader& reader) {
    std::vector<SectorChange> sectors;
    reader.each([&sectors](const SectorChange& change) { sectors.push_back(change); });
    return sectors;
}

void put_checksum(std::string& block) {
    const std::uint32_t sum = crc32(std::string_view(block).substr(0, 508));
    for (std::size_t k = 0; k < 4; ++k) block[508 + k] = static_cast<char>(sum >> (8 * k));
}

/// One whole block with these contents.
std::string block_of(const std::string& contents) {
    std::string block("KLJ1\0\0\0\0\x88\x77\x66\x55\x44\x33\x22\x11", 16);
    block += contents;
    block.resize(block_bytes, '\0');
    put_checksum(block);
    return block;
}

std::string words(const std::vector<std::int64_t>& values) {
    std::string text;
    for (const std::int64_t value : values) {
        for (int k = 0; k < 8; ++k) text += static_cast<char>(value >> (8 * k));
    }
    return text;
}

TEST(Checksum, IsTheOneOfTheStandard) {
    EXPECT_EQ(crc32(""), 0U);
    EXPECT_EQ(crc32("123456789"), 0xCBF43926U);
    EXPECT_EQ(crc32("The quick brown fox jumps over the lazy dog"), 0x414FA339U);
    EXPECT_EQ(crc32(std::string(32, '\0')), 0x190A55ADU);
}

TEST(Journal, HoldsASave) {
    for (const std::size_t count : {0U, 1U, 2U, 9U, 11U}) {
        const Save save = some_save(count);
        const std::string bytes = encoded(save);
        EXPECT_EQ(bytes.size() % block_bytes, 0U);
        const Reader reader = reader_of(bytes);
        ASSERT_EQ(reader.state(), State::complete) << count;
        EXPECT_EQ(reader.lengths().before, save.length_before);
        EXPECT_EQ(reader.lengths().after, save.length_after);
        EXPECT_EQ(sectors_of(reader), save.sectors);
    }
    const Reader grown = reader_of(encoded(save_that_grows()));
    ASSERT_EQ(grown.state(), State::complete);
    EXPECT_EQ(grown.lengths().before, 3);
    EXPECT_EQ(grown.lengths().after, 5);
    EXPECT_EQ(sectors_of(grown), save_that_grows().sectors);
}

TEST(Journal, HasTheBytesThatItsTableTells) {
    const std::string contents = words({3, 5, 0}) + std::string("\x03\0\x05\0", 4) + "abc" + "abXYZ" + words({-1});
    EXPECT_EQ(encoded(save_that_grows()), block_of(contents));
}

TEST(Journal, ThatIsCutOffAnywhereWasNeverFinished) {
    const std::string bytes = encoded(some_save(2));
    for (std::size_t length = 0; length < bytes.size(); ++length) {
        ASSERT_EQ(reader_of(bytes.substr(0, length)).state(), State::unfinished) << length;
    }
}

TEST(Journal, ThatLacksBlocksWasNeverFinished) {
    const std::string bytes = encoded(some_save(1));
    const std::size_t blocks = bytes.size() / block_bytes;
    ASSERT_LT(blocks, 12U);
    for (std::size_t lost = 1; lost < 1U << blocks; ++lost) {
        std::string left = bytes;
        for (std::size_t block = 0; block < blocks; ++block) {
            if ((lost >> block & 1U) != 0) left.replace(block * block_bytes, block_bytes, block_bytes, '\0');
        }
        ASSERT_EQ(reader_of(left).state(), State::unfinished) << lost;
        ASSERT_TRUE(sectors_of(reader_of(left)).empty());
    }
}

TEST(Journal, WithAnyByteChangedIsNone) {
    const std::string bytes = encoded(some_save(1));
    for (std::size_t place = 0; place < bytes.size(); ++place) {
        std::string damaged = bytes;
        damaged[place] = static_cast<char>(damaged[place] ^ 0x10);
        ASSERT_EQ(reader_of(damaged).state(), State::foreign) << place;
    }
}

TEST(Journal, IsNotWhatOthersWrite) {
    for (const char* text : {"x", "KLJ2", "KLJ", "K", "KLJ1 was here", "a text\n"}) {
        const State expected = std::string("KLJ1").starts_with(text) ? State::unfinished : State::foreign;
        EXPECT_EQ(reader_of(text).state(), expected) << text;
    }
    EXPECT_EQ(reader_of(std::string(100000, 'x')).state(), State::foreign);
    const std::string bytes = encoded(some_save(1));
    EXPECT_EQ(reader_of(bytes + "x").state(), State::foreign);
    EXPECT_EQ(reader_of(bytes + bytes).state(), State::foreign);
    EXPECT_EQ(reader_of(bytes.substr(block_bytes)).state(), State::foreign);
}

TEST(Journal, HasOneRandomNumberThroughout) {
    const std::string one = encoded(some_save(1), 1);
    const std::string two = encoded(some_save(1), 2);
    EXPECT_EQ(reader_of(one.substr(0, block_bytes) + two.substr(block_bytes)).state(), State::foreign);
}

TEST(Journal, WithImpossibleContentsIsNone) {
    const std::string sector_of_3_and_5("\x03\0\x05\0", 4);
    const std::string good = words({3, 5, 0}) + sector_of_3_and_5 + "abcabXYZ" + words({-1});
    ASSERT_EQ(reader_of(block_of(good)).state(), State::complete);
    const auto expect_foreign = [](const std::string& contents) {
        EXPECT_EQ(reader_of(block_of(contents)).state(), State::foreign) << ::testing::PrintToString(contents);
    };
    expect_foreign(words({-3, 5, 0}) + sector_of_3_and_5 + "abcabXYZ" + words({-1}));
    expect_foreign(words({3, -5, 0}) + sector_of_3_and_5 + "abcabXYZ" + words({-1}));
    expect_foreign(words({4, 5, 0}) + sector_of_3_and_5 + "abcabXYZ" + words({-1}));
    expect_foreign(words({3, 6, 0}) + sector_of_3_and_5 + "abcabXYZ" + words({-1}));
    expect_foreign(words({3, 5, -2}) + sector_of_3_and_5 + "abcabXYZ" + words({-1}));
    expect_foreign(words({3, 5, INT64_MAX / 2}) + std::string(4, '\0') + words({-1}));
    expect_foreign(words({3, 5, 0}) + sector_of_3_and_5 + "abcabXYZ" + words({0}) + sector_of_3_and_5 + "abcabXYZ" +
                   words({-1}));
    expect_foreign(good + "x");
}

TEST(Journal, IsReadInBoundedPieces) {
    const std::string bytes = encoded(some_save(11));
    std::size_t most = 0;
    const Reader reader([&](std::int64_t offset, std::size_t count) {
        most = std::max(most, count);
        const auto start = static_cast<std::size_t>(offset);
        return start < bytes.size() ? bytes.substr(start, count) : std::string();
    });
    EXPECT_EQ(reader.state(), State::complete);
    EXPECT_LE(most, 64U << 10U);
}

}  // namespace
}  // namespace kalco::journal

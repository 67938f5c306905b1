#include "disc/image/sector_buffer.h"

#include <gtest/gtest.h>

#include <random>
#include <stdexcept>

namespace kalco {
namespace {

/// A buffer over bytes in memory.
class Buffered : public ::testing::Test {
protected:
    void over(std::string bytes) {
        below = std::move(bytes);
        buffer.begin(static_cast<std::int64_t>(below.size()));
    }
    std::string below_at(std::int64_t offset, std::size_t bytes) const {
        std::string result;
        const auto start = static_cast<std::size_t>(offset);
        if (start < below.size()) result = below.substr(start, bytes);
        result.resize(bytes, '\0');
        return result;
    }
    void write(std::int64_t offset, const std::string& bytes) {
        buffer.write(offset, bytes, [this](std::int64_t o, std::size_t count) { return below_at(o, count); });
    }
    std::string read(std::int64_t offset, std::size_t bytes) const {
        std::string result = below_at(offset, bytes);
        buffer.overlay(offset, result);
        return result;
    }

    std::string below;
    SectorBuffer buffer;
};

constexpr auto whole = static_cast<std::size_t>(sector_bytes);

TEST_F(Buffered, HoldsWhatIsWrittenOverWholeSectors) {
    over(std::string(3 * whole, 'a'));
    EXPECT_TRUE(buffer.empty());
    write(sector_bytes - 2, "XYZ");
    EXPECT_FALSE(buffer.empty());
    EXPECT_EQ(read(sector_bytes - 3, 6), "aXYZaa");
    EXPECT_EQ(below, std::string(3 * whole, 'a'));
    const auto changes = buffer.changes();
    ASSERT_EQ(changes.size(), 2U);
    EXPECT_EQ(changes[0].sector, 0);
    EXPECT_EQ(changes[0].before, std::string(whole, 'a'));
    EXPECT_EQ(changes[0].after, std::string(whole - 2, 'a') + "XY");
    EXPECT_EQ(changes[1].sector, 1);
    EXPECT_EQ(changes[1].position(), sector_bytes + 1);
    EXPECT_EQ(changes[1].after, "Z" + std::string(whole - 1, 'a'));
}

TEST_F(Buffered, DropsSectorsThatAreAsTheyWere) {
    over(std::string(3 * whole, 'a'));
    write(5, "aaa");
    EXPECT_TRUE(buffer.changes().empty());
    EXPECT_TRUE(buffer.release("nothing").empty());
    EXPECT_TRUE(buffer.empty());
    over(std::string(3 * whole, 'a'));
    write(5, "x");
    write(sector_bytes, "y");
    write(5, "a");
    ASSERT_EQ(buffer.changes().size(), 1U);
    EXPECT_EQ(buffer.changes()[0].sector, 1);
    EXPECT_EQ(buffer.changed_sectors(), std::vector<std::int64_t>{1});
}

TEST_F(Buffered, GrowsWithItsImage) {
    over("abc");
    EXPECT_EQ(buffer.length(), 3);
    write(5, std::string(2, '\0'));
    EXPECT_EQ(buffer.length(), 7);
    const Save save = buffer.release("zeroes");
    EXPECT_FALSE(save.empty());
    ASSERT_EQ(save.sectors.size(), 1U);
    EXPECT_EQ(save.sectors[0], (SectorChange{0, "abc", std::string("abc\0\0\0\0", 7)}));
    EXPECT_EQ(save.length_before, 3);
    EXPECT_EQ(save.length_after, 7);
}

TEST_F(Buffered, LeavesOutTheSectorsBetweenTheEndAndAWriteBehindIt) {
    over("abc");
    write(5 * sector_bytes + 1, "x");
    const Save save = buffer.release("far");
    ASSERT_EQ(save.sectors.size(), 1U);
    EXPECT_EQ(save.sectors[0], (SectorChange{5, "", std::string("\0x", 2)}));
    EXPECT_EQ(save.length_after, 5 * sector_bytes + 2);
}

TEST_F(Buffered, CutsItsImage) {
    over(std::string(whole, 'a') + "bcd");
    write(sector_bytes, "BCD");
    buffer.set_length(sector_bytes + 1);
    EXPECT_EQ(read(sector_bytes, 3), std::string("B\0\0", 3));
    const Save save = buffer.release("cut");
    ASSERT_EQ(save.sectors.size(), 1U);
    EXPECT_EQ(save.sectors[0], (SectorChange{1, "bcd", "B"}));
}

TEST_F(Buffered, TakesNothingWhenASectorCannotBeRead) {
    over(std::string(3 * whole, 'a'));
    const auto failing = [this](std::int64_t offset, std::size_t bytes) {
        if (offset == sector_bytes) throw std::runtime_error("unreadable");
        return below_at(offset, bytes);
    };
    EXPECT_THROW(buffer.write(sector_bytes - 1, "xyz", failing), std::runtime_error);
    EXPECT_TRUE(buffer.empty());
    EXPECT_EQ(read(sector_bytes - 1, 1), "a");
}

TEST_F(Buffered, IsWhatThePlainFileWouldBe) {
    std::mt19937 random(11);
    for (int round = 0; round < 200; ++round) {
        std::string start(random() % (4 * whole), '\0');
        for (char& byte : start) byte = static_cast<char>('a' + random() % 3);
        over(start);
        std::string plain = start;
        for (int step = 0; step < 12; ++step) {
            const std::size_t offset = random() % (6 * whole);
            const std::string bytes(random() % (random() % 4 == 0 ? 2 * whole : 20), static_cast<char>('a' + step));
            write(static_cast<std::int64_t>(offset), bytes);
            if (bytes.empty()) continue;
            if (plain.size() < offset + bytes.size()) plain.resize(offset + bytes.size(), '\0');
            plain.replace(offset, bytes.size(), bytes);
            const std::size_t place = random() % (6 * whole);
            std::string expected = place < plain.size() ? plain.substr(place, 3000) : std::string();
            expected.resize(3000, '\0');
            ASSERT_EQ(read(static_cast<std::int64_t>(place), 3000), expected);
        }
        const Save save = buffer.release("all");
        std::string committed = start;
        committed.resize(static_cast<std::size_t>(save.length_after), '\0');
        for (const SectorChange& change : save.sectors) {
            ASSERT_EQ(start.substr(std::min(start.size(), static_cast<std::size_t>(change.offset())), whole),
                      change.before);
            committed.replace(static_cast<std::size_t>(change.offset()), change.after.size(), change.after);
        }
        ASSERT_EQ(committed, plain);
    }
}

}  // namespace
}  // namespace kalco

#include "work/patch.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "disc/image/sector.h"
#include "disc/image/sector_layout.h"
#include "support/memory_storage.h"
#include "support/sectors.h"
#include "work/patch_make.h"

namespace kalco::test {
namespace {

constexpr int image_sectors = 24;

std::string disc_of_valid_sectors() {
    std::mt19937 random(7);
    std::string bytes;
    for (std::uint32_t number = 0; number < image_sectors; ++number) {
        std::array<std::uint8_t, user_bytes> user{};
        for (std::uint8_t& byte : user) byte = static_cast<std::uint8_t>(random());
        const RawSector sector = make_sector(number, user);
        bytes.append(reinterpret_cast<const char*>(sector.data()), sector.size());
    }
    return bytes;
}

/// The position of a byte of user data.
constexpr ImagePos user_position(int sector, int byte) {
    return sector * sector_bytes + user_start + byte + 1;
}

void renew(std::string& image, int sector) {
    renew_checks(SectorBytes(reinterpret_cast<std::uint8_t*>(image.data()) + sector * sector_bytes, sector_bytes));
}

void set(std::string& image, ImagePos position, const std::string& bytes) {
    image.replace(static_cast<std::size_t>(position - 1), bytes.size(), bytes);
}

std::string patch_between(const std::string& original, const std::string& edited) {
    Disc a{.bytes = original};
    Disc b{.bytes = edited};
    Image before(opener_of(a));
    Image after(opener_of(b));
    before.open("a");
    after.open("b");
    std::string file;
    make_patch(before, after, "test", [&file](std::string_view bytes) { file += bytes; });
    return file;
}

/// An image in memory that patches are written to.
class Patched {
public:
    explicit Patched(std::string bytes) : disc_{.bytes = std::move(bytes)}, image_(opener_of(disc_)) {
        image_.open("i");
    }

    std::vector<PatchConflict> write(const std::string& file, PatchWay way = PatchWay::apply) {
        const PpfPatch patch(file);
        return write_patch(image_, patch, way);
    }
    bool fits(const std::string& file) { return block_fits(image_, PpfPatch(file)); }
    std::string bytes() const { return image_.read(1, static_cast<int>(image_.length())); }

private:
    Disc disc_;
    Image image_;
};

class PatchTest : public ::testing::Test {
protected:
    const std::string original = disc_of_valid_sectors();
    std::string edited = original;
};

TEST_F(PatchTest, MakesNothingOfTwoEqualImages) {
    EXPECT_EQ(patch_between(original, original), "");
}

TEST_F(PatchTest, RefusesTwoLengths) {
    EXPECT_THROW(patch_between(original, original + "a"), std::invalid_argument);
}

TEST_F(PatchTest, AppliesAndTakesBackRandomEdits) {
    std::mt19937 random(11);
    for (int round = 0; round < 20; ++round) {
        edited = original;
        for (int edit = 0; edit < 40; ++edit) {
            const auto size = 1 + random() % 600;
            const auto start = random() % (edited.size() - size);
            for (std::size_t i = 0; i < size; ++i) edited[start + i] = static_cast<char>(random());
        }
        // Sectors that don't check take all bytes of the patch.
        std::string unchecked = original;
        for (int sector = 0; sector < image_sectors; ++sector) {
            char& byte = unchecked[static_cast<std::size_t>(sector * sector_bytes) + layout::q];
            byte = static_cast<char>(byte ^ 1);
            edited[static_cast<std::size_t>(sector * sector_bytes) + layout::q] = byte;
        }
        const std::string file = patch_between(unchecked, edited);
        Patched image(unchecked);
        EXPECT_TRUE(image.fits(file));
        EXPECT_TRUE(image.write(file).empty());
        EXPECT_EQ(image.bytes(), edited);
        EXPECT_TRUE(image.fits(file));
        EXPECT_TRUE(image.write(file, PatchWay::take_back).empty());
        EXPECT_EQ(image.bytes(), unchecked);
    }
}

TEST_F(PatchTest, IsNoToggle) {
    set(edited, user_position(17, 100), "changed");
    const std::string file = patch_between(original, edited);
    Patched image(edited);
    EXPECT_TRUE(image.fits(file));
    EXPECT_TRUE(image.write(file).empty());
    EXPECT_EQ(image.bytes(), edited);
    Patched untouched(original);
    EXPECT_TRUE(untouched.write(file, PatchWay::take_back).empty());
    EXPECT_EQ(untouched.bytes(), original);
}

TEST_F(PatchTest, LeavesTheChecksOfAFittingSectorToBeRenewed) {
    set(edited, user_position(20, 5), "Rossi");
    renew(edited, 20);
    const std::string file = patch_between(original, edited);
    Patched image(original);
    EXPECT_TRUE(image.write(file).empty());
    std::string expected = original;
    set(expected, user_position(20, 5), "Rossi");
    EXPECT_EQ(image.bytes(), expected);
}

TEST_F(PatchTest, TakesTheChecksOfOtherSectorsFromThePatch) {
    std::string source = original;
    source[20 * sector_bytes + layout::form1_edc] ^= 1;
    edited = source;
    set(edited, user_position(20, 5), "Rossi");
    edited[20 * sector_bytes + layout::q] ^= 3;
    const std::string file = patch_between(source, edited);
    Patched image(source);
    EXPECT_TRUE(image.write(file).empty());
    EXPECT_EQ(image.bytes(), edited);
}

TEST_F(PatchTest, NeverTakesChecksForAConflict) {
    set(edited, user_position(20, 5), "Rossi");
    renew(edited, 20);
    const std::string file = patch_between(original, edited);
    std::string other = original;
    set(other, user_position(20, 900), "Bianchi");
    renew(other, 20);
    Patched image(other);
    EXPECT_TRUE(image.write(file).empty());
    set(other, user_position(20, 5), "Rossi");
    EXPECT_EQ(image.bytes(), other);
}

TEST_F(PatchTest, TellsEveryConflict) {
    set(edited, user_position(3, 0), "abcdef");
    const std::string file = patch_between(original, edited);
    std::string other = original;
    set(other, user_position(3, 1), "xy");
    set(other, user_position(3, 5), "z");
    Patched image(other);
    const auto conflicts = image.write(file);
    ASSERT_EQ(conflicts.size(), 2U);
    EXPECT_EQ(conflicts[0].position, user_position(3, 1));
    EXPECT_EQ(conflicts[0].found, "xy");
    EXPECT_EQ(conflicts[0].expected, original.substr(static_cast<std::size_t>(user_position(3, 1) - 1), 2));
    EXPECT_EQ(conflicts[1].position, user_position(3, 5));
    EXPECT_EQ(conflicts[1].found, "z");
}

TEST_F(PatchTest, FindsTheImageThatItWasNotMadeFor) {
    set(edited, user_position(3, 0), "abc");
    const std::string file = patch_between(original, edited);
    std::string other = original;
    set(other, 0x9320 + 1, "other");
    EXPECT_FALSE(Patched(other).fits(file));
    other = original;
    set(other, 0x9320 + 1024, "o");
    EXPECT_FALSE(Patched(other).fits(file));
    other = original;
    set(other, 0x9320, "o");
    set(other, 0x9320 + 1025, "o");
    EXPECT_TRUE(Patched(other).fits(file));
}

TEST_F(PatchTest, FitsAlsoWhenItHasChangedTheBlockItself) {
    set(edited, 0x9320 + 10, "changed in the block");
    const std::string file = patch_between(original, edited);
    EXPECT_TRUE(Patched(original).fits(file));
    EXPECT_TRUE(Patched(edited).fits(file));
    std::string other = edited;
    set(other, 0x9320 + 100, "o");
    EXPECT_FALSE(Patched(other).fits(file));
}

TEST_F(PatchTest, FitsAlsoWhereItsBlockWasChangedAndTheOldBytesAreNotKnown) {
    std::string file = "PPF20\1" + std::string(50, ' ') + std::string(4, '\0') + original.substr(0x9320, 1024);
    file += std::string("\x2A\x93\0\0\3abc", 8);
    EXPECT_TRUE(Patched(original).fits(file));
    set(edited, 0x9320 + 11, "abc");
    EXPECT_TRUE(Patched(edited).fits(file));
    set(edited, 0x9320 + 11, "abd");
    EXPECT_FALSE(Patched(edited).fits(file));
}

// Other writers may come back to a byte: together their records lead from the first old byte to the last new one.
TEST_F(PatchTest, TakesRecordsThatStandForOneByteTogether) {
    const ImagePos position = user_position(20, 5);
    const std::string old = original.substr(static_cast<std::size_t>(position - 1), 2);
    std::string file("PPF30\2", 6);
    file += std::string(50, ' ') + std::string("\0\0\1\0", 4);
    const auto add = [&file](ImagePos at, const std::string& now, const std::string& before) {
        for (int shift = 0; shift < 64; shift += 8) file += static_cast<char>((at - 1) >> shift & 0xFF);
        file += static_cast<char>(now.size()) + now + before;
    };
    std::string first = old;
    for (char& byte : first) byte = static_cast<char>(byte + 1);
    std::string last = old;
    for (char& byte : last) byte = static_cast<char>(byte + 2);
    add(position, first, old);
    add(position, last, first);
    set(edited, position, last);
    for (const std::string& state : {original, edited}) {
        Patched there(state);
        EXPECT_TRUE(there.write(file).empty());
        EXPECT_EQ(there.bytes(), edited);
        Patched back(state);
        EXPECT_TRUE(back.write(file, PatchWay::take_back).empty());
        EXPECT_EQ(back.bytes(), original);
    }
    std::string other = original;
    set(other, position + 1, std::string(1, static_cast<char>(old[1] + 3)));
    const auto conflicts = Patched(other).write(file);
    ASSERT_FALSE(conflicts.empty());
    EXPECT_EQ(conflicts.front().position, position + 1);
    EXPECT_EQ(conflicts.front().expected, old.substr(1));
}

// Where one kind has its checks another one has data.
TEST_F(PatchTest, MakesASectorOfAnotherKind) {
    std::mt19937 random(5);
    RawSector sector = random_sector(SectorKind::form2, random);
    std::copy_n(original.begin() + 20 * sector_bytes, user_start - 8, sector.begin());
    edited.replace(20 * sector_bytes, sector_bytes, as_text(sector));
    renew(edited, 20);
    const std::string file = patch_between(original, edited);
    Patched image(original);
    EXPECT_TRUE(image.write(file).empty());
    EXPECT_EQ(image.bytes(), edited);
    EXPECT_TRUE(image.write(file, PatchWay::take_back).empty());
    EXPECT_EQ(image.bytes(), original);
}

TEST_F(PatchTest, RefusesARecordBeyondTheImage) {
    set(edited, static_cast<ImagePos>(original.size()), "!");
    const std::string file = patch_between(original, edited);
    Patched shorter(original.substr(0, original.size() - 1));
    EXPECT_THROW(shorter.write(file), PpfError);
    EXPECT_EQ(shorter.bytes(), original.substr(0, original.size() - 1));
}

TEST_F(PatchTest, CannotTakeBackWithoutOldBytes) {
    std::string file("PPF10\0", 6);
    file += std::string(50, ' ') + std::string("\x10\0\0\0\1x", 6);
    Patched image(original);
    EXPECT_THROW(image.write(file, PatchWay::take_back), PpfError);
    EXPECT_TRUE(image.write(file).empty());
    EXPECT_EQ(image.bytes()[16], 'x');
}

}  // namespace
}  // namespace kalco::test

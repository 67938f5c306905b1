#include "disc/image/image.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "disc/runtime_error.h"
#include "support/memory_storage.h"
#include "support/outcome.h"

namespace kalco {
namespace {

using test::error_of;

class ImageInMemory : public ::testing::Test {
protected:
    ImageInMemory() {
        disc.bytes = "abcdefghijklmnopqrstuvwxyz";
        image.open("disc.bin");
    }

    std::string committed() {
        image.commit();
        return disc.bytes;
    }

    test::Disc disc;
    Image image{test::opener_of(disc)};
};

TEST_F(ImageInMemory, ReadsAtPositionsThatCountFromOne) {
    EXPECT_EQ(image.read(1, 1), "a");
    EXPECT_EQ(image.read(3, 4), "cdef");
    EXPECT_EQ(image.read(5, 0), "");
    EXPECT_EQ(image.read(Pieces(Piece{2, 3}, Piece{20, 2})), "bcdtu");
}

TEST_F(ImageInMemory, ReadsZeroBytesBeyondTheEnd) {
    EXPECT_EQ(image.read(25, 4), std::string("yz\0\0", 4));
    EXPECT_EQ(image.read(5000000000, 3), std::string(3, '\0'));
    EXPECT_EQ(disc.bytes.size(), 26U);
}

TEST_F(ImageInMemory, ExtendsByWritesBeyondTheEnd) {
    image.write(29, "XY");
    EXPECT_EQ(committed(), std::string("abcdefghijklmnopqrstuvwxyz\0\0XY", 30));
}

TEST_F(ImageInMemory, WritesExactlyTheTextThatItGets) {
    image.write(2, "XY");
    image.write(10, "");
    EXPECT_EQ(committed(), "aXYdefghijklmnopqrstuvwxyz");
}

TEST_F(ImageInMemory, FillsPiecesFromTheFirstOn) {
    const Pieces field(Piece{2, 3}, Piece{20, 4});
    image.write(field, "ABCDEFG");
    EXPECT_EQ(committed(), "aABCefghijklmnopqrsDEFGxyz");
}

TEST_F(ImageInMemory, LeavesThePiecesBehindAShorterText) {
    const Pieces field(Piece{2, 3}, Piece{20, 4});
    image.write(field, "AB");
    EXPECT_EQ(committed(), "aABdefghijklmnopqrstuvwxyz");
    image.write(field, "ABC");
    EXPECT_EQ(committed(), "aABCefghijklmnopqrstuvwxyz");
    image.write(field, "ABCD");
    EXPECT_EQ(committed(), "aABCefghijklmnopqrsDuvwxyz");
    image.write(field, "");
    EXPECT_EQ(committed(), "aABCefghijklmnopqrsDuvwxyz");
}

TEST_F(ImageInMemory, RunsOnBehindTheLastPieceOfALongerText) {
    image.write(Pieces(Piece{2, 3}, Piece{20, 2}), "ABCDEFG");
    EXPECT_EQ(committed(), "aABCefghijklmnopqrsDEFGxyz");
    image.write(Pieces(Piece{5, 2}), "12345");
    EXPECT_EQ(committed(), "aABC12345jklmnopqrsDEFGxyz");
}

TEST_F(ImageInMemory, ClearsWholeFields) {
    image.clear(Pieces(Piece{2, 3}, Piece{20, 2}));
    EXPECT_EQ(committed(), std::string("a\0\0\0efghijklmnopqrs\0\0vwxyz", 26));
}

TEST_F(ImageInMemory, FlushesOnCloseWhenItWasWritten) {
    image.write(1, "x");
    EXPECT_EQ(disc.flushes, 0);
    image.close();
    EXPECT_EQ(disc.flushes, 1);
    EXPECT_FALSE(disc.held);
    EXPECT_FALSE(image.is_open());

    image.open("disc.bin");
    EXPECT_EQ(image.read(1, 1), "x");
    image.close();
    EXPECT_EQ(disc.flushes, 1);
    image.close();
    EXPECT_EQ(disc.flushes, 1);
}

TEST_F(ImageInMemory, IsHeldWhileItIsOpen) {
    Image second(test::opener_of(disc));
    EXPECT_EQ(error_of([&] { second.open("disc.bin"); }), error::permission_denied);
    EXPECT_FALSE(second.is_open());
    image.close();
    EXPECT_EQ(error_of([&] { second.open("disc.bin"); }), 0);
    EXPECT_TRUE(second.is_open());
}

TEST_F(ImageInMemory, HoldsWritesBackUntilTheCommit) {
    image.write(3, "XYZ");
    EXPECT_EQ(image.read(2, 5), "bXYZf");
    EXPECT_EQ(disc.bytes, "abcdefghijklmnopqrstuvwxyz");
    image.commit();
    EXPECT_EQ(disc.bytes, "abXYZfghijklmnopqrstuvwxyz");
    EXPECT_EQ(disc.flushes, 1);
    image.commit();
    EXPECT_EQ(disc.flushes, 1);
}

TEST_F(ImageInMemory, DropsWritesThatChangeNothing) {
    image.write(3, "cde");
    image.write(20, "x");
    image.write(20, "t");
    EXPECT_TRUE(image.changes().empty());
    image.commit();
    EXPECT_EQ(disc.writes, 0);
    EXPECT_EQ(disc.flushes, 0);
}

TEST_F(ImageInMemory, ForgetsWhatIsDiscarded) {
    image.write(3, "XYZ");
    image.write(100, "X");
    EXPECT_EQ(image.length(), 100);
    image.discard();
    EXPECT_EQ(image.length(), 26);
    EXPECT_EQ(image.read(3, 3), "cde");
    EXPECT_EQ(committed(), "abcdefghijklmnopqrstuvwxyz");
    EXPECT_EQ(disc.writes, 0);
}

TEST_F(ImageInMemory, TellsItsObserversOfWritesAndCommits) {
    struct Noting final : ImageObserver {
        void written(ImagePos position, std::string_view bytes) override { writes.emplace_back(position, bytes); }
        void committed(const Save& save) override { saves.push_back(save); }
        std::vector<std::pair<ImagePos, std::string>> writes;
        std::vector<Save> saves;
    };
    Noting noting;
    image.add_observer(noting);
    image.write(1, "ab");
    image.write(27, "!");
    image.commit("one letter more");
    image.commit("nothing");
    const std::vector<std::pair<ImagePos, std::string>> writes{{1, "ab"}, {27, "!"}};
    EXPECT_EQ(noting.writes, writes);
    ASSERT_EQ(noting.saves.size(), 1U);
    EXPECT_EQ(noting.saves[0].what, "one letter more");
    EXPECT_EQ(noting.saves[0].length_before, 26);
    EXPECT_EQ(noting.saves[0].length_after, 27);
    ASSERT_EQ(noting.saves[0].sectors.size(), 1U);
    EXPECT_EQ(noting.saves[0].sectors[0].before + '!', noting.saves[0].sectors[0].after);
}

TEST_F(ImageInMemory, TellsAFailingCommitAndKeepsTheOldBytes) {
    const std::string before = disc.bytes + std::string(5000, 'x');
    for (const int failure : {error::device_io, error::disk_full}) {
        for (int write = 1; write <= 2; ++write) {
            disc.bytes = before;
            disc.writes = 0;
            disc.failing_write = write;
            disc.failure = failure;
            image.write(Pieces(Piece{2, 3}, Piece{3000, 4}), "ABCDEFG");
            EXPECT_EQ(error_of([&] { image.commit(); }), failure);
            EXPECT_EQ(disc.bytes, before);
            EXPECT_EQ(image.read(2, 3), "bcd");
            EXPECT_TRUE(image.changes().empty());
        }
    }
}

/// Reads nothing from a sector on.
class Unreadable final : public Storage {
public:
    std::string read(std::int64_t offset, std::size_t bytes) override {
        if (offset + static_cast<std::int64_t>(bytes) > 4000) throw RuntimeError(error::device_io);
        return std::string(bytes, 'a');
    }
    void write(std::int64_t, std::string_view) override { ADD_FAILURE() << "nothing may be left half done"; }
    std::int64_t size() override { return 100000; }
    void truncate(std::int64_t) override {}
    void flush() override {}
};

TEST(Image, DropsASaveWhoseOwnReadsFail) {
    Image image([](const std::string&) { return std::make_unique<Unreadable>(); });
    image.open("disc.bin");
    image.write(1, "x");
    EXPECT_EQ(error_of([&] { image.read(5000, 1); }), error::device_io);
    image.commit();
    image.write(1, "x");
    EXPECT_EQ(error_of([&] { image.write(5000, "x"); }), error::device_io);
    image.close();
}

TEST(Image, CannotBeUsedWhileItIsClosed) {
    Image image([](const std::string&) -> std::unique_ptr<Storage> { throw RuntimeError(error::file_not_found); });
    EXPECT_EQ(error_of([&] { image.read(1, 1); }), error::bad_file_name);
    EXPECT_EQ(error_of([&] { image.write(1, "x"); }), error::bad_file_name);
    EXPECT_EQ(error_of([&] { image.write(Pieces(Piece{1, 1}), "x"); }), error::bad_file_name);
    EXPECT_EQ(error_of([&] { image.clear(Piece{1, 1}); }), error::bad_file_name);
    EXPECT_EQ(error_of([&] { image.open("missing"); }), error::file_not_found);
    EXPECT_FALSE(image.is_open());
    EXPECT_EQ(error_of([&] { image.close(); }), 0);
}

/// A storage that takes writes and then cannot bring them to the disk.
class Unflushable final : public Storage {
public:
    explicit Unflushable(bool& gone) : gone_(gone) {}
    ~Unflushable() override { gone_ = true; }
    Unflushable(const Unflushable&) = delete;
    Unflushable& operator=(const Unflushable&) = delete;

    std::string read(std::int64_t, std::size_t bytes) override { return std::string(bytes, '\0'); }
    void write(std::int64_t, std::string_view) override {}
    std::int64_t size() override { return 0; }
    void truncate(std::int64_t) override {}
    void flush() override { throw RuntimeError(error::disk_full); }

private:
    bool& gone_;
};

TEST(Image, LetsGoOfTheFileWhenTheFlushFails) {
    bool gone = false;
    Image image([&gone](const std::string&) { return std::make_unique<Unflushable>(gone); });
    image.open("disc.bin");
    image.write(1, "x");
    EXPECT_EQ(error_of([&] { image.close(); }), error::disk_full);
    EXPECT_TRUE(gone);
    EXPECT_FALSE(image.is_open());
    EXPECT_EQ(error_of([&] { image.close(); }), 0);
}

}  // namespace
}  // namespace kalco

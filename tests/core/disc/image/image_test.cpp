#include "disc/image/image.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

#include "disc/runtime_error.h"
#include "support/memory_storage.h"

namespace kalco {
namespace {

int error_of(const std::function<void()>& steps) {
    try {
        steps();
    } catch (const RuntimeError& failure) {
        return failure.number();
    }
    return 0;
}

class ImageInMemory : public ::testing::Test {
protected:
    ImageInMemory() {
        disc.bytes = "abcdefghijklmnopqrstuvwxyz";
        image.open("disc.bin");
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
    EXPECT_EQ(disc.bytes, std::string("abcdefghijklmnopqrstuvwxyz\0\0XY", 30));
}

TEST_F(ImageInMemory, WritesExactlyTheTextThatItGets) {
    image.write(2, "XY");
    image.write(10, "");
    EXPECT_EQ(disc.bytes, "aXYdefghijklmnopqrstuvwxyz");
}

TEST_F(ImageInMemory, FillsPiecesFromTheFirstOn) {
    const Pieces field(Piece{2, 3}, Piece{20, 4});
    image.write(field, "ABCDEFG");
    EXPECT_EQ(disc.bytes, "aABCefghijklmnopqrsDEFGxyz");
}

TEST_F(ImageInMemory, LeavesThePiecesBehindAShorterText) {
    const Pieces field(Piece{2, 3}, Piece{20, 4});
    image.write(field, "AB");
    EXPECT_EQ(disc.bytes, "aABdefghijklmnopqrstuvwxyz");
    image.write(field, "ABC");
    EXPECT_EQ(disc.bytes, "aABCefghijklmnopqrstuvwxyz");
    image.write(field, "ABCD");
    EXPECT_EQ(disc.bytes, "aABCefghijklmnopqrsDuvwxyz");
    image.write(field, "");
    EXPECT_EQ(disc.bytes, "aABCefghijklmnopqrsDuvwxyz");
}

TEST_F(ImageInMemory, RunsOnBehindTheLastPieceOfALongerText) {
    image.write(Pieces(Piece{2, 3}, Piece{20, 2}), "ABCDEFG");
    EXPECT_EQ(disc.bytes, "aABCefghijklmnopqrsDEFGxyz");
    image.write(Pieces(Piece{5, 2}), "12345");
    EXPECT_EQ(disc.bytes, "aABC12345jklmnopqrsDEFGxyz");
}

TEST_F(ImageInMemory, ClearsWholeFields) {
    image.clear(Pieces(Piece{2, 3}, Piece{20, 2}));
    EXPECT_EQ(disc.bytes, std::string("a\0\0\0efghijklmnopqrs\0\0vwxyz", 26));
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

TEST_F(ImageInMemory, TellsEveryFailingWrite) {
    const Pieces field(Piece{2, 3}, Piece{20, 4});
    disc.failing_write = 2;
    disc.failure = error::device_io;
    EXPECT_EQ(error_of([&] { image.write(field, "ABCDEFG"); }), error::device_io);
    EXPECT_EQ(disc.bytes, "aABCefghijklmnopqrstuvwxyz");
    disc.failing_write = 3;
    disc.failure = error::disk_full;
    EXPECT_EQ(error_of([&] { image.clear(field); }), error::disk_full);
    EXPECT_EQ(disc.bytes, "aABCefghijklmnopqrstuvwxyz");
    disc.failing_write = 5;
    EXPECT_EQ(error_of([&] { image.clear(field); }), error::disk_full);
    EXPECT_EQ(disc.bytes, std::string("a\0\0\0efghijklmnopqrstuvwxyz", 26));
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

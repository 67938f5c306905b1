#include "disc/image/image_copy.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

#include "disc/image/file_error.h"
#include "disc/image/image.h"
#include "support/temporary_home.h"

namespace kalco {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t megabyte = std::size_t{1} << 20;

class ImageCopy : public testing::Test {
protected:
    ImageCopy() : bytes(3 * megabyte + 77, 'a') {
        for (std::size_t i = 0; i < bytes.size(); i += 97) bytes[i] = static_cast<char>(i / 97);
        from = home.write("disc.bin", bytes);
    }
    /// The errno of a copy that fails; 0 when it doesn't, -1 for a failure without one.
    int failure_of(const std::string& to, const CopyOptions& options = {}) const {
        try {
            copy_image(from, to, options);
            return 0;
        } catch (const SystemFileError& failure) {
            return failure.code();
        } catch (const FileError&) {
            return -1;
        }
    }
    std::size_t files() const {
        return static_cast<std::size_t>(std::distance(fs::directory_iterator(home.path()), fs::directory_iterator()));
    }

    test::TemporaryHome home;
    std::string bytes;
    std::string from;
};

TEST_F(ImageCopy, HasTheSameBytesAndTellsHowFarItIs) {
    std::vector<std::int64_t> told;
    copy_image(from, home.path("copy.bin"), {false, [&told](std::int64_t done) { told.push_back(done); }});
    EXPECT_EQ(home.read("copy.bin"), bytes);
    EXPECT_EQ(files(), 2U);
    ASSERT_FALSE(told.empty());
    EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));
    EXPECT_EQ(told.back(), static_cast<std::int64_t>(bytes.size()));
}

TEST_F(ImageCopy, IsMadeOfAnImageThatIsOpen) {
    Image image;
    image.open(from);
    EXPECT_EQ(failure_of(home.path("copy.bin")), 0);
    EXPECT_EQ(home.read("copy.bin"), bytes);
}

TEST_F(ImageCopy, OfAnEmptyFileIsEmpty) {
    from = home.write("empty.bin", "");
    EXPECT_EQ(failure_of(home.path("copy.bin")), 0);
    EXPECT_EQ(home.read("copy.bin"), "");
}

TEST_F(ImageCopy, ReplacesAnExistingFileOnlyWhenItMay) {
    home.write("copy.bin", "mine");
    EXPECT_EQ(failure_of(home.path("copy.bin")), EEXIST);
    EXPECT_EQ(home.read("copy.bin"), "mine");
    EXPECT_EQ(failure_of(home.path("copy.bin"), {true, [](std::int64_t) {}}), 0);
    EXPECT_EQ(home.read("copy.bin"), bytes);
    EXPECT_EQ(files(), 2U);
}

TEST_F(ImageCopy, OntoTheImageItselfIsRefused) {
    const CopyOptions replace{true, [](std::int64_t) {}};
    EXPECT_EQ(failure_of(from, replace), -1);
    fs::create_symlink(from, home.path("link.bin"));
    EXPECT_EQ(failure_of(home.path("link.bin"), replace), -1);
    fs::create_hard_link(from, home.path("twin.bin"));
    EXPECT_EQ(failure_of(home.path("twin.bin"), replace), -1);
    EXPECT_EQ(home.read("disc.bin"), bytes);
}

TEST_F(ImageCopy, ThatIsCancelledLeavesNothing) {
    struct Cancelled {};
    const CopyOptions options{false, [](std::int64_t done) {
                                  if (done > 1) throw Cancelled();
                              }};
    EXPECT_THROW(copy_image(from, home.path("copy.bin"), options), Cancelled);
    EXPECT_EQ(files(), 1U);
}

TEST_F(ImageCopy, ThatFindsNoPlaceToWriteIsTold) {
    EXPECT_EQ(failure_of(home.path("missing/copy.bin")), ENOENT);
    EXPECT_EQ(failure_of("/dev/null/copy.bin"), ENOTDIR);
    EXPECT_EQ(failure_of(home.path()), EEXIST);
    fs::remove(from);
    EXPECT_EQ(failure_of(home.path("copy.bin")), ENOENT);
    EXPECT_EQ(files(), 0U);
}

/// A file that may not grow stands for a disk that gets full on the way.
TEST_F(ImageCopy, ThatRunsOutOfRoomLeavesNothing) {
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto old = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit least{megabyte, before.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &least), 0);
    const int failure = failure_of(home.path("copy.bin"));
    setrlimit(RLIMIT_FSIZE, &before);
    static_cast<void>(std::signal(SIGXFSZ, old));
    // Where the blocks are shared nothing grows.
    EXPECT_TRUE(failure == EFBIG || failure == 0) << failure;
    EXPECT_EQ(files(), failure == 0 ? 2U : 1U);
}

/// A file as large as the disk is free, and more: all of it a hole.
TEST_F(ImageCopy, IsNotBegunWhereThereIsNoRoom) {
    const auto free = fs::space(home.path()).available;
    if (::truncate(from.c_str(), static_cast<off_t>(free) + (off_t{1} << 32)) != 0)
        GTEST_SKIP() << "no such files here";
    int told = 0;
    const int failure = failure_of(home.path("copy.bin"), {false, [&told](std::int64_t) { ++told; }});
    EXPECT_TRUE(failure == ENOSPC || failure == 0) << failure;
    EXPECT_EQ(told == 0, failure != 0);
}

}  // namespace
}  // namespace kalco

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "ctl/demo/demo_image.h"
#include "ctl/demo_command.h"

namespace kalco::demo {
namespace {

namespace fs = std::filesystem;

/// A folder of its own for each test.
class ImageFile : public testing::Test {
protected:
    ImageFile() {
        std::string name = (fs::temp_directory_path() / "kalco-demo-XXXXXX").string();
        if (::mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder");
        folder = name;
        path = (folder / "disc.bin").string();
        disc.put(0, "first");
    }
    ~ImageFile() override { fs::remove_all(folder); }

    std::size_t files() const {
        return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
    }

    fs::path folder;
    std::string path;
    DemoDisc disc{3};
};

void ignore_progress(std::uint32_t) {}

TEST_F(ImageFile, WritesAllSectorsAndTellsTheProgress) {
    std::vector<std::uint32_t> told;
    write_image(disc, path, false, [&told](std::uint32_t done) { told.push_back(done); });
    EXPECT_EQ(fs::file_size(path), 3U * sector_bytes);
    EXPECT_EQ(told, (std::vector<std::uint32_t>{1, 2, 3}));
    EXPECT_EQ(files(), 1U);
    std::ifstream file(path, std::ios::binary);
    std::string start(user_start + 5, '\0');
    file.read(start.data(), static_cast<std::streamsize>(start.size()));
    EXPECT_EQ(start.substr(user_start), "first");
}

TEST_F(ImageFile, KeepsAFileUnlessTold) {
    std::ofstream(path) << "mine";
    EXPECT_THROW(write_image(disc, path, false, ignore_progress), std::runtime_error);
    EXPECT_EQ(fs::file_size(path), 4U);
    EXPECT_EQ(files(), 1U);
    write_image(disc, path, true, ignore_progress);
    EXPECT_EQ(fs::file_size(path), 3U * sector_bytes);
    EXPECT_EQ(files(), 1U);
}

TEST_F(ImageFile, KeepsAFileThatComesUpMeanwhile) {
    const auto intrude = [this](std::uint32_t done) {
        if (done == 3) std::ofstream(path) << "mine";
    };
    EXPECT_THROW(write_image(disc, path, false, intrude), std::runtime_error);
    EXPECT_EQ(fs::file_size(path), 4U);
    EXPECT_EQ(files(), 1U);
}

TEST_F(ImageFile, ReplacesPlainFilesOnly) {
    EXPECT_THROW(write_image(disc, folder.string(), true, ignore_progress), std::runtime_error);
    EXPECT_THROW(write_image(disc, "/dev/null", true, ignore_progress), std::runtime_error);
    EXPECT_EQ(files(), 0U);
}

TEST_F(ImageFile, NeedsItsFolder) {
    EXPECT_THROW(write_image(disc, (folder / "none" / "disc.bin").string(), false, ignore_progress),
                 std::runtime_error);
}

TEST_F(ImageFile, LeavesAnotherRunsPartialFileAlone) {
    std::ofstream(path + ".part") << "other";
    write_image(disc, path, false, ignore_progress);
    EXPECT_EQ(fs::file_size(path), 3U * sector_bytes);
    EXPECT_EQ(fs::file_size(path + ".part"), 5U);
    EXPECT_EQ(files(), 2U);
}

TEST_F(ImageFile, LeavesNothingBehindWhenAWriteFails) {
    std::ofstream(path) << "old";
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    auto* const handler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit small = before;
    small.rlim_cur = 2 * sector_bytes;
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
    EXPECT_THROW(write_image(disc, path, true, ignore_progress), std::runtime_error);
    ::setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    EXPECT_EQ(fs::file_size(path), 3U);
    EXPECT_EQ(files(), 1U);
}

TEST_F(ImageFile, IsMadeByTheCommandOnce) {
    DemoOptions options;
    options.image = path;
    testing::internal::CaptureStderr();
    EXPECT_EQ(run_demo(options), 0);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    const auto size = fs::file_size(path);
    EXPECT_GT(size, 5653000U);

    try {
        run_demo(options);
        ADD_FAILURE() << "replaced";
    } catch (const std::exception& failure) {
        EXPECT_EQ(failure.what(), path + ": it exists already; --force replaces it");
    }
    options.force = true;
    EXPECT_EQ(run_demo(options), 0);
    EXPECT_EQ(fs::file_size(path), size);
}

}  // namespace
}  // namespace kalco::demo

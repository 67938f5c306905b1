#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "ctl/demo/demo_image.h"
#include "ctl/demo_command.h"
#include "ctl/interruption.h"
#include "disc/image/storage.h"
#include "disc/runtime_error.h"

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

TEST_F(ImageFile, StaysWhileAProgramUsesIt) {
    std::ofstream(path) << "old";
    const auto held = open_file(path);
    EXPECT_THROW(write_image(disc, path, true, ignore_progress), std::runtime_error);
    EXPECT_EQ(fs::file_size(path), 3U);
    EXPECT_EQ(files(), 1U);
}

TEST_F(ImageFile, IsHeldWhileItIsReplaced) {
    std::ofstream(path) << "old";
    int opening_error = 0;
    write_image(disc, path, true, [&](std::uint32_t) {
        try {
            open_file(path);
        } catch (const RuntimeError& failure) {
            opening_error = failure.number();
        }
    });
    EXPECT_EQ(opening_error, error::permission_denied);
}

TEST_F(ImageFile, KeepsItsModeAndItsLink) {
    const fs::path target = folder / "elsewhere" / "disc.bin";
    fs::create_directory(target.parent_path());
    std::ofstream(target) << "old";
    fs::permissions(target, fs::perms(0600));
    fs::create_symlink("elsewhere/disc.bin", path);
    write_image(disc, path, true, ignore_progress);
    EXPECT_TRUE(fs::is_symlink(path));
    EXPECT_EQ(fs::file_size(target), 3U * sector_bytes);
    EXPECT_EQ(fs::status(target).permissions(), fs::perms(0600));
    EXPECT_EQ(files(), 2U);
}

TEST_F(ImageFile, GoesAwayWhenTheWorkIsGivenUp) {
    std::ofstream(path) << "old";
    const ctl::Interruption interruption;
    const auto interrupt = [&](std::uint32_t done) {
        if (done == 2) ::raise(SIGTERM);
        interruption.check();
    };
    try {
        write_image(disc, path, true, interrupt);
        ADD_FAILURE() << "went on";
    } catch (const ctl::Interrupted& interrupted) {
        EXPECT_EQ(interrupted.signal, SIGTERM);
    }
    EXPECT_EQ(fs::file_size(path), 3U);
    EXPECT_EQ(files(), 1U);
}

TEST(DemoOptions, HaveASeedOf64Bits) {
    const auto seed_of = [](const std::string& text) {
        CLI::App app;
        DemoOptions options;
        add_demo_command(app, options);
        app.parse(std::vector<std::string>{text, "--seed", "a.bin", "demo"});
        return options.seed;
    };
    EXPECT_EQ(seed_of("0"), 0U);
    EXPECT_EQ(seed_of("010"), 10U);
    EXPECT_EQ(seed_of("18446744073709551615"), 18446744073709551615U);
    for (const char* text : {"", "-1", "+1", " 1", "1 ", "1.5", "1e3", "0x10", "x", "18446744073709551616"}) {
        EXPECT_THROW(seed_of(text), CLI::ParseError) << text;
    }
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

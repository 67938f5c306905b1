#include "ctl/files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "disc/image/file_error.h"
#include "support/temporary_home.h"

namespace kalco::ctl {
namespace {

namespace fs = std::filesystem;

class Files : public testing::Test {
protected:
    std::vector<std::string> entries() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(home.path())) names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }

    test::TemporaryHome home;
};

TEST_F(Files, AreReadWhole) {
    const std::string bytes(200000, 'x');
    EXPECT_EQ(read_file(home.write("a", bytes), 200000), bytes);
    EXPECT_EQ(read_file(home.write("empty", ""), 10), "");
    EXPECT_THROW(read_file(home.path("a"), 199999), FileError);
    EXPECT_THROW(read_file(home.path("none"), 10), FileError);
    EXPECT_THROW(read_file(home.path(), 10), FileError);
}

TEST_F(Files, AreReplacedWhole) {
    write_output(home.path("a"), "first", {});
    EXPECT_EQ(home.read("a"), "first");
    write_output(home.path("a"), "2", {});
    EXPECT_EQ(home.read("a"), "2");
    EXPECT_EQ(entries(), std::vector<std::string>{"a"});
}

TEST_F(Files, FollowALink) {
    home.write("real", "old");
    fs::create_symlink("real", home.path("link"));
    write_output(home.path("link"), "new", {});
    EXPECT_EQ(home.read("real"), "new");
    EXPECT_TRUE(fs::is_symlink(home.path("link")));
}

TEST_F(Files, AreNeverTheImage) {
    const std::vector<std::string> images{home.write("disc.bin", "image")};
    fs::create_symlink("disc.bin", home.path("link"));
    fs::create_hard_link(home.path("disc.bin"), home.path("other"));
    for (const char* name : {"disc.bin", "./disc.bin", "link", "other"}) {
        EXPECT_THROW(write_output(home.path(name), "x", images), FileError) << name;
    }
    EXPECT_EQ(home.read("disc.bin"), "image");
}

TEST_F(Files, LeaveNothingBehindWhenTheyFail) {
    fs::create_directory(home.path("directory"));
    EXPECT_THROW(write_output(home.path("directory"), "x", {}), FileError);
    EXPECT_THROW(write_output(home.path("none/a"), "x", {}), std::exception);
    EXPECT_EQ(entries(), std::vector<std::string>{"directory"});
}

TEST_F(Files, AreWrittenThroughADevice) {
    EXPECT_NO_THROW(write_output("/dev/null", "x", {}));
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
    EXPECT_THROW(write_output("/dev/full", "x", {}), FileError);
}

}  // namespace
}  // namespace kalco::ctl

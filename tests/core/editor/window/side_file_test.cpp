#include "editor/window/side_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "disc/runtime_error.h"
#include "support/fake_platform.h"
#include "support/outcome.h"
#include "support/temporary_home.h"

namespace kalco {
namespace {

using test::error_of;
using Lines = std::vector<std::string>;

class SideFiles : public ::testing::Test {
protected:
    SideFiles() { platform.home = home.path(); }

    Lines lines_of(const std::string& text) { return read_lines(home.write("side.file", text)); }
    std::string path_of(const std::string& name) const { return side_file_path(platform, directory::transfer, name); }

    test::TemporaryHome home;
    test::FakePlatform platform;
};

TEST_F(SideFiles, EndTheirLinesInThreeWays) {
    EXPECT_EQ(lines_of("a\r\nb\r\n"), (Lines{"a", "b"}));
    EXPECT_EQ(lines_of("a\nb\n"), (Lines{"a", "b"}));
    EXPECT_EQ(lines_of("a\rb\r"), (Lines{"a", "b"}));
    EXPECT_EQ(lines_of("a\r\nb\nc\rd\n\re"), (Lines{"a", "b", "c", "d", "", "e"}));
}

TEST_F(SideFiles, CountALastLineWithoutAnEnd) {
    EXPECT_EQ(lines_of("a\r\nb"), (Lines{"a", "b"}));
    EXPECT_EQ(lines_of("a"), Lines{"a"});
    EXPECT_EQ(lines_of("a\r"), Lines{"a"});
}

TEST_F(SideFiles, KeepEmptyLines) {
    EXPECT_EQ(lines_of(""), Lines{});
    EXPECT_EQ(lines_of("\r\n"), Lines{""});
    EXPECT_EQ(lines_of("\r\r\n\n"), (Lines{"", "", ""}));
    EXPECT_EQ(lines_of("\n\na"), (Lines{"", "", "a"}));
}

TEST_F(SideFiles, KeepEveryOtherByte) {
    std::string all;
    for (int code = 0; code <= 0xFF; ++code) {
        if (code != '\r' && code != '\n') all += static_cast<char>(code);
    }
    EXPECT_EQ(lines_of(all + "\r\n" + all), (Lines{all, all}));
    const std::string path = home.path("out.file");
    write_lines(path, {all, "", " b "});
    EXPECT_EQ(home.read("out.file"), all + "\r\n\r\n b \r\n");
    EXPECT_EQ(read_lines(path), (Lines{all, "", " b "}));
}

TEST_F(SideFiles, AreReplacedWhole) {
    const std::string path = home.write("out.file", std::string(1000, 'x'));
    write_lines(path, {"a"});
    EXPECT_EQ(home.read("out.file"), "a\r\n");
    write_lines(path, {});
    EXPECT_EQ(home.read("out.file"), "");
}

TEST_F(SideFiles, MayBeLong) {
    const std::string line(300000, 'y');
    EXPECT_EQ(lines_of(line + "\r\n" + line), (Lines{line, line}));
    // The two characters of a line's end may fall to both sides of a buffer.
    for (const std::size_t length : {65534U, 65535U, 65536U, 65537U}) {
        const std::string text(length, 'z');
        EXPECT_EQ(lines_of(text + "\r\nb"), (Lines{text, "b"})) << length;
    }
}

TEST_F(SideFiles, HaveAFirstLineOrFail) {
    EXPECT_EQ(read_first_line(home.write("one", "ab\r\ncd")), "ab");
    EXPECT_EQ(read_first_line(home.write("blank", "\r\n")), "");
    EXPECT_EQ(error_of([&] { read_first_line(home.write("empty", "")); }), error::past_end_of_file);
    EXPECT_EQ(error_of([&] { read_first_line(home.path("missing")); }), error::file_not_found);
}

TEST_F(SideFiles, CannotBeReadWhenTheyAreNoFiles) {
    EXPECT_EQ(error_of([&] { read_lines(home.path("missing")); }), error::file_not_found);
    EXPECT_EQ(error_of([&] { read_lines(home.path("missing/file")); }), error::file_not_found);
    EXPECT_EQ(error_of([&] { read_lines(home.path()); }), error::path_access);
    ASSERT_EQ(::mkfifo(home.path("pipe").c_str(), 0600), 0);
    EXPECT_EQ(error_of([&] { read_lines(home.path("pipe")); }), error::path_access);
    EXPECT_EQ(error_of([&] { read_lines("/dev/zero"); }), error::path_access);
}

TEST_F(SideFiles, TellThatTheyCannotBeWritten) {
    EXPECT_EQ(error_of([&] { write_lines(home.path("missing/file"), {"a"}); }), error::path_access);
    EXPECT_EQ(error_of([&] { write_lines(home.path(), {"a"}); }), error::path_access);
    EXPECT_FALSE(home.has("missing"));
    if (::access("/dev/full", W_OK) != 0) GTEST_SKIP() << "no full device here";
    EXPECT_EQ(error_of([] { write_lines("/dev/full", {"a"}); }), error::disk_full);
}

TEST_F(SideFiles, LieInTheirDirectories) {
    EXPECT_EQ(path_of("ALFA.DAT"), home.path("Transfer/ALFA.DAT"));
    EXPECT_EQ(side_directory(platform, directory::numbers), home.path("N\xC2\xB0 Maglia"));
    EXPECT_EQ(side_directory(platform, directory::export_teams), home.path("Export"));
    EXPECT_EQ(side_directory(platform, directory::formations), home.path("Moduli&Barre"));
    EXPECT_EQ(side_directory(platform, directory::kickers), home.path("Kickers&Capitani"));
}

TEST_F(SideFiles, AreNamedByLatin1Characters) {
    EXPECT_EQ(path_of("\xC0"
                      "b\xFF.DAT"),
              home.path("Transfer/\xC3\x80"
                        "b\xC3\xBF.DAT"));
    EXPECT_EQ(path_of("ALFA   .DAT"), home.path("Transfer/ALFA   .DAT"));
    EXPECT_EQ(path_of("\x7F\x80.DAT"), home.path("Transfer/\x7F\xC2\x80.DAT"));
}

TEST_F(SideFiles, NeverLeaveTheirDirectory) {
    for (int code = 0; code <= 0xFF; ++code) {
        const bool refused =
            code < 0x20 || std::string("\\/:*?\"<>|").find(static_cast<char>(code)) != std::string::npos;
        const std::string name = std::string("A") + static_cast<char>(code) + "B.DAT";
        EXPECT_EQ(error_of([&] { path_of(name); }), refused ? error::bad_file_name : 0) << code;
    }
    EXPECT_EQ(error_of([&] { path_of("../x.DAT"); }), error::bad_file_name);
}

TEST_F(SideFiles, HaveDirectoriesThatAreMadeOnce) {
    make_side_directory(platform, directory::numbers);
    EXPECT_TRUE(std::filesystem::is_directory(home.path("N\xC2\xB0 Maglia")));
    home.write("N\xC2\xB0 Maglia/kept.num", "x");
    make_side_directory(platform, directory::numbers);
    EXPECT_EQ(home.read("N\xC2\xB0 Maglia/kept.num"), "x");
}

TEST_F(SideFiles, NeedADirectoryThatCanBeMade) {
    platform.home = home.path("missing");
    EXPECT_EQ(error_of([&] { make_side_directory(platform, directory::transfer); }), error::path_access);
    EXPECT_FALSE(home.has("missing"));
    platform.home = home.write("file", "x");
    EXPECT_EQ(error_of([&] { make_side_directory(platform, directory::transfer); }), error::path_access);
}

TEST_F(SideFiles, LeaveAFileWithTheDirectorysNameAlone) {
    home.write("Transfer", "x");
    make_side_directory(platform, directory::transfer);
    EXPECT_EQ(home.read("Transfer"), "x");
}

}  // namespace
}  // namespace kalco

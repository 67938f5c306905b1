#include "editor/window/side_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

#include "disc/runtime_error.h"
#include "support/fake_platform.h"
#include "support/outcome.h"
#include "support/system_faults.h"
#include "support/temporary_home.h"

namespace kalco {
namespace {

using test::error_of;
using test::Fault;
using test::SystemCall;
using Lines = std::vector<std::string>;

class SideFileTest : public ::testing::Test {
protected:
    SideFileTest() { platform.home = home.path(); }

    Lines lines_of(const std::string& text) { return read_lines(platform, home.write("side.file", text)); }
    std::string path_of(const std::string& name) const { return side_file_path(platform, directory::transfer, name); }

    test::TemporaryHome home;
    test::FakePlatform platform;
};

TEST_F(SideFileTest, EndTheirLinesInThreeWays) {
    EXPECT_EQ(lines_of("a\r\nb\r\n"), (Lines{"a", "b"}));
    EXPECT_EQ(lines_of("a\nb\n"), (Lines{"a", "b"}));
    EXPECT_EQ(lines_of("a\rb\r"), (Lines{"a", "b"}));
    EXPECT_EQ(lines_of("a\r\nb\nc\rd\n\re"), (Lines{"a", "b", "c", "d", "", "e"}));
}

TEST_F(SideFileTest, CountALastLineWithoutAnEnd) {
    EXPECT_EQ(lines_of("a\r\nb"), (Lines{"a", "b"}));
    EXPECT_EQ(lines_of("a"), Lines{"a"});
    EXPECT_EQ(lines_of("a\r"), Lines{"a"});
}

TEST_F(SideFileTest, KeepEmptyLines) {
    EXPECT_EQ(lines_of(""), Lines{});
    EXPECT_EQ(lines_of("\r\n"), Lines{""});
    EXPECT_EQ(lines_of("\r\r\n\n"), (Lines{"", "", ""}));
    EXPECT_EQ(lines_of("\n\na"), (Lines{"", "", "a"}));
}

TEST_F(SideFileTest, KeepEveryOtherByte) {
    std::string all;
    for (int code = 0; code <= 0xFF; ++code) {
        if (code != '\r' && code != '\n') all += static_cast<char>(code);
    }
    EXPECT_EQ(lines_of(all + "\r\n" + all), (Lines{all, all}));
    const std::string path = home.path("out.file");
    write_lines(platform, path, {all, "", " b "});
    EXPECT_EQ(home.read("out.file"), all + "\r\n\r\n b \r\n");
    EXPECT_EQ(read_lines(platform, path), (Lines{all, "", " b "}));
}

TEST_F(SideFileTest, AreReplacedWhole) {
    const std::string path = home.write("out.file", std::string(1000, 'x'));
    write_lines(platform, path, {"a"});
    EXPECT_EQ(home.read("out.file"), "a\r\n");
    write_lines(platform, path, {});
    EXPECT_EQ(home.read("out.file"), "");
}

TEST_F(SideFileTest, MayBeLong) {
    const std::string line(300000, 'y');
    EXPECT_EQ(lines_of(line + "\r\n" + line), (Lines{line, line}));
    // The two characters of a line's end may fall to both sides of a buffer.
    for (const std::size_t length : {65534U, 65535U, 65536U, 65537U}) {
        const std::string text(length, 'z');
        EXPECT_EQ(lines_of(text + "\r\nb"), (Lines{text, "b"})) << length;
    }
}

TEST_F(SideFileTest, HaveAFirstLineOrFail) {
    EXPECT_EQ(read_first_line(platform, home.write("one", "ab\r\ncd")), "ab");
    EXPECT_EQ(read_first_line(platform, home.write("blank", "\r\n")), "");
    EXPECT_EQ(error_of([&] { read_first_line(platform, home.write("empty", "")); }), error::past_end_of_file);
    EXPECT_EQ(error_of([&] { read_first_line(platform, home.path("missing")); }), error::file_not_found);
}

TEST_F(SideFileTest, CannotBeReadWhenTheyAreNoFiles) {
    EXPECT_EQ(error_of([&] { read_lines(platform, home.path("missing")); }), error::file_not_found);
    EXPECT_EQ(error_of([&] { read_lines(platform, home.path("missing/file")); }), error::file_not_found);
    EXPECT_EQ(error_of([&] { read_lines(platform, home.path()); }), error::path_access);
    ASSERT_EQ(::mkfifo(home.path("pipe").c_str(), 0600), 0);
    EXPECT_EQ(error_of([&] { read_lines(platform, home.path("pipe")); }), error::path_access);
    EXPECT_EQ(error_of([&] { read_lines(platform, "/dev/zero"); }), error::path_access);
}

TEST_F(SideFileTest, TellThatTheyCannotBeWritten) {
    EXPECT_EQ(error_of([&] { write_lines(platform, home.path("missing/file"), {"a"}); }), error::path_access);
    EXPECT_EQ(error_of([&] { write_lines(platform, home.path(), {"a"}); }), error::path_access);
    EXPECT_FALSE(home.has("missing"));
}

TEST_F(SideFileTest, CannotBeWrittenWhereTheyCouldNotBeRead) {
    ASSERT_EQ(::mkfifo(home.path("pipe").c_str(), 0600), 0);
    for (const std::string& path : {home.path("pipe"), std::string("/dev/full"), std::string("/dev/null")}) {
        EXPECT_EQ(error_of([&] { write_lines(platform, path, {"a"}); }), error::path_access) << path;
        EXPECT_EQ(error_of([&] { write_lines_made(platform, path, [] { return Lines{"a"}; }); }), error::path_access)
            << path;
    }
    EXPECT_EQ(std::filesystem::status(home.path("pipe")).type(), std::filesystem::file_type::fifo);
}

TEST_F(SideFileTest, AreNeverReadBeyondTheLargest) {
    const std::string largest(largest_side_file, 'x');
    EXPECT_EQ(lines_of(largest), Lines{largest});
    EXPECT_EQ(error_of([&] { lines_of(largest + 'x'); }), error::out_of_memory);
    EXPECT_EQ(error_of([&] { lines_of(std::string(10 << 20, '\n')); }), error::out_of_memory);
    EXPECT_EQ(read_first_line(platform, home.write("one", largest)), largest);
    EXPECT_EQ(error_of([&] { read_first_line(platform, home.write("one", largest + "x\r\n")); }), error::out_of_memory);
}

TEST_F(SideFileTest, AreNotReadBehindTheirFirstLine) {
    const std::string rest(3 << 20, 'x');
    EXPECT_EQ(read_first_line(platform, home.write("one", "ab\r\n" + rest)), "ab");
    EXPECT_EQ(read_first_line(platform, home.write("one", "\n" + rest)), "");
    // Lines that end at and behind the end of a block.
    for (const std::size_t length : {65535U, 65536U, 65537U, 200000U}) {
        const std::string line(length, 'y');
        EXPECT_EQ(read_first_line(platform, home.write("one", line + '\r' + rest)), line) << length;
    }
}

class ReplacedSideFile : public SideFileTest {
protected:
    int writing_error(SystemCall call, std::deque<Fault> faults) {
        const test::SystemFaults plan(call, std::move(faults));
        const int number = error_of([&] { write_lines(platform, path, {"new"}); });
        EXPECT_EQ(plan.left(), 0U);
        return number;
    }
    std::size_t files() const {
        const std::filesystem::directory_iterator all(home.path());
        return static_cast<std::size_t>(std::distance(begin(all), end(all)));
    }

    std::string path = home.write("a.DAT", "old");
};

TEST_F(ReplacedSideFile, StandsUntilTheNewOneIsWhole) {
    EXPECT_EQ(writing_error(SystemCall::open, {{.error = ENOSPC}}), error::disk_full);
    EXPECT_EQ(writing_error(SystemCall::open, {{.error = EDQUOT}}), error::disk_full);
    EXPECT_EQ(writing_error(SystemCall::open, {{.error = EACCES}}), error::path_access);
    EXPECT_EQ(writing_error(SystemCall::open, {{.error = EROFS}}), error::path_access);
    EXPECT_EQ(writing_error(SystemCall::write, {{.error = ENOSPC}}), error::disk_full);
    EXPECT_EQ(writing_error(SystemCall::write, {{.at_most = 2}, {.error = EFBIG}}), error::disk_full);
    EXPECT_EQ(writing_error(SystemCall::write, {{.at_most = 2}, {.error = EIO}}), error::device_io);
    EXPECT_EQ(writing_error(SystemCall::write, {{.at_most = 2}, {.at_most = 0}}), error::device_io);
    EXPECT_EQ(writing_error(SystemCall::sync, {{.error = ENOSPC}}), error::disk_full);
    EXPECT_EQ(writing_error(SystemCall::sync, {{.error = EIO}}), error::device_io);
    EXPECT_EQ(writing_error(SystemCall::rename, {{.error = EIO}}), error::device_io);
    EXPECT_EQ(home.read("a.DAT"), "old");
    EXPECT_EQ(files(), 1U);
}

TEST_F(ReplacedSideFile, IsWrittenOnAfterSignalsAndInPieces) {
    EXPECT_EQ(writing_error(SystemCall::open, {{.error = EINTR}}), 0);
    EXPECT_EQ(writing_error(SystemCall::write, {{.error = EINTR}, {.at_most = 1}, {.at_most = 2}}), 0);
    EXPECT_EQ(writing_error(SystemCall::sync, {{.error = EINTR}}), 0);
    EXPECT_EQ(home.read("a.DAT"), "new\r\n");
    EXPECT_EQ(files(), 1U);
}

TEST_F(ReplacedSideFile, IsBroughtToTheDiskWithItsName) {
    // The file's own sync passes, that of its directory does not.
    EXPECT_EQ(writing_error(SystemCall::sync, {{.passes = true}, {.error = EIO}}), error::device_io);
    EXPECT_EQ(home.read("a.DAT"), "new\r\n");
}

TEST_F(ReplacedSideFile, StandsWhenTheProgramIsKilled) {
    for (const SystemCall call : {SystemCall::open, SystemCall::write, SystemCall::sync, SystemCall::rename}) {
        const pid_t child = ::fork();
        if (child == 0) {
            const test::SystemFaults plan(call, {{.kills = true}});
            error_of([&] { write_lines(platform, path, {"new"}); });
            ::_exit(1);
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
        EXPECT_EQ(home.read("a.DAT"), "old");
    }
    write_lines(platform, path, {"new"});
    EXPECT_EQ(home.read("a.DAT"), "new\r\n") << "what the killed ones left is in nobody's way";
}

TEST_F(ReplacedSideFile, IsLeftEmptyByAnErrorOfItsLines) {
    const auto fail = []() -> Lines { throw RuntimeError(error::invalid_call); };
    EXPECT_EQ(error_of([&] { write_lines_made(platform, path, fail); }), error::invalid_call);
    EXPECT_EQ(home.read("a.DAT"), "");
    EXPECT_EQ(error_of([&] { write_lines_made(platform, home.path("b.DAT"), fail); }), error::invalid_call);
    EXPECT_EQ(home.read("b.DAT"), "");
    EXPECT_EQ(files(), 2U);
    EXPECT_EQ(error_of([&] { write_lines_made(platform, home.path("missing/b.DAT"), fail); }), error::path_access);
}

TEST_F(ReplacedSideFile, KeepsItsModeAndItsLinks) {
    ASSERT_EQ(::chmod(path.c_str(), 0640), 0);
    std::filesystem::create_symlink("a.DAT", home.path("link.DAT"));
    std::filesystem::create_symlink(home.path("link.DAT"), home.path("second.DAT"));
    write_lines(platform, home.path("second.DAT"), {"new"});
    EXPECT_TRUE(std::filesystem::is_symlink(home.path("second.DAT")));
    EXPECT_TRUE(std::filesystem::is_symlink(home.path("link.DAT")));
    EXPECT_EQ(home.read("a.DAT"), "new\r\n");
    EXPECT_EQ(std::filesystem::status(path).permissions(), std::filesystem::perms(0640));
    std::filesystem::create_symlink("new.DAT", home.path("third.DAT"));
    write_lines(platform, home.path("third.DAT"), {"x"});
    EXPECT_EQ(home.read("new.DAT"), "x\r\n");
    std::filesystem::create_symlink("round.DAT", home.path("round.DAT"));
    EXPECT_EQ(error_of([&] { write_lines(platform, home.path("round.DAT"), {"x"}); }), error::path_access);
}

TEST_F(ReplacedSideFile, MustNotBeWriteProtected) {
    constexpr uid_t nobody = 65534;
    ASSERT_EQ(::chmod(home.path().c_str(), 0777), 0);
    ASSERT_EQ(::chmod(path.c_str(), 0444), 0);
    const pid_t child = ::fork();
    if (child == 0) {
        // Nothing is write-protected for root.
        if (::geteuid() == 0 && ::setuid(nobody) != 0) ::_exit(1);
        ::_exit(error_of([&] { write_lines(platform, path, {"new"}); }));
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    EXPECT_EQ(WEXITSTATUS(status), error::path_access);
    EXPECT_EQ(home.read("a.DAT"), "old");
    EXPECT_EQ(files(), 1U);
}

TEST_F(SideFileTest, LieInTheirDirectories) {
    EXPECT_EQ(path_of("ALFA.DAT"), home.path("Transfer/ALFA.DAT"));
    EXPECT_EQ(side_directory(platform, directory::numbers), home.path("N\xC2\xB0 Maglia"));
    EXPECT_EQ(side_directory(platform, directory::export_teams), home.path("Export"));
    EXPECT_EQ(side_directory(platform, directory::formations), home.path("Moduli&Barre"));
    EXPECT_EQ(side_directory(platform, directory::kickers), home.path("Kickers&Capitani"));
}

TEST_F(SideFileTest, AreNamedByLatin1Characters) {
    EXPECT_EQ(path_of("\xC0"
                      "b\xFF.DAT"),
              home.path("Transfer/\xC3\x80"
                        "b\xC3\xBF.DAT"));
    EXPECT_EQ(path_of("ALFA   .DAT"), home.path("Transfer/ALFA   .DAT"));
    EXPECT_EQ(path_of("\x7F\x80.DAT"), home.path("Transfer/\x7F\xC2\x80.DAT"));
}

TEST_F(SideFileTest, NeverLeaveTheirDirectory) {
    for (int code = 0; code <= 0xFF; ++code) {
        const bool refused =
            code < 0x20 || std::string("\\/:*?\"<>|").find(static_cast<char>(code)) != std::string::npos;
        const std::string name = std::string("A") + static_cast<char>(code) + "B.DAT";
        EXPECT_EQ(error_of([&] { path_of(name); }), refused ? error::bad_file_name : 0) << code;
    }
    EXPECT_EQ(error_of([&] { path_of("../x.DAT"); }), error::bad_file_name);
}

TEST_F(SideFileTest, HaveDirectoriesThatAreMadeOnce) {
    make_side_directory(platform, directory::numbers);
    EXPECT_TRUE(std::filesystem::is_directory(home.path("N\xC2\xB0 Maglia")));
    home.write("N\xC2\xB0 Maglia/kept.num", "x");
    make_side_directory(platform, directory::numbers);
    EXPECT_EQ(home.read("N\xC2\xB0 Maglia/kept.num"), "x");
}

TEST_F(SideFileTest, NeedADirectoryThatCanBeMade) {
    platform.home = home.path("missing");
    EXPECT_EQ(error_of([&] { make_side_directory(platform, directory::transfer); }), error::path_access);
    EXPECT_FALSE(home.has("missing"));
    platform.home = home.write("file", "x");
    EXPECT_EQ(error_of([&] { make_side_directory(platform, directory::transfer); }), error::path_access);
}

TEST_F(SideFileTest, LeaveAFileWithTheDirectorysNameAlone) {
    home.write("Transfer", "x");
    make_side_directory(platform, directory::transfer);
    EXPECT_EQ(home.read("Transfer"), "x");
}

}  // namespace
}  // namespace kalco

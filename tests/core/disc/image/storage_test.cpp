#include "disc/image/storage.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <filesystem>
#include <functional>

#include "disc/runtime_error.h"
#include "support/outcome.h"
#include "support/temporary_home.h"

namespace kalco {
namespace {

using test::error_of;

int opening_error(const std::string& path) {
    return error_of([&] { open_file(path); });
}

/// What `steps` returns in a process of its own.
int result_in_other_process(const std::function<int()>& steps) {
    const pid_t child = ::fork();
    if (child == 0) ::_exit(steps());
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

std::size_t entries(const test::TemporaryHome& home) {
    const std::filesystem::directory_iterator all(home.path());
    return static_cast<std::size_t>(std::distance(begin(all), end(all)));
}

class RealFile : public ::testing::Test {
protected:
    test::TemporaryHome home;
    std::string path = home.write("disc.bin", "abcdef");
};

TEST_F(RealFile, ReadsAndWritesAtOffsets) {
    const auto file = open_file(path);
    EXPECT_EQ(file->read(0, 3), "abc");
    file->write(1, "XY");
    EXPECT_EQ(file->read(0, 6), "aXYdef");
    file->write(3, "");
    file->flush();
    EXPECT_EQ(home.read("disc.bin"), "aXYdef");
}

TEST_F(RealFile, ReadsZeroBytesBeyondTheEnd) {
    const auto file = open_file(path);
    EXPECT_EQ(file->read(4, 4), std::string("ef\0\0", 4));
    EXPECT_EQ(file->read(6, 2), std::string(2, '\0'));
    EXPECT_EQ(file->read(6000000000, 2), std::string(2, '\0'));
    EXPECT_EQ(home.read("disc.bin"), "abcdef");
}

TEST_F(RealFile, IsExtendedByWritesBeyondTheEnd) {
    open_file(path)->write(8, "ij");
    EXPECT_EQ(home.read("disc.bin"), std::string("abcdef\0\0ij", 10));
}

TEST_F(RealFile, KeepsItsBytesWhenItIsOpened) {
    open_file(path);
    EXPECT_EQ(home.read("disc.bin"), "abcdef");
}

TEST_F(RealFile, RefusesASecondOpening) {
    auto first = open_file(path);
    EXPECT_EQ(opening_error(path), error::permission_denied);
    EXPECT_EQ(first->read(0, 2), "ab");
    first.reset();
    EXPECT_EQ(opening_error(path), 0);
}

TEST_F(RealFile, RefusesTheOpeningOfAnotherProcess) {
    auto first = open_file(path);
    EXPECT_EQ(result_in_other_process([&] { return opening_error(path); }), error::permission_denied);
    first.reset();
    EXPECT_EQ(result_in_other_process([&] { return opening_error(path); }), 0);
}

TEST_F(RealFile, IsRefusedWhileAnotherProcessHoldsIt) {
    std::array<int, 2> opened{};
    std::array<int, 2> release{};
    ASSERT_EQ(::pipe(opened.data()), 0);
    ASSERT_EQ(::pipe(release.data()), 0);
    const pid_t child = ::fork();
    if (child == 0) {
        char byte = 'n';
        try {
            const auto held = open_file(path);
            byte = 'y';
            static_cast<void>(::write(opened[1], &byte, 1));
            static_cast<void>(::read(release[0], &byte, 1));
        } catch (const RuntimeError&) {
            static_cast<void>(::write(opened[1], &byte, 1));
        }
        ::_exit(0);
    }
    char byte = 0;
    ASSERT_EQ(::read(opened[0], &byte, 1), 1);
    EXPECT_EQ(byte, 'y');
    EXPECT_EQ(opening_error(path), error::permission_denied);
    EXPECT_EQ(::write(release[1], &byte, 1), 1);
    int status = 0;
    ::waitpid(child, &status, 0);
    EXPECT_EQ(opening_error(path), 0);
    for (const int fd : {opened[0], opened[1], release[0], release[1]}) ::close(fd);
}

TEST_F(RealFile, IsRefusedUnderEitherKindOfLock) {
    const auto locked_by = [&](const std::function<int(int)>& lock) {
        return result_in_other_process([&] {
            const int fd = ::open(path.c_str(), O_RDWR);
            if (fd < 0 || lock(fd) != 0) return 1;
            return result_in_other_process([&] { return opening_error(path); });
        });
    };
    EXPECT_EQ(locked_by([](int fd) { return ::flock(fd, LOCK_EX); }), error::permission_denied);
    EXPECT_EQ(locked_by([](int fd) { return ::flock(fd, LOCK_SH); }), error::permission_denied);
    EXPECT_EQ(locked_by([](int fd) {
                  struct flock whole {};
                  whole.l_type = F_WRLCK;
                  whole.l_whence = SEEK_SET;
                  return ::fcntl(fd, F_SETLK, &whole);
              }),
              error::permission_denied);
}

TEST_F(RealFile, IsTheSameUnderAnotherName) {
    const auto first = open_file(path);
    std::filesystem::create_symlink(path, home.path("link.bin"));
    std::filesystem::create_hard_link(path, home.path("second.bin"));
    EXPECT_EQ(opening_error(home.path("link.bin")), error::permission_denied);
    EXPECT_EQ(opening_error(home.path("second.bin")), error::permission_denied);
}

TEST_F(RealFile, CreatesNothing) {
    EXPECT_EQ(opening_error(home.path("missing.bin")), error::file_not_found);
    EXPECT_EQ(opening_error(home.path("missing/disc.bin")), error::file_not_found);
    EXPECT_EQ(opening_error(home.path("disc.bin/x")), error::path_access);
    EXPECT_EQ(opening_error(""), error::path_access);
    EXPECT_EQ(entries(home), 1U);
}

TEST_F(RealFile, HasToBeAFile) {
    EXPECT_EQ(opening_error(home.path()), error::path_access);
    ASSERT_EQ(::mkfifo(home.path("pipe").c_str(), 0600), 0);
    EXPECT_EQ(opening_error(home.path("pipe")), error::path_access);
    EXPECT_EQ(opening_error("/dev/null"), error::path_access);
    EXPECT_EQ(opening_error("/dev/full"), error::path_access);
}

TEST_F(RealFile, HasToBeWritable) {
    constexpr uid_t nobody = 65534;
    ASSERT_EQ(::chmod(home.path().c_str(), 0755), 0);
    ASSERT_EQ(::chmod(path.c_str(), 0444), 0);
    const auto opened = [&] {
        // Nothing is write-protected for root.
        if (::geteuid() == 0 && ::setuid(nobody) != 0) return 1;
        return opening_error(path);
    };
    EXPECT_EQ(result_in_other_process(opened), error::path_access);
}

TEST_F(RealFile, TellsThatThereIsNoRoom) {
    const int failure = result_in_other_process([&] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{4096, 4096};
        if (::setrlimit(RLIMIT_FSIZE, &limit) != 0) return 1;
        const auto file = open_file(path);
        return error_of([&] { file->write(4094, "abcd"); });
    });
    EXPECT_EQ(failure, error::disk_full);
}

}  // namespace
}  // namespace kalco

#include "disc/image/process.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

namespace kalco {
namespace {

/// The status of a process that runs `steps`.
template <typename Steps>
int status_of(Steps steps) {
    const pid_t child = ::fork();
    if (child == 0) ::_exit(steps());
    int status = 0;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// Closes the descriptors whose bits are set, and tells what is wrong after guard_process: 0 for nothing.
int try_with_closed(unsigned closed) {
    return status_of([closed] {
        for (int fd = 0; fd < 3; ++fd) {
            if ((closed >> fd & 1U) != 0) ::close(fd);
        }
        guard_process();
        for (int fd = 0; fd < 3; ++fd) {
            if ((closed >> fd & 1U) == 0) continue;
            // Open, so that no file takes its number, and of no use.
            char byte = 0;
            if (::fcntl(fd, F_GETFD) < 0) return 1;
            if (fd == STDIN_FILENO ? ::read(fd, &byte, 1) >= 0 : ::write(fd, &byte, 1) >= 0) return 2;
        }
        return ::open("/dev/null", O_RDONLY) > STDERR_FILENO ? 0 : 3;
    });
}

TEST(Process, OpensTheStandardDescriptorsThatAreClosed) {
    for (unsigned closed = 0; closed < 8; ++closed) EXPECT_EQ(try_with_closed(closed), 0) << closed;
}

TEST(Process, OutlivesAFileSizeLimit) {
    EXPECT_EQ(status_of([] {
                  guard_process();
                  static_cast<void>(::raise(SIGXFSZ));
                  return 5;
              }),
              5);
}

}  // namespace
}  // namespace kalco

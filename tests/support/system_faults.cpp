#include "support/system_faults.h"

#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <optional>
#include <utility>

// The definitions of the system's functions below take the place of the library's in the whole test program.
namespace kalco::test {
namespace {

SystemCall faulty_call = SystemCall::open;

std::deque<Fault>& plan() {
    static std::deque<Fault> faults;
    return faults;
}

std::optional<Fault> next_fault(SystemCall call) {
    if (plan().empty() || call != faulty_call) return std::nullopt;
    const Fault fault = plan().front();
    plan().pop_front();
    return fault;
}

/// The error of the next fault, or 0; shortens `bytes` where the fault asks for it.
int apply_fault(SystemCall call, std::size_t& bytes) {
    const auto fault = next_fault(call);
    if (!fault || fault->passes) return 0;
    if (fault->kills) ::kill(::getpid(), SIGKILL);
    if (fault->error == 0) bytes = std::min(bytes, fault->at_most);
    return fault->error;
}

long failing(int error) {
    errno = error;
    return -1;
}

}  // namespace

SystemFaults::SystemFaults(SystemCall call, std::deque<Fault> faults) {
    faulty_call = call;
    plan() = std::move(faults);
}

SystemFaults::~SystemFaults() {
    plan().clear();
}

std::size_t SystemFaults::left() const {
    return plan().size();
}

}  // namespace kalco::test

using kalco::test::apply_fault;
using kalco::test::failing;
using kalco::test::SystemCall;

extern "C" {

int open(const char* path, int flags, ...) {
    mode_t mode = 0;
    if ((flags & (O_CREAT | O_TMPFILE)) != 0) {
        std::va_list rest;
        va_start(rest, flags);
        mode = va_arg(rest, mode_t);
        va_end(rest);
    }
    std::size_t none = 0;
    if (const int error = apply_fault(SystemCall::open, none)) return static_cast<int>(failing(error));
    return static_cast<int>(::syscall(SYS_openat, AT_FDCWD, path, flags, mode));
}

ssize_t pread(int fd, void* bytes, std::size_t count, off_t offset) {
    if (const int error = apply_fault(SystemCall::read, count)) return failing(error);
    return ::syscall(SYS_pread64, fd, bytes, count, offset);
}

ssize_t pwrite(int fd, const void* bytes, std::size_t count, off_t offset) {
    const std::size_t asked = count;
    if (const int error = apply_fault(SystemCall::write, count)) return failing(error);
    if (count == 0 && asked != 0) return 0;
    return ::syscall(SYS_pwrite64, fd, bytes, count, offset);
}

int fsync(int fd) {
    std::size_t none = 0;
    if (const int error = apply_fault(SystemCall::sync, none)) return static_cast<int>(failing(error));
    return static_cast<int>(::syscall(SYS_fsync, fd));
}

int rename(const char* from, const char* to) {
    std::size_t none = 0;
    if (const int error = apply_fault(SystemCall::rename, none)) return static_cast<int>(failing(error));
    return static_cast<int>(::syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, 0));
}

}  // extern "C"

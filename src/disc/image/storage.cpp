#include "disc/image/storage.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "disc/runtime_error.h"

namespace kalco {
namespace {

class FileDescriptor {
public:
    explicit FileDescriptor(int fd) : fd_(fd) {}
    FileDescriptor(FileDescriptor&& other) noexcept : fd_(std::exchange(other.fd_, -1)) {}
    FileDescriptor& operator=(FileDescriptor&&) = delete;
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;
    ~FileDescriptor() {
        if (fd_ >= 0) ::close(fd_);
    }

    int get() const { return fd_; }

private:
    int fd_;
};

[[noreturn]] void fail_write() {
    throw RuntimeError(errno == ENOSPC || errno == EDQUOT || errno == EFBIG ? error::disk_full : error::device_io);
}

class File final : public Storage {
public:
    explicit File(FileDescriptor fd) : fd_(std::move(fd)) {}

    std::string read(std::int64_t offset, std::size_t bytes) override {
        std::string result(bytes, '\0');
        std::size_t done = 0;
        while (done < bytes) {
            const ssize_t got =
                ::pread(fd_.get(), result.data() + done, bytes - done, offset + static_cast<std::int64_t>(done));
            if (got < 0 && errno == EINTR) continue;
            if (got < 0) throw RuntimeError(error::device_io);
            if (got == 0) break;
            done += static_cast<std::size_t>(got);
        }
        return result;
    }

    void write(std::int64_t offset, std::string_view bytes) override {
        while (!bytes.empty()) {
            const ssize_t put = ::pwrite(fd_.get(), bytes.data(), bytes.size(), offset);
            if (put < 0 && errno == EINTR) continue;
            if (put < 0) fail_write();
            if (put == 0) throw RuntimeError(error::device_io);
            bytes.remove_prefix(static_cast<std::size_t>(put));
            offset += put;
        }
    }

    void flush() override {
        while (::fsync(fd_.get()) != 0) {
            if (errno == EINTR) continue;
            if (errno == EINVAL) return;
            fail_write();
        }
    }

private:
    FileDescriptor fd_;
};

/// Both kinds of lock are taken, so that a program that knows only one of them is met as well. A file system without
/// locks opens the file all the same.
bool lock_exclusively(int fd) {
    if (::flock(fd, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) return false;
#ifdef F_OFD_SETLK
    struct flock whole {};
    whole.l_type = F_WRLCK;
    whole.l_whence = SEEK_SET;
    return ::fcntl(fd, F_OFD_SETLK, &whole) == 0 || (errno != EAGAIN && errno != EACCES);
#else
    return true;
#endif
}

int open_read_write(const std::string& path) {
    for (;;) {
        const int fd = ::open(path.c_str(), O_RDWR | O_CLOEXEC | O_NONBLOCK);
        if (fd >= 0 || errno != EINTR) return fd;
    }
}

}  // namespace

std::unique_ptr<Storage> open_file(const std::string& path) {
    FileDescriptor fd(open_read_write(path));
    if (fd.get() < 0) {
        const bool missing = errno == ENOENT && !path.empty();
        throw RuntimeError(missing ? error::file_not_found : error::path_access);
    }
    struct stat about {};
    if (::fstat(fd.get(), &about) != 0 || !(S_ISREG(about.st_mode) || S_ISBLK(about.st_mode))) {
        throw RuntimeError(error::path_access);
    }
    if (!lock_exclusively(fd.get())) throw RuntimeError(error::permission_denied);
    return std::make_unique<File>(std::move(fd));
}

}  // namespace kalco

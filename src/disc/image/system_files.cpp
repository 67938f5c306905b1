#include <fcntl.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>
#if __has_include(<linux/fs.h>)
#include <linux/fs.h>
#endif

#include <cerrno>
#include <cstdlib>
#include <memory>

#include "disc/image/file_system.h"

namespace kalco {
namespace {

constexpr int always = O_CLOEXEC | O_NONBLOCK | O_NOCTTY;

int flags_of(FileSystem::Access access) {
    switch (access) {
        case FileSystem::Access::read: return always | O_RDONLY;
        case FileSystem::Access::write: return always | O_RDWR;
        case FileSystem::Access::directory: break;
    }
    return always | O_RDONLY | O_DIRECTORY;
}

/// Both kinds of lock are taken, so that a program that knows only one of them is met as well. A file system without
/// locks opens the file all the same.
int lock_exclusively(int fd) {
    if (::flock(fd, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) return -EWOULDBLOCK;
#ifdef F_OFD_SETLK
    struct flock whole {};
    whole.l_type = F_WRLCK;
    whole.l_whence = SEEK_SET;
    if (::fcntl(fd, F_OFD_SETLK, &whole) != 0 && (errno == EAGAIN || errno == EACCES)) return -EWOULDBLOCK;
#endif
    return 0;
}

FileSystem::About about_of(const struct stat& status) {
    FileSystem::About about;
    if (S_ISREG(status.st_mode)) about.kind = FileSystem::Kind::file;
    if (S_ISBLK(status.st_mode)) about.kind = FileSystem::Kind::block_device;
    about.size = status.st_size;
    about.device = status.st_dev;
    about.number = status.st_ino;
    about.permissions = status.st_mode & 0777U;
    return about;
}

int result_of(int result) {
    return result < 0 ? -errno : result;
}

class SystemFiles final : public FileSystem {
public:
    int open(const std::string& path, Access access) override {
        return result_of(::open(path.c_str(), flags_of(access)));
    }
    int create(const std::string& path, unsigned permissions) override {
        return result_of(::open(path.c_str(), always | O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, permissions));
    }
    void close(int fd) override { ::close(fd); }

    int about(int fd, About& about) override {
        struct stat status {};
        if (::fstat(fd, &status) != 0) return -errno;
        about = about_of(status);
        if (about.kind != Kind::block_device) return 0;
        about.size = ::lseek(fd, 0, SEEK_END);
        return about.size < 0 ? -errno : 0;
    }
    int about_path(const std::string& path, About& about) override {
        struct stat status {};
        if (::lstat(path.c_str(), &status) != 0) return -errno;
        about = about_of(status);
        return 0;
    }

    int lock(int fd) override { return lock_exclusively(fd); }

    std::int64_t read(int fd, char* to, std::size_t bytes, std::int64_t offset) override {
        const ssize_t got = ::pread(fd, to, bytes, offset);
        return got < 0 ? -errno : got;
    }
    std::int64_t write(int fd, const char* from, std::size_t bytes, std::int64_t offset) override {
        const ssize_t put = ::pwrite(fd, from, bytes, offset);
        return put < 0 ? -errno : put;
    }
    int share_blocks(int to, int from) override {
#ifdef FICLONE
        return result_of(::ioctl(to, FICLONE, from));
#else
        return FileSystem::share_blocks(to, from);
#endif
    }
    int truncate(int fd, std::int64_t size) override {
        return result_of(::ftruncate(fd, size));
    }
    int sync(int fd) override {
        return result_of(::fsync(fd));
    }
    int remove(const std::string& path) override {
        return result_of(::unlink(path.c_str()));
    }

    std::string resolved(const std::string& path) override {
        const std::unique_ptr<char, decltype(&std::free)> real(::realpath(path.c_str(), nullptr), &std::free);
        return real ? std::string(real.get()) : path;
    }
};

}  // namespace

FileSystem& system_files() {
    static SystemFiles files;
    return files;
}

}  // namespace kalco

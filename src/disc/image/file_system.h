#pragma once

#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <string>

namespace kalco {

/// The system calls below an open image, one for one; tests put failing ones in their place. A negative result is a
/// failure: minus its errno. Paths are those of the system.
class FileSystem {
public:
    enum class Access {
        read,
        write,      ///< Reading and writing.
        directory,  ///< A directory, to be synced.
    };
    enum class Kind { file, block_device, other };
    struct About {
        Kind kind = Kind::other;
        std::int64_t size = 0;
        std::uint64_t device = 0;
        std::uint64_t number = 0;  ///< Which file of the device it is.
        unsigned permissions = 0;  ///< The nine bits.

        bool same_file(const About& other) const { return device == other.device && number == other.number; }
    };

    virtual ~FileSystem() = default;

    /// A descriptor. Never waits for the other end of a pipe.
    virtual int open(const std::string& path, Access access) = 0;
    /// A new file for writing; EEXIST when there is a file or a link of that name.
    virtual int create(const std::string& path, unsigned permissions) = 0;
    virtual void close(int fd) = 0;
    virtual int about(int fd, About& about) = 0;
    /// A link at the path's end is not followed: it is of the kind `other`.
    virtual int about_path(const std::string& path, About& about) = 0;
    /// Keeps other programs out until the descriptor is closed; EWOULDBLOCK when one is there already.
    virtual int lock(int fd) = 0;
    virtual std::int64_t read(int fd, char* to, std::size_t bytes, std::int64_t offset) = 0;
    virtual std::int64_t write(int fd, const char* from, std::size_t bytes, std::int64_t offset) = 0;
    virtual int truncate(int fd, std::int64_t size) = 0;
    /// Makes a new file one of the other's blocks, without copying them. Most file systems can't.
    virtual int share_blocks(int /*to*/, int /*from*/) { return -ENOTSUP; }
    virtual int sync(int fd) = 0;
    virtual int remove(const std::string& path) = 0;
    /// The absolute path without links; the path itself when it can't be found out.
    virtual std::string resolved(const std::string& path) = 0;
};

/// Makes a call again that a signal broke off.
template <typename Call>
auto after_signals(Call call) {
    auto result = call();
    while (result == -EINTR) result = call();
    return result;
}

/// The real one.
FileSystem& system_files();

}  // namespace kalco

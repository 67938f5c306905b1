#include "disc/image/new_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <optional>
#include <system_error>
#include <utility>

namespace kalco {
namespace {

[[noreturn]] void fail(const std::string& path, int error) {
    throw std::system_error(error, std::system_category(), path);
}

/// Calls again what a signal broke off.
template <typename Call>
auto retried(Call call) {
    for (;;) {
        const auto result = call();
        if (result >= 0 || errno != EINTR) return result;
    }
}

/// What is at the path; nothing when it is free.
std::optional<struct stat> existing_file(const std::string& path) {
    struct stat about {};
    if (::stat(path.c_str(), &about) == 0) return about;
    if (errno == ENOENT) return std::nullopt;
    fail(path, errno);
}

std::string directory_of(const std::string& path) {
    const auto parent = std::filesystem::path(path).parent_path();
    return parent.empty() ? "." : parent.string();
}

/// Not every file system knows this for its directories; the name stands then as soon as the system wishes.
void sync_directory(const std::string& directory) {
    const int fd = retried([&] { return ::open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); });
    if (fd < 0) return;
    const int result = retried([&] { return ::fsync(fd); });
    const int error = errno;
    ::close(fd);
    if (result != 0 && error != EINVAL) fail(directory, error);
}

}  // namespace

std::string link_target(const std::string& path) {
    constexpr int most_links = 40;
    std::filesystem::path target(path);
    std::error_code none;
    for (int links = 0; std::filesystem::is_symlink(target, none); ++links) {
        if (links == most_links) fail(path, ELOOP);
        target = target.parent_path() / std::filesystem::read_symlink(target);
    }
    return target.string();
}

NewFile::NewFile(const std::string& path) : target_(link_target(path)) {
    const auto existing = existing_file(target_);
    if (existing && !S_ISREG(existing->st_mode)) fail(path, S_ISDIR(existing->st_mode) ? EISDIR : ENOTSUP);
    // Renaming asks the directory alone: a file that is write-protected would go all the same.
    if (existing && ::faccessat(AT_FDCWD, target_.c_str(), W_OK, AT_EACCESS) != 0) fail(path, errno);
    constexpr int most_parts = 100;
    for (int k = 0; fd_ < 0; ++k) {
        part_ = target_ + ".part" + (k == 0 ? "" : std::to_string(k));
        fd_ = retried([&] { return ::open(part_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666); });
        if (fd_ < 0 && (errno != EEXIST || k == most_parts)) fail(path, errno);
    }
    if (existing) {
        // Only some may give files away; the mode comes last, as a change of the owner takes bits from it.
        static_cast<void>(::fchown(fd_, existing->st_uid, existing->st_gid) == 0);
        static_cast<void>(::fchmod(fd_, existing->st_mode & 07777));
    }
}

NewFile::~NewFile() {
    if (fd_ >= 0) ::close(fd_);
    if (!part_.empty()) ::unlink(part_.c_str());
}

void NewFile::write(std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t put = retried([&] { return ::pwrite(fd_, bytes.data(), bytes.size(), end_); });
        if (put <= 0) fail(target_, put < 0 ? errno : EIO);
        bytes.remove_prefix(static_cast<std::size_t>(put));
        end_ += put;
    }
}

void NewFile::finish(Existing existing) {
    if (retried([&] { return ::fsync(fd_); }) != 0 && errno != EINVAL) fail(target_, errno);
    if (::close(std::exchange(fd_, -1)) != 0 && errno != EINTR) fail(target_, errno);
    // A link is refused where a file has come up meanwhile; a renaming would take its place. Some file systems have
    // no links.
    if (existing == Existing::keep && ::link(part_.c_str(), target_.c_str()) == 0) {
        ::unlink(part_.c_str());
    } else {
        if (existing == Existing::keep && errno == EEXIST) fail(target_, EEXIST);
        if (::rename(part_.c_str(), target_.c_str()) != 0) fail(target_, errno);
    }
    part_.clear();
    sync_directory(directory_of(target_));
}

}  // namespace kalco

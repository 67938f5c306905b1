#include "ctl/partial_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>
#include <utility>

#include "disc/image/file_error.h"

namespace kalco::ctl {
namespace {

[[noreturn]] void fail(const std::string& path, int code) {
    throw FileError(path, std::system_category().message(code));
}

}  // namespace

PartialFile::PartialFile(std::string final_path) : final_path_(std::move(final_path)) {
    constexpr int attempts = 100;
    for (int k = 0; fd_ < 0; ++k) {
        path_ = final_path_ + ".part" + (k == 0 ? "" : std::to_string(k));
        fd_ = ::open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (fd_ < 0 && (errno != EEXIST || k == attempts)) fail(path_, errno);
    }
}

PartialFile::~PartialFile() {
    if (fd_ >= 0) ::close(fd_);
    if (!path_.empty()) ::unlink(path_.c_str());
}

void PartialFile::write(std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t put = ::write(fd_, bytes.data(), bytes.size());
        if (put < 0 && errno == EINTR) continue;
        if (put < 0) fail(path_, errno);
        bytes.remove_prefix(static_cast<std::size_t>(put));
    }
}

void PartialFile::finish(bool replace) {
    if (::fsync(fd_) != 0 && errno != EINVAL) fail(path_, errno);
    const int fd = std::exchange(fd_, -1);
    if (::close(fd) != 0) fail(path_, errno);
    // A link is refused where a file has come up meanwhile; a renaming would take its place.
    if (!replace && ::link(path_.c_str(), final_path_.c_str()) == 0) return;
    if (!replace && errno == EEXIST) fail(final_path_, errno);
    if (::rename(path_.c_str(), final_path_.c_str()) != 0) fail(final_path_, errno);
    path_.clear();
}

}  // namespace kalco::ctl

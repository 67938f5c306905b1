#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <stdexcept>
#include <system_error>

#include "ctl/demo/demo_image.h"

namespace kalco::demo {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void fail(const std::string& path, int code) {
    throw std::runtime_error(path + ": " + std::system_category().message(code));
}

/// A new file that goes away again unless it takes its final name.
class PartialFile {
public:
    explicit PartialFile(const std::string& final_path) {
        constexpr int attempts = 100;
        for (int k = 0; fd_ < 0; ++k) {
            path_ = final_path + ".part" + (k == 0 ? "" : std::to_string(k));
            fd_ = ::open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
            if (fd_ < 0 && (errno != EEXIST || k == attempts)) fail(path_, errno);
        }
    }
    PartialFile(const PartialFile&) = delete;
    PartialFile& operator=(const PartialFile&) = delete;
    ~PartialFile() {
        if (fd_ >= 0) ::close(fd_);
        if (!path_.empty()) ::unlink(path_.c_str());
    }

    void write(const RawSector& sector) {
        for (std::size_t done = 0; done < sector.size();) {
            const ssize_t put = ::write(fd_, sector.data() + done, sector.size() - done);
            if (put < 0 && errno == EINTR) continue;
            if (put < 0) fail(path_, errno);
            done += static_cast<std::size_t>(put);
        }
    }

    void finish(const std::string& final_path, bool replace) {
        if (::fsync(fd_) != 0 && errno != EINVAL) fail(path_, errno);
        const int fd = fd_;
        fd_ = -1;
        if (::close(fd) != 0) fail(path_, errno);
        // A link is refused where a file has come up meanwhile; a renaming would take its place.
        if (!replace && ::link(path_.c_str(), final_path.c_str()) == 0) return;
        if (!replace && errno == EEXIST) fail(final_path, errno);
        if (::rename(path_.c_str(), final_path.c_str()) != 0) fail(final_path, errno);
        path_.clear();
    }

private:
    std::string path_;
    int fd_ = -1;
};

void refuse_existing(const std::string& path, bool replace) {
    std::error_code ignored;
    const fs::file_status status = fs::status(path, ignored);
    if (!fs::exists(status)) return;
    if (!fs::is_regular_file(status)) throw std::runtime_error(path + ": it is no plain file");
    if (!replace) throw std::runtime_error(path + ": it exists already; --force replaces it");
}

}  // namespace

void write_image(const DemoDisc& disc, const std::string& path, bool replace, const Progress& progress) {
    refuse_existing(path, replace);
    PartialFile file(path);
    for (std::uint32_t number = 0; number < disc.sectors(); ++number) {
        file.write(disc.sector(number));
        progress(number + 1);
    }
    file.finish(path, replace);
}

}  // namespace kalco::demo

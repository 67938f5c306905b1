#pragma once

#include <string>

#include "disc/image/file_system.h"
#include "disc/image/opening.h"

namespace kalco::bench {

/// The real file system, but for the wait until the disk has taken something.
class UnsyncedFiles final : public FileSystem {
public:
    int open(const std::string& path, Access access) override { return below_.open(path, access); }
    int create(const std::string& path, unsigned permissions) override { return below_.create(path, permissions); }
    void close(int fd) override { below_.close(fd); }
    int about(int fd, About& about) override { return below_.about(fd, about); }
    int about_path(const std::string& path, About& about) override { return below_.about_path(path, about); }
    int lock(int fd) override { return below_.lock(fd); }
    std::int64_t read(int fd, char* to, std::size_t bytes, std::int64_t offset) override {
        return below_.read(fd, to, bytes, offset);
    }
    std::int64_t write(int fd, const char* from, std::size_t bytes, std::int64_t offset) override {
        return below_.write(fd, from, bytes, offset);
    }
    int truncate(int fd, std::int64_t size) override { return below_.truncate(fd, size); }
    int sync(int /*fd*/) override { return 0; }
    int remove(const std::string& path) override { return below_.remove(path); }
    std::string resolved(const std::string& path) override { return below_.resolved(path); }

private:
    FileSystem& below_ = system_files();
};

}  // namespace kalco::bench

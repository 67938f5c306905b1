#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>

#include "disc/image/file_error.h"
#include "disc/image/new_file.h"
#include "disc/runtime_error.h"
#include "editor/window/side_files.h"

namespace kalco {
namespace {

struct CloseFile {
    void operator()(std::FILE* file) const { static_cast<void>(std::fclose(file)); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

std::filesystem::path path_of(const std::string& utf8) {
    return {reinterpret_cast<const char8_t*>(utf8.c_str())};
}

/// Error 61 when the system tells that there is no room, else the other one.
[[noreturn]] void fail(int code, int other) {
    throw RuntimeError(code == ENOSPC || code == EDQUOT || code == EFBIG ? error::disk_full : other);
}

class DiskReader final : public SideFiles::Reader {
public:
    explicit DiskReader(const std::string& path) {
        // A directory, a pipe or a device is no side file, and some of them never end.
        std::error_code failure;
        const auto status = std::filesystem::status(path_of(path), failure);
        if (status.type() == std::filesystem::file_type::not_found) throw RuntimeError(error::file_not_found);
        if (!std::filesystem::is_regular_file(status)) throw RuntimeError(error::path_access);
        file_.reset(std::fopen(path.c_str(), "rb"));
        if (!file_) throw RuntimeError(errno == ENOENT ? error::file_not_found : error::path_access);
    }

    std::string next_block() override {
        constexpr std::size_t block_bytes = 1 << 16;
        std::string block(block_bytes, '\0');
        block.resize(std::fread(block.data(), 1, block.size(), file_.get()));
        if (std::ferror(file_.get()) != 0) throw RuntimeError(error::device_io);
        return block;
    }

private:
    File file_;
};

class DiskWriter final : public SideFiles::Writer {
public:
    explicit DiskWriter(const std::string& path) try : file_(path) {
    } catch (const SystemFileError& failure) {
        fail(failure.code(), error::path_access);
    }

    void finish(std::string_view text) override {
        try {
            file_.write(text);
            file_.finish();
        } catch (const SystemFileError& failure) {
            fail(failure.code(), error::device_io);
        }
    }

private:
    NewFile file_;
};

class DiskFiles final : public SideFiles {
public:
    void make_directory(const std::string& path) override {
        std::error_code failure;
        if (std::filesystem::exists(path_of(path), failure)) return;
        if (std::filesystem::create_directory(path_of(path), failure)) return;
        fail(failure.value(), error::path_access);
    }
    std::unique_ptr<Reader> read(const std::string& path) override { return std::make_unique<DiskReader>(path); }
    std::unique_ptr<Writer> replace(const std::string& path) override { return std::make_unique<DiskWriter>(path); }
};

}  // namespace

SideFiles& disk_files() {
    static DiskFiles files;
    return files;
}

}  // namespace kalco

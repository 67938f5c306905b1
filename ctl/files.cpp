#include "ctl/files.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <iostream>
#include <memory>
#include <system_error>

#include "disc/image/file_error.h"
#include "disc/image/new_file.h"

namespace kalco::ctl {
namespace {

namespace fs = std::filesystem;

struct Closing {
    void operator()(std::FILE* file) const { static_cast<void>(std::fclose(file)); }
};
using File = std::unique_ptr<std::FILE, Closing>;

File opened(const std::string& path, const char* mode) {
    File file(std::fopen(path.c_str(), mode));
    if (!file) throw SystemFileError(path, errno);
    return file;
}

[[noreturn]] void fail(const std::string& path) {
    throw SystemFileError(path, errno);
}

/// A pipe or device, which can't be replaced.
void write_through(const std::string& path, std::string_view bytes) {
    File file = opened(path, "wb");
    if (std::fwrite(bytes.data(), 1, bytes.size(), file.get()) != bytes.size()) fail(path);
    if (std::fclose(file.release()) != 0) fail(path);
}

}  // namespace

std::string read_file(const std::string& path, std::size_t most_bytes) {
    constexpr std::size_t chunk = std::size_t{64} << 10;
    const File file = opened(path, "rb");
    std::string bytes;
    for (;;) {
        const std::size_t held = bytes.size();
        bytes.resize(held + chunk);
        const std::size_t got = std::fread(bytes.data() + held, 1, chunk, file.get());
        bytes.resize(held + got);
        if (bytes.size() > most_bytes) {
            throw FileError(path, "it has more than " + std::to_string(most_bytes >> 20) + " MiB");
        }
        if (std::ferror(file.get()) != 0) fail(path);
        if (got == 0) return bytes;
    }
}

std::string output_target(const std::string& path, std::span<const std::string> images) {
    std::error_code ignored;
    for (const std::string& image : images) {
        if (fs::equivalent(path, image, ignored)) throw FileError(path, "that is the image itself");
    }
    const fs::file_status status = fs::status(path, ignored);
    if (fs::is_directory(status)) throw FileError(path, "that is a directory");
    if (!fs::exists(status)) return path;
    if (!fs::is_regular_file(status)) throw FileError(path, "that is no plain file");
    return fs::canonical(path).string();
}

void write_output(const std::string& path, std::string_view bytes, std::span<const std::string> images) {
    if (path.empty()) {
        std::cout << bytes;
        return;
    }
    std::error_code ignored;
    const fs::file_status status = fs::status(path, ignored);
    const bool device = fs::exists(status) && !fs::is_regular_file(status) && !fs::is_directory(status);
    if (device) return write_through(path, bytes);
    NewFile file(output_target(path, images));
    file.write(bytes);
    file.finish();
}

}  // namespace kalco::ctl

#include "editor/window/side_file.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <memory>

#include "disc/codec/latin1.h"
#include "disc/runtime_error.h"

namespace kalco {
namespace {

struct CloseFile {
    // Only a file that was read is closed here; a written one is closed by hand, to see the failure.
    void operator()(std::FILE* file) const { static_cast<void>(std::fclose(file)); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

std::filesystem::path path_of(const std::string& utf8) {
    return {reinterpret_cast<const char8_t*>(utf8.c_str())};
}

std::string contents(const std::string& path) {
    // A directory, a pipe or a device is no side file, and some of them never end.
    std::error_code failure;
    const auto status = std::filesystem::status(path_of(path), failure);
    if (status.type() == std::filesystem::file_type::not_found) throw RuntimeError(error::file_not_found);
    if (!std::filesystem::is_regular_file(status)) throw RuntimeError(error::path_access);
    const File file(std::fopen(path.c_str(), "rb"));
    if (!file) throw RuntimeError(errno == ENOENT ? error::file_not_found : error::path_access);
    std::string text;
    std::string buffer(1 << 16, '\0');
    while (const std::size_t got = std::fread(buffer.data(), 1, buffer.size(), file.get())) text.append(buffer, 0, got);
    if (std::ferror(file.get()) != 0) throw RuntimeError(error::device_io);
    return text;
}

}  // namespace

std::string side_directory(const Platform& platform, std::string_view name) {
    return platform.program_directory() + '/' + std::string(name);
}

void make_side_directory(const Platform& platform, std::string_view name) {
    const auto path = path_of(side_directory(platform, name));
    std::error_code failure;
    if (std::filesystem::exists(path, failure)) return;
    if (!std::filesystem::create_directory(path, failure)) throw RuntimeError(error::path_access);
}

std::string side_file_path(const Platform& platform, std::string_view directory_name, std::string_view file_name) {
    constexpr std::string_view refused = "\\/:*?\"<>|";
    for (const char character : file_name) {
        if (static_cast<unsigned char>(character) < 0x20 || refused.find(character) != std::string_view::npos) {
            throw RuntimeError(error::bad_file_name);
        }
    }
    return side_directory(platform, directory_name) + '/' + utf8_of_latin1(file_name);
}

std::vector<std::string> read_lines(const std::string& path) {
    const std::string text = contents(path);
    std::vector<std::string> lines;
    std::size_t place = 0;
    while (place < text.size()) {
        const std::size_t end = std::min(text.find_first_of("\r\n", place), text.size());
        lines.push_back(text.substr(place, end - place));
        place = end + (text.compare(end, 2, "\r\n") == 0 ? 2 : 1);
    }
    return lines;
}

std::string read_first_line(const std::string& path) {
    std::vector<std::string> lines = read_lines(path);
    if (lines.empty()) throw RuntimeError(error::past_end_of_file);
    return std::move(lines.front());
}

void write_lines(const std::string& path, const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) text += line + "\r\n";
    File file(std::fopen(path.c_str(), "wb"));
    if (!file) throw RuntimeError(error::path_access);
    errno = 0;
    const bool written = std::fwrite(text.data(), 1, text.size(), file.get()) == text.size();
    const bool closed = std::fclose(file.release()) == 0;
    if (!written || !closed) throw RuntimeError(errno == ENOSPC ? error::disk_full : error::device_io);
}

}  // namespace kalco

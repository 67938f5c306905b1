#include "editor/window/side_file.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <optional>
#include <system_error>

#include "disc/codec/latin1.h"
#include "disc/image/file_error.h"
#include "disc/image/new_file.h"
#include "disc/runtime_error.h"

namespace kalco {
namespace {

struct CloseFile {
    void operator()(std::FILE* file) const { static_cast<void>(std::fclose(file)); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

std::filesystem::path path_of(const std::string& utf8) {
    return {reinterpret_cast<const char8_t*>(utf8.c_str())};
}

/// Reads a side file block by block. Errors 53 and 75 when it can't be opened.
class Reader {
public:
    explicit Reader(const std::string& path) {
        // A directory, a pipe or a device is no side file, and some of them never end.
        std::error_code failure;
        const auto status = std::filesystem::status(path_of(path), failure);
        if (status.type() == std::filesystem::file_type::not_found) throw RuntimeError(error::file_not_found);
        if (!std::filesystem::is_regular_file(status)) throw RuntimeError(error::path_access);
        file_.reset(std::fopen(path.c_str(), "rb"));
        if (!file_) throw RuntimeError(errno == ENOENT ? error::file_not_found : error::path_access);
    }

    /// Appends the next block to the text; false at the file's end.
    bool append_to(std::string& text) {
        const std::size_t got = std::fread(buffer_.data(), 1, buffer_.size(), file_.get());
        if (std::ferror(file_.get()) != 0) throw RuntimeError(error::device_io);
        if (text.size() + got > largest_side_file) throw RuntimeError(error::out_of_memory);
        text.append(buffer_, 0, got);
        return got != 0;
    }

private:
    File file_;
    std::string buffer_ = std::string(1 << 16, '\0');
};

/// Error 61 when the system tells that there is no room, else the other one.
[[noreturn]] void fail(int code, int other) {
    throw RuntimeError(code == ENOSPC || code == EDQUOT || code == EFBIG ? error::disk_full : other);
}

void finish(NewFile& file, const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) text += line + "\r\n";
    try {
        file.write(text);
        file.finish();
    } catch (const SystemFileError& failure) {
        fail(failure.code(), error::device_io);
    }
}

/// What is to be empty after an error can stay as it was when even that fails: the error is told all the same.
void leave_empty(NewFile& file) {
    try {
        file.finish();
    } catch (const SystemFileError&) {
        return;
    }
}

}  // namespace

std::string side_directory(const Platform& platform, std::string_view name) {
    return platform.program_directory() + '/' + std::string(name);
}

void make_side_directory(const Platform& platform, std::string_view name) {
    const auto path = path_of(side_directory(platform, name));
    std::error_code failure;
    if (std::filesystem::exists(path, failure)) return;
    if (std::filesystem::create_directory(path, failure)) return;
    fail(failure.value(), error::path_access);
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
    std::string text;
    for (Reader file(path); file.append_to(text);) {
    }
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
    Reader file(path);
    std::string text;
    std::size_t end = std::string::npos;
    for (std::size_t place = 0; end == std::string::npos && file.append_to(text); place = text.size()) {
        end = text.find_first_of("\r\n", place);
    }
    if (text.empty()) throw RuntimeError(error::past_end_of_file);
    return text.substr(0, end);
}

void write_lines(const std::string& path, const std::vector<std::string>& lines) {
    write_lines_made(path, [&] { return lines; });
}

void write_lines_made(const std::string& path, const std::function<std::vector<std::string>()>& make) {
    std::optional<NewFile> file;
    try {
        file.emplace(path);
    } catch (const SystemFileError& failure) {
        fail(failure.code(), error::path_access);
    }
    std::vector<std::string> lines;
    try {
        lines = make();
    } catch (const RuntimeError&) {
        leave_empty(*file);
        throw;
    }
    finish(*file, lines);
}

}  // namespace kalco

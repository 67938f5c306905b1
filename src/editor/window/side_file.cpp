#include "editor/window/side_file.h"

#include "disc/codec/latin1.h"
#include "disc/codec/lines.h"
#include "disc/runtime_error.h"

namespace kalco {
namespace {

/// Appends the next block to the text; false at the file's end.
bool append_block(SideFiles::Reader& file, std::string& text) {
    const std::string block = file.next_block();
    if (text.size() + block.size() > largest_side_file) throw RuntimeError(error::out_of_memory);
    text += block;
    return !block.empty();
}

/// What is to be empty after an error can stay as it was when even that fails: the error is told all the same.
void leave_empty(SideFiles::Writer& file) {
    try {
        file.finish({});
    } catch (const RuntimeError&) {
        return;
    }
}

}  // namespace

std::string side_directory(const Platform& platform, std::string_view name) {
    return platform.program_directory() + '/' + std::string(name);
}

void make_side_directory(const Platform& platform, std::string_view name) {
    platform.side_files().make_directory(side_directory(platform, name));
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

std::vector<std::string> read_lines(const Platform& platform, const std::string& path) {
    std::string text;
    const auto file = platform.side_files().read(path);
    while (append_block(*file, text)) {
    }
    return lines_of(text);
}

std::string read_first_line(const Platform& platform, const std::string& path) {
    const auto file = platform.side_files().read(path);
    std::string text;
    std::size_t end = std::string::npos;
    for (std::size_t place = 0; end == std::string::npos && append_block(*file, text); place = text.size()) {
        end = text.find_first_of("\r\n", place);
    }
    if (text.empty()) throw RuntimeError(error::past_end_of_file);
    return text.substr(0, end);
}

void write_lines(const Platform& platform, const std::string& path, const std::vector<std::string>& lines) {
    platform.side_files().replace(path)->finish(text_of_lines(lines));
}

void write_lines_made(const Platform& platform, const std::string& path,
                      const std::function<std::vector<std::string>()>& make) {
    const auto file = platform.side_files().replace(path);
    std::vector<std::string> lines;
    try {
        lines = make();
    } catch (const RuntimeError&) {
        leave_empty(*file);
        throw;
    }
    file->finish(text_of_lines(lines));
}

}  // namespace kalco

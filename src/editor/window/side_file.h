#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "editor/window/platform.h"

/// The small text files beside the program. Lines are Latin-1 bytes; paths are UTF-8.
namespace kalco {

/// The sub-directories of the program's directory.
namespace directory {
inline constexpr std::string_view export_teams = "Export";
inline constexpr std::string_view transfer = "Transfer";
inline constexpr std::string_view formations = "Moduli&Barre";
inline constexpr std::string_view numbers = "N\xC2\xB0 Maglia";
inline constexpr std::string_view kickers = "Kickers&Capitani";
}  // namespace directory

/// The path of a sub-directory.
std::string side_directory(const Platform& platform, std::string_view name);
/// Makes the sub-directory if nothing of that name is there. Error 75 when it cannot be made, 61 when the disk is
/// full.
void make_side_directory(const Platform& platform, std::string_view name);

/// The path of a file in the sub-directory; the file's name is Latin-1, each byte one character. Error 52 when it holds
/// a character that some file system refuses: side files move between machines and never leave their directory.
std::string side_file_path(const Platform& platform, std::string_view directory_name, std::string_view file_name);

/// In bytes. More of a file is never read.
inline constexpr std::size_t largest_side_file = 1 << 20;

/// All lines; they end at CR LF, CR or LF, and a last line without an end counts. Error 53 when there is no such file,
/// 75 when it cannot be opened, 57 when it cannot be read on, 7 when it is larger than the largest.
std::vector<std::string> read_lines(const Platform& platform, const std::string& path);
/// The first line; what stands behind it is not looked at. Errors as for read_lines, 62 when there is none.
std::string read_first_line(const Platform& platform, const std::string& path);
/// Replaces the file when the new one is whole and on the disk; until then the old one stands. Each line is closed by
/// CR LF. Error 75 when there can't be such a file, 61 when the disk is full, 57 when it can't be written.
void write_lines(const Platform& platform, const std::string& path, const std::vector<std::string>& lines);
/// The same with lines that are made once it is sure that there can be a file. A RuntimeError of `make` passes through
/// and leaves the file empty.
void write_lines_made(const Platform& platform, const std::string& path,
                      const std::function<std::vector<std::string>()>& make);

}  // namespace kalco

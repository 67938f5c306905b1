#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

/// The files of commands that are no images. Every failure is a FileError.
namespace kalco::ctl {

/// The whole file, which must not have more than `most_bytes`.
std::string read_file(const std::string& path, std::size_t most_bytes);

/// Puts the bytes into a file, whole or not at all; an existing one is replaced, a link followed. Something that is no
/// plain file is written to as it is. An empty path is standard output. `images` are the files that are being read:
/// none of them is ever replaced.
void write_output(const std::string& path, std::string_view bytes, std::span<const std::string> images);

/// Where a new plain file of that path goes: an existing one is replaced, a link followed. Throws FileError for what is
/// no plain file and for one of the images.
std::string output_target(const std::string& path, std::span<const std::string> images);

}  // namespace kalco::ctl

#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

/// What a file is, by its bytes: commands work on raw sectors of 2352 bytes and tell how to get them from anything
/// else.
namespace kalco {

/// The sectors up to the last one that holds a table of the disc.
inline constexpr std::int64_t least_disc_sectors = 2404;

struct ContainerReport {
    /// A sentence that tells what the file is and how to get a raw image from it. Empty: it is one.
    std::string refusal;
    /// A raw image has it in sector 16.
    bool volume_descriptor = false;
};

/// Gives `bytes` bytes of the file from a 0-based offset on, zeroes beyond its end.
using FileBytes = std::function<std::string(std::int64_t offset, std::size_t bytes)>;

/// `size` in bytes. An image of fewer than `least_sectors` sectors is refused.
ContainerReport look_at_container(std::int64_t size, const FileBytes& bytes,
                                  std::int64_t least_sectors = least_disc_sectors);

}  // namespace kalco

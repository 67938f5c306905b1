#include "work/container.h"

#include <array>

#include "disc/image/position.h"

namespace kalco {
namespace {

using namespace std::string_view_literals;

/// Bytes at an offset that tell what a file is, and what to do about it.
struct Mark {
    std::int64_t offset;
    std::string_view bytes;
    std::string_view sentence;
};

/// The type byte stands before it, at the start of the volume descriptor's sector.
constexpr std::string_view volume_mark = "CD001";
constexpr int volume_sector = 16;
constexpr std::int64_t raw_volume_offset = volume_sector * sector_bytes + user_start + 1;
constexpr std::int64_t iso_volume_offset = volume_sector * user_bytes + 1;

constexpr std::array<Mark, 6> marks{{
    {iso_volume_offset, volume_mark,
     "an ISO image, with 2048 bytes a sector; what lies around them on the disc can't be made up: read the disc again "
     "as a "
     "raw image of 2352 bytes a sector (BIN/CUE)"},
    {0, "MComprHD", "a compressed CHD image; unpack it with 'chdman extractcd -i FILE -o image.cue -ob image.bin'"},
    {0, "ECM\0"sv, "an image packed as ECM; unpack it with 'unecm FILE image.bin'"},
    {0, "\0PBP"sv, "an image packed as PBP; extract the disc from it as BIN/CUE first"},
    {0, "PK\3\4", "a zip archive; unpack it with 'unzip FILE' and take the raw image in it"},
    {0, "7z\xBC\xAF\x27\x1C", "a 7z archive; unpack it with '7z x FILE' and take the raw image in it"},
}};

constexpr std::string_view sync_pattern = "\0\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\0"sv;
/// A sector with the subchannels' 96 bytes behind it.
constexpr std::int64_t subchannel_sector_bytes = 2448;
constexpr std::string_view subchannel_sentence = "an image with 2448 bytes a sector: the subchannels' 96 bytes lie "
                                                 "behind each one; read the disc, or convert the image, "
                                                 "without them (2352 bytes a sector)";

bool stands_at(const FileBytes& bytes, std::int64_t offset, std::string_view text) {
    return bytes(offset, text.size()) == text;
}

bool has_subchannels(std::int64_t size, const FileBytes& bytes) {
    if (!stands_at(bytes, 0, sync_pattern)) return false;
    if (size % subchannel_sector_bytes == 0 && size % sector_bytes != 0) return true;
    return stands_at(bytes, subchannel_sector_bytes, sync_pattern);
}

/// Empty for what may be a raw image.
std::string_view something_else(std::int64_t size, const FileBytes& bytes) {
    for (const Mark& mark : marks) {
        if (stands_at(bytes, mark.offset, mark.bytes)) return mark.sentence;
    }
    return has_subchannels(size, bytes) ? subchannel_sentence : std::string_view();
}

}  // namespace

ContainerReport look_at_container(std::int64_t size, const FileBytes& bytes, std::int64_t least_sectors) {
    ContainerReport report;
    report.volume_descriptor = stands_at(bytes, raw_volume_offset, volume_mark);
    if (!report.volume_descriptor) report.refusal = something_else(size, bytes);
    if (!report.refusal.empty()) return report;
    if (size % sector_bytes != 0) {
        report.refusal =
            "its size, " + std::to_string(size) + " bytes, is no multiple of 2352: it is cut off, or no raw image";
    } else if (size < least_sectors * sector_bytes) {
        report.refusal = "too short: it has " + std::to_string(size / sector_bytes) +
                         " sectors, and the game's tables reach to " + std::to_string(least_sectors);
    }
    return report;
}

}  // namespace kalco

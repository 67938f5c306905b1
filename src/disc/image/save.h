#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "disc/image/position.h"

namespace kalco {

/// A sector that a save changes: its bytes that lie in the image before and after it. These are 2352, fewer in a
/// sector that the image's end cuts, none in one beyond the end.
struct SectorChange {
    std::int64_t sector = 0;  ///< 0-based, counted from the file's first byte.
    std::string before;
    std::string after;

    std::int64_t offset() const { return sector * sector_bytes; }
    ImagePos position() const { return offset() + 1; }

    friend bool operator==(const SectorChange&, const SectorChange&) = default;
};

/// All that one save does to an image. Sectors rise.
struct Save {
    std::string what;  ///< A few words for the user, Latin-1: "Giocatore: Italy, Favussolo".
    std::vector<SectorChange> sectors;
    std::int64_t length_before = 0;  ///< Of the image, in bytes.
    std::int64_t length_after = 0;

    bool empty() const { return sectors.empty() && length_before == length_after; }
};

}  // namespace kalco

#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <span>

#include "disc/image/sector.h"
#include "work/check/sector_check.h"

/// The check of an image's sectors, of some or of all on all cores.
namespace kalco::check {

struct BadSector {
    std::int64_t sector = 0;
    CheckFields bad;

    friend bool operator==(const BadSector&, const BadSector&) = default;
};

struct Summary {
    std::int64_t sectors = 0;
    std::int64_t bad = 0;
    std::array<std::int64_t, sector_kinds> of_kind{};  ///< By SectorKind.

    void count(SectorKind kind, bool is_bad);
    Summary& operator+=(const Summary& other);
};

/// Fills `bytes`, a number of whole sectors, with those of the image from sector `first` on. check_all() calls it from
/// several threads at a time.
using ReadSectors = std::function<void(std::int64_t first, std::span<std::uint8_t> bytes)>;

/// What is told on the way, in the order of the sectors and one at a time, but from any thread.
struct Listener {
    std::function<void(const BadSector&)> bad = [](const BadSector&) {};
    /// Sectors that are done.
    std::function<void(std::int64_t)> progress = [](std::int64_t) {};
};

/// Looks at the sectors of these numbers.
Summary check_these(std::span<const int> sectors, const ReadSectors& read, const Listener& listener);

/// Looks at the first `sectors` sectors with `threads` threads (0: one for each core). An exception from `read` or from
/// the listener ends it and is thrown on; what lies before a sector that can't be read has been told.
Summary check_all(std::int64_t sectors, const ReadSectors& read, const Listener& listener, unsigned threads = 0,
                  const SectorCheck& check = {});

}  // namespace kalco::check

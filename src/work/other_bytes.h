#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <vector>

#include "disc/image/image.h"

namespace kalco {

/// Neighbouring bytes that differ.
struct ByteRun {
    ImagePos position = 0;
    std::int64_t bytes = 0;

    friend bool operator==(const ByteRun&, const ByteRun&) = default;
};

/// Where two images differ outside all fields of the sheets, from the first position on. A byte counts when a bit of it
/// that is no field's differs, and what only one of them has differs too; EDC and parities don't count. `progress` is
/// told how many bytes are compared.
std::vector<ByteRun> other_differences(const Image& a, const Image& b,
                                       const std::function<void(std::int64_t bytes)>& progress = {});
/// The same of the sectors that were written to.
std::vector<ByteRun> other_differences(std::span<const SectorChange> changes);

}  // namespace kalco

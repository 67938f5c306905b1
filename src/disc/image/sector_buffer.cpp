#include "disc/image/sector_buffer.h"

#include <algorithm>

namespace kalco {
namespace {

/// The part of a whole sector that lies in an image of `length` bytes.
std::string_view within(std::string_view sector, std::int64_t offset, std::int64_t length) {
    const std::int64_t bytes = std::clamp<std::int64_t>(length - offset, 0, sector_bytes);
    return sector.substr(0, static_cast<std::size_t>(bytes));
}

}  // namespace

void SectorBuffer::begin(std::int64_t length) {
    sectors_.clear();
    length_before_ = length_ = length;
}

void SectorBuffer::write(std::int64_t offset, std::string_view bytes, const Below& below) {
    if (bytes.empty()) return;
    const auto end = offset + static_cast<std::int64_t>(bytes.size());
    const std::int64_t first = offset / sector_bytes;
    const std::int64_t last = (end - 1) / sector_bytes;
    std::map<std::int64_t, Held> fresh;
    for (std::int64_t sector = first; sector <= last; ++sector) {
        if (sectors_.contains(sector)) continue;
        const std::string held = below(sector * sector_bytes, sector_bytes);
        fresh.emplace(sector, Held{held, held});
    }
    sectors_.merge(fresh);
    for (std::int64_t sector = first; sector <= last; ++sector) {
        const std::int64_t start = std::max(offset, sector * sector_bytes);
        const std::int64_t stop = std::min(end, (sector + 1) * sector_bytes);
        const auto count = static_cast<std::size_t>(stop - start);
        sectors_[sector].now.replace(static_cast<std::size_t>(start - sector * sector_bytes), count,
                                     bytes.substr(static_cast<std::size_t>(start - offset), count));
    }
    length_ = std::max(length_, end);
}

void SectorBuffer::set_length(std::int64_t length) {
    for (auto& [sector, held] : sectors_) {
        const auto kept = within(held.now, sector * sector_bytes, length).size();
        std::fill(held.now.begin() + static_cast<std::ptrdiff_t>(kept), held.now.end(), '\0');
    }
    length_ = length;
}

void SectorBuffer::overlay(std::int64_t offset, std::span<char> bytes) const {
    if (bytes.empty()) return;
    const auto end = offset + static_cast<std::int64_t>(bytes.size());
    for (auto held = sectors_.lower_bound(offset / sector_bytes);
         held != sectors_.end() && held->first * sector_bytes < end; ++held) {
        const std::int64_t sector_start = held->first * sector_bytes;
        const std::int64_t start = std::max(offset, sector_start);
        const std::int64_t stop = std::min(end, sector_start + sector_bytes);
        const auto count = static_cast<std::size_t>(stop - start);
        held->second.now.copy(bytes.data() + (start - offset), count, static_cast<std::size_t>(start - sector_start));
    }
}

std::vector<SectorChange> SectorBuffer::changes() const {
    std::vector<SectorChange> changed;
    for (const auto& [sector, held] : sectors_) {
        const std::int64_t offset = sector * sector_bytes;
        const std::string_view before = within(held.before, offset, length_before_);
        const std::string_view after = within(held.now, offset, length_);
        if (before != after) changed.push_back({sector, std::string(before), std::string(after)});
    }
    return changed;
}

Save SectorBuffer::save(std::string_view what) const {
    return {std::string(what), changes(), length_before_, length_};
}

}  // namespace kalco

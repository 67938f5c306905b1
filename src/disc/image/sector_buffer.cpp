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

std::string_view SectorBuffer::before(const Sectors::value_type& held) const {
    return within(held.second.before, held.first * sector_bytes, length_before_);
}

std::string_view SectorBuffer::now(const Sectors::value_type& held) const {
    return within(held.second.now, held.first * sector_bytes, length_);
}

std::vector<std::int64_t> SectorBuffer::changed_sectors() const {
    std::vector<std::int64_t> changed;
    for (const auto& held : sectors_) {
        if (before(held) != now(held)) changed.push_back(held.first);
    }
    return changed;
}

SectorChange SectorBuffer::change(std::int64_t sector) const {
    const auto& held = *sectors_.find(sector);
    return {sector, std::string(before(held)), std::string(now(held))};
}

std::vector<SectorChange> SectorBuffer::changes() const {
    std::vector<SectorChange> changed;
    for (const std::int64_t sector : changed_sectors()) changed.push_back(change(sector));
    return changed;
}

Save SectorBuffer::release(std::string_view what) {
    Save save{std::string(what), {}, length_before_, length_};
    // A disc that changes in every sector is twice as many bytes: they are never there two times.
    while (!sectors_.empty()) {
        auto held = sectors_.begin();
        const std::size_t bytes_before = before(*held).size();
        const std::size_t bytes_now = now(*held).size();
        if (before(*held) != now(*held)) {
            held->second.before.resize(bytes_before);
            held->second.now.resize(bytes_now);
            save.sectors.push_back({held->first, std::move(held->second.before), std::move(held->second.now)});
        }
        sectors_.erase(held);
    }
    begin(0);
    return save;
}

}  // namespace kalco

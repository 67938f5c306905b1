#include "work/other_bytes.h"

#include <algorithm>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "disc/image/sector.h"
#include "work/sheets/known_bits.h"

namespace kalco {
namespace {

SectorKind kind_of_bytes(std::string_view bytes) {
    if (bytes.size() != sector_bytes) return SectorKind::other;
    RawSector sector{};
    std::copy(bytes.begin(), bytes.end(), sector.begin());
    return kalco::kind_of(SectorView(sector));
}

class Comparison {
public:
    std::vector<ByteRun> runs() && { return std::move(runs_); }

    /// A sector that is not the same in both, as far as they have it.
    void compare(std::int64_t number, std::string_view a, std::string_view b) {
        const auto known = known_bits().find(number);
        const SectorKind kind = kind_of_bytes(a);
        // Where the kinds differ the bytes don't mean the same in both.
        const bool checked = kind == kind_of_bytes(b);
        for (std::size_t byte = 0; byte < std::max(a.size(), b.size()); ++byte) {
            if (checked && is_check_byte(kind, byte)) continue;
            unsigned other = 0xFF;
            if (byte < a.size() && byte < b.size()) {
                other = static_cast<unsigned char>(a[byte]) ^ static_cast<unsigned char>(b[byte]);
                if (known != known_bits().end()) other &= ~static_cast<unsigned>(known->second[byte]);
            }
            if (other != 0) add(number * sector_bytes + static_cast<std::int64_t>(byte) + 1);
        }
    }

private:
    void add(ImagePos position) {
        if (runs_.empty() || runs_.back().position + runs_.back().bytes != position) runs_.push_back({position, 0});
        ++runs_.back().bytes;
    }

    std::vector<ByteRun> runs_;
};

/// The bytes of an image from an offset on, none beyond its end.
std::string part_of(const Image& image, std::int64_t offset, std::int64_t bytes) {
    const std::int64_t there = std::clamp<std::int64_t>(image.length() - offset, 0, bytes);
    return image.read(offset + 1, static_cast<int>(there));
}

std::string_view sector_in(std::string_view bytes, std::int64_t sector) {
    const auto from = std::min(static_cast<std::size_t>(sector * sector_bytes), bytes.size());
    return bytes.substr(from, sector_bytes);
}

}  // namespace

std::vector<ByteRun> other_differences(const Image& a, const Image& b,
                                       const std::function<void(std::int64_t)>& progress) {
    constexpr std::int64_t sectors_at_once = 512;
    const std::int64_t length = std::max(a.length(), b.length());
    Comparison comparison;
    for (std::int64_t first = 0; first * sector_bytes < length; first += sectors_at_once) {
        const std::string in_a = part_of(a, first * sector_bytes, sectors_at_once * sector_bytes);
        const std::string in_b = part_of(b, first * sector_bytes, sectors_at_once * sector_bytes);
        for (std::int64_t sector = 0; in_a != in_b && sector < sectors_at_once; ++sector) {
            const std::string_view one = sector_in(in_a, sector);
            const std::string_view other = sector_in(in_b, sector);
            if (one != other) comparison.compare(first + sector, one, other);
        }
        if (progress) progress(std::min(length, (first + sectors_at_once) * sector_bytes));
    }
    return std::move(comparison).runs();
}

std::vector<ByteRun> other_differences(std::span<const SectorChange> changes) {
    Comparison comparison;
    for (const SectorChange& change : changes) comparison.compare(change.sector, change.before, change.after);
    return std::move(comparison).runs();
}

}  // namespace kalco

#include "work/sheets/disc_bytes.h"

#include <algorithm>
#include <stdexcept>

namespace kalco {
namespace {

constexpr std::size_t sector_size = sector_bytes;

}  // namespace

DiscBytes::DiscBytes(const Reader& reader, std::span<const int> sectors) : sectors_(sectors.begin(), sectors.end()) {
    if (!sectors_.empty()) slots_.assign(static_cast<std::size_t>(sectors_.back()) + 1, -1);
    bytes_.reserve(sectors_.size() * sector_size);
    for (std::size_t slot = 0; slot < sectors_.size(); ++slot) {
        slots_[static_cast<std::size_t>(sectors_[slot])] = static_cast<int>(slot);
        std::string bytes = reader(ImagePos{sectors_[slot]} * sector_bytes + 1, sector_bytes);
        bytes.resize(sector_size);
        bytes_.insert(bytes_.end(), bytes.begin(), bytes.end());
    }
}

std::size_t DiscBytes::place_of(const Pieces& field, int byte) const {
    const bool second = byte >= field[0].bytes && field.split();
    const ImagePos offset = second ? field[1].position - 1 + byte - field[0].bytes : field[0].position - 1 + byte;
    const auto sector = static_cast<std::size_t>(offset / sector_bytes);
    if (offset < 0 || sector >= slots_.size() || slots_[sector] < 0) {
        throw std::out_of_range("the sector of position " + std::to_string(offset + 1) + " is not held");
    }
    return static_cast<std::size_t>(slots_[sector]) * sector_size + static_cast<std::size_t>(offset % sector_bytes);
}

std::string DiscBytes::read(const Pieces& field) const {
    std::string text;
    for (int byte = 0; byte < field.bytes(); ++byte) text += static_cast<char>(at(field, byte));
    return text;
}

void DiscBytes::write(const Pieces& field, std::string_view text) {
    for (int byte = 0; byte < field.bytes(); ++byte) {
        const auto place = static_cast<std::size_t>(byte);
        at(field, byte) = place < text.size() ? static_cast<std::uint8_t>(text[place]) : 0;
    }
}

unsigned DiscBytes::bits(const Pieces& field, BitRange range) const {
    unsigned value = 0;
    const int first = range.first / byte_bits;
    for (int byte = (range.first + range.width - 1) / byte_bits; byte >= first; --byte) {
        value = value << byte_bits | at(field, byte);
    }
    return value >> (range.first % byte_bits) & ((1U << range.width) - 1);
}

void DiscBytes::set_bits(const Pieces& field, BitRange range, unsigned value) {
    const int shift = range.first % byte_bits;
    unsigned mask = ((1U << range.width) - 1) << shift;
    unsigned shifted = value << shift & mask;
    for (int byte = range.first / byte_bits; mask != 0; ++byte) {
        std::uint8_t& target = at(field, byte);
        target = static_cast<std::uint8_t>((target & ~mask) | (shifted & 0xFF));
        mask >>= byte_bits;
        shifted >>= byte_bits;
    }
}

void DiscBytes::put(ImagePos position, std::string_view bytes) {
    for (const char byte : bytes) {
        const auto sector = static_cast<std::size_t>((position - 1) / sector_bytes);
        if (sector < slots_.size() && slots_[sector] >= 0) {
            at(Piece{position, 1}, 0) = static_cast<std::uint8_t>(byte);
        }
        ++position;
    }
}

std::vector<DiscBytes::Run> differences(const DiscBytes& before, const DiscBytes& after) {
    std::vector<DiscBytes::Run> runs;
    for (std::size_t slot = 0; slot < before.sectors_.size(); ++slot) {
        bool open = false;
        for (std::size_t byte = 0; byte < sector_size; ++byte) {
            const std::size_t place = slot * sector_size + byte;
            const bool differs = before.bytes_[place] != after.bytes_[place];
            if (differs && !open) {
                runs.push_back({ImagePos{before.sectors_[slot]} * sector_bytes + static_cast<ImagePos>(byte) + 1, {}});
            }
            if (differs) runs.back().bytes += static_cast<char>(after.bytes_[place]);
            open = differs;
        }
    }
    return runs;
}

}  // namespace kalco

#include "work/sheets/known_bits.h"

#include "work/sheets/sheets.h"

namespace kalco {
namespace {

using KnownSectors = std::unordered_map<std::int64_t, KnownBits>;

/// The bits of a byte of a field that are its own.
std::uint8_t own_bits(const FieldPlace& place, int byte) {
    if (place.bits.width == 0) return 0xFF;
    const unsigned all = ((1U << place.bits.width) - 1) << place.bits.first;
    return static_cast<std::uint8_t>(all >> (byte_bits * byte));
}

void add(KnownSectors& sectors, const FieldPlace& place) {
    int byte = 0;
    for (const Piece& piece : place.bytes) {
        for (int i = 0; i < piece.bytes; ++i) {
            const std::int64_t offset = piece.position - 1 + i;
            sectors[offset / sector_bytes][static_cast<std::size_t>(offset % sector_bytes)] |= own_bits(place, byte++);
        }
    }
}

KnownSectors collect() {
    KnownSectors sectors;
    for (const Sheet& sheet : sheets()) {
        for (const SheetColumn& column : sheet.columns) {
            for (int row = 0; row < sheet.rows; ++row) {
                if (const auto place = column.place(row)) add(sectors, *place);
            }
        }
    }
    return sectors;
}

}  // namespace

const std::unordered_map<std::int64_t, KnownBits>& known_bits() {
    static const KnownSectors sectors = collect();
    return sectors;
}

}  // namespace kalco

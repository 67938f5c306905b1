#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <random>
#include <string>

#include "disc/image/sector.h"
#include "disc/image/sector_layout.h"

namespace kalco::test {

inline constexpr SectorKind all_kinds[] = {SectorKind::mode1, SectorKind::form1, SectorKind::form2, SectorKind::other};

/// A sector of the kind around the bytes that `next` gives, with the header of address 0 and all check fields.
template <typename Next>
RawSector sector_of(SectorKind kind, Next next) {
    RawSector sector{};
    for (std::size_t k = kind == SectorKind::other ? 0 : layout::sub_header; k < sector.size(); ++k) sector[k] = next();
    if (kind == SectorKind::other) return sector;
    std::copy(layout::sync_pattern.begin(), layout::sync_pattern.end(), sector.begin());
    const bool mode1 = kind == SectorKind::mode1;
    const std::array<std::uint8_t, 4> header{0x00, 0x02, 0x00, static_cast<std::uint8_t>(mode1 ? 1 : 2)};
    std::copy(header.begin(), header.end(), sector.begin() + layout::header);
    if (mode1) {
        std::fill_n(sector.begin() + layout::mode1_edc, layout::p - layout::mode1_edc, std::uint8_t{0});
    } else {
        for (const std::size_t k : {16U, 17U, 19U, 20U, 21U, 23U}) sector[k] = 0;
        sector[18] = sector[22] = kind == SectorKind::form2 ? 0x28 : 0x08;
    }
    renew_checks(sector);
    return sector;
}

inline RawSector random_sector(SectorKind kind, std::mt19937& random) {
    return sector_of(kind, [&random] { return static_cast<std::uint8_t>(random() & 0xFFU); });
}

inline std::string as_text(const RawSector& sector) {
    return {reinterpret_cast<const char*>(sector.data()), sector.size()};
}

}  // namespace kalco::test

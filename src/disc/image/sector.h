#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "disc/image/position.h"

/// Raw sectors: making them, and the fields that tell a drive whether it read one right. The editor itself never looks
/// at these; sector_layout.h has their places.
namespace kalco {

using RawSector = std::array<std::uint8_t, sector_bytes>;
using SectorBytes = std::span<std::uint8_t, sector_bytes>;
using SectorView = std::span<const std::uint8_t, sector_bytes>;

/// `other` is audio, or any sector without the sync pattern or with another mode: no check fields are known of it.
enum class SectorKind : std::uint8_t { mode1, form1, form2, other };
inline constexpr std::size_t sector_kinds = 4;

SectorKind kind_of(SectorView sector);

/// A set of the check fields of a sector.
struct CheckFields {
    bool edc = false;
    bool p = false;
    bool q = false;

    constexpr bool any() const { return edc || p || q; }
    friend constexpr bool operator==(const CheckFields&, const CheckFields&) = default;
};

/// The sectors before the volume descriptors. Some of a licensed disc have a zero EDC that the game may look at.
inline constexpr std::int64_t system_area_sectors = 16;

/// The fields that differ from what renew_checks would write into sector `number`. In the system area a zero EDC counts
/// as absent, and the parities are not looked at then.
CheckFields bad_fields(std::int64_t number, SectorView sector);

/// True when the sector has check fields and all of them fit. An absent EDC in the system area doesn't.
bool checks_all_fit(SectorView sector);

/// Whether the byte at an offset from a sector's start is one of its EDC or parities.
bool is_check_byte(SectorKind kind, std::size_t offset);

/// Renews the EDC, then P over it, then Q over both. Touches nothing else, the header least of all; a zero EDC of Form
/// 2 is absent and stays, and a sector of another kind too.
void renew_checks(SectorBytes sector);

/// The Mode 2 Form 1 sector with the logical address `lba` (0 is at 00:02:00 of the disc) around one sector's user
/// data. Throws std::out_of_range when the disc's clock, which ends at 99:59:74, has no such address.
RawSector make_sector(std::uint32_t lba, std::span<const std::uint8_t, user_bytes> user);

/// Where a sector stands on the disc's clock, as "00:02:00"; the minutes of a sector beyond the clock's end go on.
std::string disc_time(std::int64_t sector);

}  // namespace kalco

#include <algorithm>

#include "disc/image/sector.h"
#include "disc/image/sector_layout.h"

// The plain way to work the check fields out, byte by byte. work/check has a fast one for whole discs.
namespace kalco {
namespace {

// CRC-32 with the polynomial (x^16 + x^15 + x^2 + 1)(x^16 + x^2 + x + 1), low bit first, zero at the start and the end.
constexpr std::array<std::uint32_t, 256> make_edc_table() {
    std::array<std::uint32_t, 256> table{};
    for (std::uint32_t value = 0; value < 256; ++value) {
        std::uint32_t rest = value;
        for (int bit = 0; bit < 8; ++bit) rest = (rest >> 1) ^ ((rest & 1U) != 0 ? 0xD8018001U : 0U);
        table[value] = rest;
    }
    return table;
}

constexpr auto edc_table = make_edc_table();

/// Over the bytes `from`..`end` - 1, into the four bytes at `end`, low byte first.
void renew_edc(SectorBytes sector, std::size_t from, std::size_t end) {
    std::uint32_t edc = 0;
    for (std::size_t k = from; k < end; ++k) edc = (edc >> 8) ^ edc_table[(edc ^ sector[k]) & 0xFFU];
    for (std::size_t k = 0; k < layout::edc_bytes; ++k) sector[end + k] = static_cast<std::uint8_t>(edc >> (8 * k));
}

// The product with x in the field of 256 elements over x^8 + x^4 + x^3 + x^2 + 1.
constexpr std::uint8_t times_x(std::uint8_t value) {
    return static_cast<std::uint8_t>((value << 1) ^ ((value & 0x80) != 0 ? 0x11D : 0));
}

// The two check bytes of a Reed-Solomon word with the roots 1 and x: the rest of the division by z^2 + (x + 1)z + x.
class CheckBytes {
public:
    void add(std::uint8_t byte) {
        const auto factor = static_cast<std::uint8_t>(byte ^ first_);
        const std::uint8_t shifted = times_x(factor);
        first_ = static_cast<std::uint8_t>(second_ ^ shifted ^ factor);
        second_ = shifted;
    }
    std::uint8_t first() const { return first_; }
    std::uint8_t second() const { return second_; }

private:
    std::uint8_t first_ = 0;
    std::uint8_t second_ = 0;
};

/// The bytes that the parities run over. In Mode 2 the four header bytes count as zero, so that a sector can be moved
/// on the disc without new parities.
class ParityArea {
public:
    ParityArea(SectorBytes sector, bool with_header) : sector_(sector), with_header_(with_header) {}

    // P: 86 columns of 24 bytes. Q: 52 diagonals of 43 bytes, through the P parity too.
    void renew() {
        using layout::data_rows, layout::p, layout::q, layout::row_bytes, layout::rows;
        for (std::size_t column = 0; column < row_bytes; ++column) {
            CheckBytes check;
            for (std::size_t row = 0; row < data_rows; ++row) check.add(byte(row * row_bytes + column));
            sector_[p + column] = check.first();
            sector_[p + row_bytes + column] = check.second();
        }
        constexpr std::size_t steps = row_bytes / 2;  // a diagonal is one of two-byte words: two of bytes, side by side
        constexpr std::size_t words = rows * steps;
        for (std::size_t lane = 0; lane < 2 * rows; ++lane) {
            const std::size_t diagonal = lane / 2;
            CheckBytes check;
            for (std::size_t step = 0; step < steps; ++step)
                check.add(byte(2 * ((steps * diagonal + (steps + 1) * step) % words) + lane % 2));
            sector_[q + lane] = check.first();
            sector_[q + 2 * rows + lane] = check.second();
        }
    }

private:
    std::uint8_t byte(std::size_t index) const {
        constexpr std::size_t header_bytes = layout::sub_header - layout::header;
        return index < header_bytes && !with_header_ ? std::uint8_t{0} : sector_[layout::parity_start + index];
    }

    SectorBytes sector_;
    bool with_header_;
};

bool is_zero(SectorView sector, std::size_t from, std::size_t bytes) {
    const auto part = sector.subspan(from, bytes);
    return std::all_of(part.begin(), part.end(), [](std::uint8_t byte) { return byte == 0; });
}

bool has_no_edc(SectorKind kind, SectorView sector) {
    switch (kind) {
        case SectorKind::mode1: return is_zero(sector, layout::mode1_edc, layout::edc_bytes);
        case SectorKind::form1: return is_zero(sector, layout::form1_edc, layout::edc_bytes);
        case SectorKind::form2: return is_zero(sector, layout::form2_edc, layout::edc_bytes);
        case SectorKind::other: break;
    }
    return true;
}

}  // namespace

SectorKind kind_of(SectorView sector) {
    if (!std::equal(layout::sync_pattern.begin(), layout::sync_pattern.end(), sector.begin())) return SectorKind::other;
    if (sector[layout::mode] == 1) return SectorKind::mode1;
    if (sector[layout::mode] != 2) return SectorKind::other;
    return (sector[layout::sub_mode] & layout::form2_bit) != 0 ? SectorKind::form2 : SectorKind::form1;
}

void renew_checks(SectorBytes sector) {
    switch (kind_of(sector)) {
        case SectorKind::mode1:
            renew_edc(sector, 0, layout::mode1_edc);
            ParityArea(sector, true).renew();
            break;
        case SectorKind::form1:
            renew_edc(sector, layout::sub_header, layout::form1_edc);
            ParityArea(sector, false).renew();
            break;
        case SectorKind::form2:
            if (!has_no_edc(SectorKind::form2, sector)) renew_edc(sector, layout::sub_header, layout::form2_edc);
            break;
        case SectorKind::other: break;
    }
}

CheckFields bad_fields(std::int64_t number, SectorView sector) {
    const SectorKind kind = kind_of(sector);
    if (kind == SectorKind::other || (number < system_area_sectors && has_no_edc(kind, sector))) return {};
    RawSector renewed{};
    std::copy(sector.begin(), sector.end(), renewed.begin());
    renew_checks(renewed);
    const auto differs = [&](std::size_t from, std::size_t bytes) {
        const auto part = sector.subspan(from, bytes);
        return !std::equal(part.begin(), part.end(), renewed.begin() + static_cast<std::ptrdiff_t>(from));
    };
    switch (kind) {
        case SectorKind::mode1:
            return {differs(layout::mode1_edc, layout::edc_bytes), differs(layout::p, layout::p_bytes),
                    differs(layout::q, layout::q_bytes)};
        case SectorKind::form1:
            return {differs(layout::form1_edc, layout::edc_bytes), differs(layout::p, layout::p_bytes),
                    differs(layout::q, layout::q_bytes)};
        default: return {differs(layout::form2_edc, layout::edc_bytes), false, false};
    }
}

bool checks_all_fit(SectorView sector) {
    return kind_of(sector) != SectorKind::other && !bad_fields(system_area_sectors, sector).any();
}

bool is_check_byte(SectorKind kind, std::size_t offset) {
    const auto in = [offset](std::size_t from, std::size_t bytes) { return offset >= from && offset < from + bytes; };
    switch (kind) {
        case SectorKind::mode1:
            return in(layout::mode1_edc, layout::edc_bytes) || in(layout::p, layout::p_bytes + layout::q_bytes);
        case SectorKind::form1:
            return in(layout::form1_edc, layout::edc_bytes) || in(layout::p, layout::p_bytes + layout::q_bytes);
        case SectorKind::form2: return in(layout::form2_edc, layout::edc_bytes);
        case SectorKind::other: break;
    }
    return false;
}

}  // namespace kalco

#include "disc/image/sector.h"

#include <algorithm>
#include <cstddef>
#include <stdexcept>

namespace kalco {

namespace {

constexpr std::array<std::uint8_t, 12> sync_pattern{0, 255, 255, 255, 255, 255, 255, 255, 255, 255, 255, 0};
constexpr std::array<std::uint8_t, 4> data_sub_header{0, 0, 0x08, 0};  // sub-mode: data, form 1
constexpr std::uint8_t form2_bit = 0x20;
constexpr std::uint8_t mode2 = 2;

constexpr std::size_t header_offset = 12;
constexpr std::size_t mode_offset = 15;
constexpr std::size_t sub_header_offset = 16;
constexpr std::size_t sub_mode_offset = 18;
constexpr std::size_t edc_offset = 2072;
constexpr std::size_t p_offset = 2076;
constexpr std::size_t q_offset = 2248;

constexpr std::uint32_t frames_a_second = 75;
constexpr std::uint32_t frames_a_minute = 60 * frames_a_second;
constexpr std::uint32_t first_frame = 2 * frames_a_second;
constexpr std::uint32_t end_frame = 100 * frames_a_minute;

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

std::array<std::uint8_t, 4> edc_of(const RawSector& sector) {
    std::uint32_t edc = 0;
    for (std::size_t k = sub_header_offset; k < edc_offset; ++k)
        edc = (edc >> 8) ^ edc_table[(edc ^ sector[k]) & 0xFFU];
    return {static_cast<std::uint8_t>(edc), static_cast<std::uint8_t>(edc >> 8), static_cast<std::uint8_t>(edc >> 16),
            static_cast<std::uint8_t>(edc >> 24)};
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

// Both parities run over the bytes from the header on. In this mode the four header bytes count as zero,
// so that a sector can be moved on the disc without new parities.
class EccArea {
public:
    explicit EccArea(RawSector& sector) : sector_(sector) {}

    // P: 86 columns of 24 bytes. Q: 52 diagonals of 43 bytes, through the P parity too.
    void fill() {
        constexpr std::size_t columns = 86;
        constexpr std::size_t rows = 24;
        for (std::size_t column = 0; column < columns; ++column) {
            CheckBytes check;
            for (std::size_t row = 0; row < rows; ++row) check.add(byte(row * columns + column));
            sector_[p_offset + column] = check.first();
            sector_[p_offset + columns + column] = check.second();
        }
        constexpr std::size_t diagonals = 26;  // of two-byte words, so two diagonals of bytes each
        constexpr std::size_t steps = 43;
        constexpr std::size_t words = diagonals * steps;
        for (std::size_t lane = 0; lane < 2 * diagonals; ++lane) {
            const std::size_t diagonal = lane / 2;
            CheckBytes check;
            for (std::size_t step = 0; step < steps; ++step)
                check.add(byte(2 * ((steps * diagonal + (steps + 1) * step) % words) + lane % 2));
            sector_[q_offset + lane] = check.first();
            sector_[q_offset + 2 * diagonals + lane] = check.second();
        }
    }

private:
    std::uint8_t byte(std::size_t index) const {
        return index < sub_header_offset - header_offset ? std::uint8_t{0} : sector_[header_offset + index];
    }

    RawSector& sector_;
};

// Everything behind the user data, from what stands before it.
void fill_checks(RawSector& sector) {
    const auto edc = edc_of(sector);
    std::copy(edc.begin(), edc.end(), sector.begin() + edc_offset);
    EccArea(sector).fill();
}

constexpr std::uint8_t bcd(std::uint32_t value) {
    return static_cast<std::uint8_t>(value / 10 * 16 + value % 10);
}

std::optional<std::uint32_t> from_bcd(std::uint8_t byte, std::uint32_t end) {
    const std::uint32_t tens = byte / 16U;
    const std::uint32_t ones = byte % 16U;
    if (tens > 9 || ones > 9 || tens * 10 + ones >= end) return std::nullopt;
    return tens * 10 + ones;
}

}  // namespace

RawSector make_sector(std::uint32_t lba, std::span<const std::uint8_t, user_bytes> user) {
    if (lba >= end_frame - first_frame) throw std::out_of_range("no such sector address on a disc");
    const std::uint32_t frame = lba + first_frame;

    RawSector sector{};
    std::copy(sync_pattern.begin(), sync_pattern.end(), sector.begin());
    sector[header_offset] = bcd(frame / frames_a_minute);
    sector[header_offset + 1] = bcd(frame / frames_a_second % 60);
    sector[header_offset + 2] = bcd(frame % frames_a_second);
    sector[mode_offset] = mode2;
    std::copy(data_sub_header.begin(), data_sub_header.end(), sector.begin() + sub_header_offset);
    std::copy(data_sub_header.begin(), data_sub_header.end(),
              sector.begin() + sub_header_offset + data_sub_header.size());
    std::copy(user.begin(), user.end(), sector.begin() + user_start);
    fill_checks(sector);
    return sector;
}

std::optional<std::uint32_t> sector_address(std::span<const std::uint8_t, sector_bytes> sector) {
    const auto minute = from_bcd(sector[header_offset], 100);
    const auto second = from_bcd(sector[header_offset + 1], 60);
    const auto frame = from_bcd(sector[header_offset + 2], frames_a_second);
    if (!minute || !second || !frame) return std::nullopt;
    const std::uint32_t absolute = *minute * frames_a_minute + *second * frames_a_second + *frame;
    if (absolute < first_frame) return std::nullopt;
    return absolute - first_frame;
}

bool sector_is_valid(std::span<const std::uint8_t, sector_bytes> sector) {
    if (!std::equal(sync_pattern.begin(), sync_pattern.end(), sector.begin())) return false;
    if (!sector_address(sector) || sector[mode_offset] != mode2 || (sector[sub_mode_offset] & form2_bit) != 0)
        return false;
    const auto sub_header = sector.subspan(sub_header_offset, 2 * data_sub_header.size());
    if (!std::equal(sub_header.begin(), sub_header.begin() + data_sub_header.size(),
                    sub_header.begin() + data_sub_header.size()))
        return false;

    RawSector expected{};
    std::copy(sector.begin(), sector.end(), expected.begin());
    fill_checks(expected);
    return std::equal(expected.begin(), expected.end(), sector.begin());
}

}  // namespace kalco

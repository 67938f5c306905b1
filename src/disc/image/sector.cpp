#include "disc/image/sector.h"

#include <algorithm>
#include <stdexcept>

#include "disc/image/sector_layout.h"

namespace kalco {
namespace {

constexpr std::array<std::uint8_t, 8> data_sub_header{0, 0, 0x08, 0, 0, 0, 0x08, 0};  // sub-mode: data, form 1
constexpr std::uint8_t mode2 = 2;

/// A time of the disc's clock; address 0 is at two seconds.
struct ClockTime {
    static constexpr std::int64_t frames_a_second = 75;
    static constexpr std::int64_t frames_a_minute = 60 * frames_a_second;

    explicit constexpr ClockTime(std::int64_t lba)
        : minute((lba + 2 * frames_a_second) / frames_a_minute),
          second((lba + 2 * frames_a_second) / frames_a_second % 60),
          frame((lba + 2 * frames_a_second) % frames_a_second) {}

    std::int64_t minute, second, frame;
};

constexpr std::uint8_t bcd(std::int64_t value) {
    return static_cast<std::uint8_t>(value / 10 * 16 + value % 10);
}

std::string two_digits(std::int64_t value) {
    return std::string(value < 10 ? 1 : 0, '0') + std::to_string(value);
}

}  // namespace

RawSector make_sector(std::uint32_t lba, std::span<const std::uint8_t, user_bytes> user) {
    const ClockTime time(lba);
    if (time.minute > 99) throw std::out_of_range("no such sector address on a disc");

    RawSector sector{};
    std::copy(layout::sync_pattern.begin(), layout::sync_pattern.end(), sector.begin());
    sector[layout::header] = bcd(time.minute);
    sector[layout::header + 1] = bcd(time.second);
    sector[layout::header + 2] = bcd(time.frame);
    sector[layout::mode] = mode2;
    std::copy(data_sub_header.begin(), data_sub_header.end(), sector.begin() + layout::sub_header);
    std::copy(user.begin(), user.end(), sector.begin() + user_start);
    renew_checks(sector);
    return sector;
}

std::string disc_time(std::int64_t sector) {
    const ClockTime time(sector);
    return two_digits(time.minute) + ':' + two_digits(time.second) + ':' + two_digits(time.frame);
}

}  // namespace kalco

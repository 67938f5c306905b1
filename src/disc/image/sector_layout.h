#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

/// Where the fields of a raw sector lie, as byte offsets from its start.
///
///      0   12  sync pattern
///     12    4  header: minute, second, frame (BCD), mode
///
///     Mode 1               Mode 2 Form 1        Mode 2 Form 2
///     16 2048 user data    16    8 sub-header   16    8 sub-header: file, channel, sub-mode, coding; all four twice
///   2064    4 EDC          24 2048 user data    24 2324 user data
///   2068    8 zeroes     2072    4 EDC        2348    4 EDC, or zeroes
///   2076  172 P parity   2076  172 P parity
///   2248  104 Q parity   2248  104 Q parity
namespace kalco::layout {

inline constexpr std::array<std::uint8_t, 12> sync_pattern{0, 255, 255, 255, 255, 255, 255, 255, 255, 255, 255, 0};

inline constexpr std::size_t header = 12;
inline constexpr std::size_t mode = 15;
inline constexpr std::size_t sub_header = 16;
inline constexpr std::size_t sub_mode = 18;
inline constexpr std::uint8_t form2_bit = 0x20;

inline constexpr std::size_t mode1_edc = 2064;
inline constexpr std::size_t form1_edc = 2072;
inline constexpr std::size_t form2_edc = 2348;
inline constexpr std::size_t edc_bytes = 4;

/// Both parities run over the bytes from the header on: P over 24 rows of 86 bytes, column by column, and Q over the
/// diagonals of the 26 rows that these and P make.
inline constexpr std::size_t parity_start = header;
inline constexpr std::size_t row_bytes = 86;
inline constexpr std::size_t data_rows = 24;
inline constexpr std::size_t rows = 26;
inline constexpr std::size_t p = 2076;
inline constexpr std::size_t p_bytes = 172;
inline constexpr std::size_t q = 2248;
inline constexpr std::size_t q_bytes = 104;

}  // namespace kalco::layout

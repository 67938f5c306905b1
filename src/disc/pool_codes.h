#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The fixed codes of players: two bytes each, written as four digits.
namespace kalco {

/// The largest number of a code that means a place in a roster; from the next one on it is a player of the pool.
inline constexpr int last_roster_number = 0x16;

/// The codes of the rosters' places, team by team: 1449 rows.
std::vector<std::string> roster_codes();
/// The codes of the pool, row for row.
std::vector<std::string> pool_codes();
/// The text of the nationality that a code's first byte (two digits) tells; none for an unknown one.
std::optional<std::string_view> nationality_of(std::string_view nation_digits);

}  // namespace kalco

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "disc/players.h"

/// The codes that stand for players: two bytes each.
namespace kalco {

/// A number up to last_roster_number is a place in the roster of team 0..62. From the next one on it counts the pool's
/// players of a nation, which need not be one of the 54.
struct PlayerCode {
    std::uint8_t team = 0;
    std::uint8_t number = 0;

    friend constexpr bool operator==(const PlayerCode&, const PlayerCode&) = default;
};

inline constexpr std::uint8_t last_roster_number = roster_players - 1;

/// He stands in no roster and not in the pool, but the lists of all 23 players know his name.
inline constexpr PlayerCode vardal_code{0x25, 0x17};
inline constexpr std::string_view vardal_name = "Vardal";

/// The player whom a code means; none when it means nobody (vardal_code does).
std::optional<PlayerPlace> player_of(PlayerCode code);
/// The way back; none for a place that does not exist.
std::optional<PlayerCode> code_of(const PlayerPlace& place);

/// Four capital digits ("2517"), and the way back, for small letters too: none for anything but four digits.
std::string digits_of(PlayerCode code);
std::optional<PlayerCode> code_of_digits(std::string_view digits);

/// The codes of the rosters' places, team by team: 1449 rows of four digits.
std::vector<std::string> roster_codes();
/// The codes of the pool, row for row.
std::vector<std::string> pool_codes();

/// The text of the nationality that a code's first byte tells; none for an unknown one.
std::optional<std::string_view> nationality_of(int nation);
/// The same by the byte's two capital digits; none for any other text.
std::optional<std::string_view> nationality_of(std::string_view nation_digits);

}  // namespace kalco

#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "disc/player_record.h"

/// The text form of a team: five head lines, then a line for each player.
namespace kalco {

inline constexpr std::string_view team_file_extension = ".DAT";
inline constexpr auto team_file_filter = "*.DAT|*.DAT";
inline constexpr std::size_t head_lines = 5;
/// 0-based lines of the names; their texts begin at these 1-based characters. The keys before them are not looked at.
inline constexpr std::size_t long_name_line = 3;
inline constexpr std::size_t short_name_line = 4;
inline constexpr std::size_t long_name_place = 10;
inline constexpr std::size_t short_name_place = 11;

std::vector<std::string> team_file_head(std::string_view long_name, std::string_view short_name);

/// The names of a file's head; empty for a line that is missing or too short.
struct TeamFileNames {
    std::string long_name;
    std::string short_name;
};
TeamFileNames names_of_team_file(std::span<const std::string> lines);

/// The line of a player: ordinal 1 to 23, three signed words, the name.
std::string player_line(int ordinal, const Words& words, std::string_view name);
/// The same for the groups of a record's list entry. Error 5 when one of them is shorter than four bytes.
std::string exported_line(int ordinal, const std::array<std::string, 3>& groups, std::string_view name);

/// The fields of a player line as texts; the words may be no numbers.
struct PlayerLine {
    std::array<std::string, 3> words;
    std::string name;  ///< All that stands behind the third comma.

    /// As much of the name as the disc holds.
    std::string_view imported_name() const;
};

/// The place in the file decides where the first field begins: `index` counts the player lines from 0. Only the first
/// three commas cut. Error 5 for fewer, and for a first comma before the first field.
PlayerLine split_player_line(std::string_view line, std::size_t index);

/// All that stands behind the third comma. Error 5 when there are fewer.
std::string_view name_of_player_line(std::string_view line);

/// The groups of bytes of three words, for a list entry. A word that is 0 but not the text "0" leaves its group empty.
/// Error 13 for a text that is no number, 6 for one beyond a word and for -1.
std::array<std::string, 3> groups_of_words(const std::array<std::string, 3>& words);

/// The line with the player of another one: its own key, up to and with the first "=", stays.
std::string with_player_of(std::string_view line, std::string_view other);

}  // namespace kalco

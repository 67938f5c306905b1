#pragma once

#include <array>
#include <optional>
#include <string>

#include "disc/image/image.h"
#include "disc/image/position.h"
#include "disc/indexes.h"
#include "disc/teams.h"

/// Where a team's name lies: eight places, each in a table that runs downwards with rising index.
namespace kalco {

/// Three letters; the long name in two-byte letters; six tables of capitals.
enum class NamePlace { short_name, full_width, t1, t2, t3, t4, t5, t6 };

inline constexpr std::array<NamePlace, 8> name_places{NamePlace::short_name, NamePlace::full_width, NamePlace::t1,
                                                      NamePlace::t2,         NamePlace::t3,         NamePlace::t4,
                                                      NamePlace::t5,         NamePlace::t6};

inline constexpr int short_name_bytes = 3;
constexpr ImagePos short_name_position(Team team) {
    return 2005377 - 4 * (team.value() + 1);
}

/// The two names that cross a sector end: one team's full-width name, another's T2.
inline constexpr Team split_full_width_team{4};
inline constexpr Pieces split_full_width_name{{2003621, 4}, {2003929, 6}};
inline constexpr Team split_t2_team{5};
inline constexpr Pieces split_t2_name{{4823669, 4}, {4823977, 3}};

/// Where a team's name lies, over the end of a sector too; none where the team has no such name. Only the short name
/// is there for all 96.
std::optional<Pieces> name_field(Team team, NamePlace place);

/// The field's bytes as they stand; empty for a name that the team lacks.
std::string read_name_bytes(const Image& image, Team team, NamePlace place);
/// The T1 name up to its first zero byte; empty for a team without one.
std::string read_table_name(const Image& image, Team team);
/// The full-width name, decoded in one walk also where it crosses a sector end; empty for a team without one. Error 5
/// when the field begins with a byte 0x20.
std::string read_full_width_name(const Image& image, Team team);

/// How many letters the full-width name of a team takes: half its bytes, halves to the even neighbour; 0 (no limit)
/// for a team without one.
int full_width_letters(Team team);

/// A text entry of a fixed place: its position and how many bytes it holds.
struct NameEntry {
    ImagePos position = 0;
    int length = 0;

    friend constexpr bool operator==(const NameEntry&, const NameEntry&) = default;
};

/// The entries of a team in T1 to T6; those that it does not have are unset. For the split T2 entry the position is a
/// number that is no place in the table.
using NameEntries = std::array<std::optional<NameEntry>, name_table_count>;
NameEntries Call_Name(Team team);
/// The entries of a club: it has all six.
std::array<NameEntry, name_table_count> Call_Name_ML(Club club);

/// The entry of the full-width name table; none for the split one, for the default list and beyond the teams.
std::optional<NameEntry> Off_Name_HEX(Team team);
/// The same by the row of an 87-row list.
std::optional<NameEntry> Off_NameII(TeamRow row);
/// The same by club; any other index leaves both as they were.
void Off_Name_ML(Club club, ImagePos& position, int& length);

}  // namespace kalco

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

/// The printed tables of the disc, typed apart from the editor's own: what it computes is compared with these.
namespace kalco::test {

struct PrintedTeam {
    const char* row;
    std::int64_t full_width_position;
    int full_width_bytes;
    std::array<int, 6> lengths;  ///< T1 to T6; 0 for none.
};
extern const std::array<PrintedTeam, 96> printed_teams;
inline const PrintedTeam& printed_team(int team) {
    return printed_teams[static_cast<std::size_t>(team)];
}

/// A field that crosses a sector end: where its two pieces lie.
struct PrintedSplit {
    int team;
    int player;
    int first_bytes;
    std::int64_t first;
    std::int64_t second;
};
extern const std::array<PrintedSplit, 7> printed_name_splits;
extern const std::array<PrintedSplit, 6> printed_record_splits;
/// Of the pool; the team is 95.
extern const std::array<PrintedSplit, 1> printed_pool_name_splits;
extern const std::array<PrintedSplit, 2> printed_pool_record_splits;

/// The pool rows of the default team.
struct PrintedDefaultSlot {
    int row;
    std::int64_t name;
    std::int64_t record;
};
extern const std::array<PrintedDefaultSlot, 23> printed_default_slots;

/// The position of the byte `count` bytes of user data before the one at `position`.
std::int64_t position_before(std::int64_t position, int count);
/// The position of the byte `count` bytes of user data behind the one at `position`.
std::int64_t position_behind(std::int64_t position, int count);

/// The position of a team's entry in table 0..5 (T1 to T6), found by walking down from the first entry of its block;
/// 0 when there is none. The entry that crosses a sector end has the position of its first piece.
std::int64_t table_position(int team, int table);

}  // namespace kalco::test

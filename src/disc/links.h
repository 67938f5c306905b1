#pragma once

#include <array>
#include <string>
#include <string_view>

#include "disc/image/image.h"
#include "disc/image/position.h"
#include "disc/indexes.h"
#include "disc/player_codes.h"

/// The links of a club to the players it plays with: a table of 23 codes.
namespace kalco {

inline constexpr int link_bytes = 2;
inline constexpr int link_table_bytes = roster_players * link_bytes;
inline constexpr UserOffset LinkTableBase = 1752784;

/// The link table of a club.
constexpr Pieces link_table_field(Club club) {
    return field_at(LinkTableBase + link_table_bytes * club.value(), link_table_bytes);
}

/// The table's positions by the row of an 87-row list; the second one only where the table is split. Other rows leave
/// both as they were.
void LinKML(TeamRow row, ImagePos& position1, ImagePos& position2);

using Links = std::array<PlayerCode, roster_players>;
Links read_links(const Image& image, Club club);
/// The table as it stands on the disc.
std::string bytes_of_links(const Links& links);
void write_links(Image& image, Club club, const Links& links);
/// The same from digits, as the window's lists hold them: as many bytes as they give.
void write_link_table(Image& image, Club club, std::string_view digits);

/// The links to the 23 players of a team, in roster order.
Links links_to_team(Team team);

}  // namespace kalco

#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "disc/image/image.h"
#include "disc/indexes.h"

/// The takers of the set pieces and the captain: six bytes a team, each the place 0..10 of one of the first eleven
/// players.
namespace kalco {

/// In the order of the record's bytes.
enum class SetPiece { short_free_kick, long_free_kick, corner_right, corner_left, penalty, captain };
inline constexpr int set_piece_bytes = 6;
/// Players who can be a taker.
inline constexpr int set_piece_rows = 11;

/// Records of all teams lie one behind the other in the order of cboSeqSQ. The default team's stands two bytes past its
/// place.
inline constexpr UserOffset SetPieceBase = user_offset_of(2329057);
inline constexpr ImagePos default_team_set_pieces = 2329629;

/// The stored bytes by SetPiece. One above 10 names no player.
using SetPieces = std::array<std::uint8_t, set_piece_bytes>;

/// The record of a row.
Pieces set_piece_field(TeamRow row);

/// The takers of a record of 6 bytes; missing ones are 0.
SetPieces unpack_set_pieces(std::string_view record);
std::string pack_set_pieces(const SetPieces& takers);

SetPieces read_set_pieces(const Image& image, TeamRow row);
/// Writes the bytes at a row's record; all of them, also over the records behind it.
void write_set_pieces(Image& image, TeamRow row, std::string_view bytes);

}  // namespace kalco

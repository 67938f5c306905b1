#pragma once

#include <cstdint>
#include <string>

#include "disc/image/position.h"

/// A complete image in memory: the names of all teams, the rosters, the pool and the costs lie where the game keeps
/// them, and noise lies everywhere else, so that a byte written at a wrong place always shows.
namespace kalco::test {

/// Always the same bytes.
const std::string& filled_image();

/// What the image holds. The full-width name has no padding; the table name is the same in capitals, each table
/// holding as much of it as fits.
std::string full_width_name(int team);
std::string table_name(int team);
std::string short_name(int team);
/// By the row of the team list: a roster place of team 0..62 or a pool row of team 95, by the plain rule of the table.
std::string player_name(int team, int player);
/// 12 bytes, no spare bit set, every field within its table.
std::string player_record(int team, int player);
int player_cost(int team, int player);

/// The game's two-byte code of letters, full stops and blanks.
std::string letter_code(const std::string& text);

std::string in_capitals(std::string text);

void put(std::string& image, std::int64_t position, const std::string& bytes);
/// The bytes over the pieces of a field; what there are too few for is left.
void put(std::string& image, const Pieces& field, std::string bytes);
std::string bytes_at(const std::string& image, std::int64_t position, std::size_t count);
/// The same along the user data, over sector ends.
void put_user_data(std::string& image, std::int64_t position, const std::string& bytes);
std::string user_data_at(const std::string& image, std::int64_t position, std::size_t count);

std::string zeroes(std::size_t count);
/// The name with the zeroes behind it that fill its ten bytes.
std::string padded_name(const std::string& name);

}  // namespace kalco::test

#pragma once

#include <string_view>

#include "disc/image/image.h"

/// The two writes that every save of a player is made of.
namespace kalco {

/// Zeroes over the field, then the name without blanks around it, in the pieces of the field.
void write_player_name(Image& image, const Pieces& field, std::string_view name);

/// The bytes of an entry of hexadecimal digits, with or without blanks between them; as many as the entry has.
void write_player_record(Image& image, const Pieces& field, std::string_view entry);

}  // namespace kalco

#pragma once

#include <vector>

#include "disc/image/position.h"

/// Where the tables print the records of a row of the list of 87, typed apart from the rules that the editor follows.
namespace kalco::test {

using Stretches = std::vector<Piece>;

Stretches printed_formation(int row);
/// Of row 0..85.
Stretches printed_bars(int row);
Stretches printed_set_pieces(int row);

Stretches places_of(const Pieces& field);

}  // namespace kalco::test

#pragma once

#include <string>

#include "work/sheets/disc_bytes.h"

namespace kalco {

/// What tells two states of a row of the players apart: `r` and the 8 upper-case hexadecimal digits of the CRC-32
/// (polynomial 0xEDB88320, low bit first) over the bytes of name, record and cost, one behind the other; without the
/// cost for a player who has none.
std::string revision(const DiscBytes& disc, int row);

}  // namespace kalco

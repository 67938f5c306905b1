#include "work/sheets/revision.h"

#include "disc/codec/hextext.h"
#include "disc/image/crc32.h"
#include "work/sheets/ids.h"
#include "work/sheets/places.h"

namespace kalco {

std::string revision(const DiscBytes& disc, int row) {
    // This sum, because a change of a few neighbouring bits always gives another one.
    std::string bytes = disc.read(player_name_place(row, 0)->bytes) + disc.read(player_record_field(place_of_row(row)));
    if (const auto cost = cost_place(row, 0)) bytes += disc.read(cost->bytes);
    return 'r' + hex_number(crc32(bytes), 8);
}

}  // namespace kalco

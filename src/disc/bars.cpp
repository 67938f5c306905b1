#include "disc/bars.h"

#include <algorithm>

namespace kalco {

Pieces bars_field(TeamRow row) {
    return field_at(BarsBase + bar_count * team_of(row).value(), bar_count);
}

Bars unpack_bars(std::string_view record) {
    Bars bars{};
    std::copy_n(record.begin(), std::min(record.size(), bars.size()), bars.begin());
    return bars;
}

std::string pack_bars(const Bars& bars) {
    return {bars.begin(), bars.end()};
}

Bars read_bars(const Image& image, TeamRow row) {
    return unpack_bars(image.read(bars_field(row)));
}

void write_bars(Image& image, TeamRow row, std::string_view bytes) {
    image.write(bars_field(row), bytes);
}

}  // namespace kalco

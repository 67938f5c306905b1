#include "support/printed_rows.h"

namespace kalco::test {

Stretches printed_formation(int row) {
    if (row == 32) return {{2304661, 20}, {2304985, 10}};
    if (row == 86) return {{2306857, 30}};
    if (row <= 31) return {{2303701 + 30 * row, 30}};
    if (row <= 53) return {{2304995 + 30 * (row - 33), 30}};
    return {{2305895 + 30 * (row - 54), 30}};
}

Stretches printed_bars(int row) {
    if (row == 3) return {{2328200, 1}, {2328505, 4}};
    if (row <= 2) return {{2328185 + 5 * row, 5}};
    if (row <= 53) return {{2328509 + 5 * (row - 4), 5}};
    return {{2328804 + 5 * (row - 54), 5}};
}

Stretches printed_set_pieces(int row) {
    if (row == 86) return {{2329629, 6}};
    if (row < 54) return {{2329057 + 6 * row, 6}};
    return {{2329429 + 6 * (row - 53), 6}};
}

Stretches places_of(const Pieces& field) {
    return {field.begin(), field.end()};
}

}  // namespace kalco::test

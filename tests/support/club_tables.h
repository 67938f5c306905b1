#pragma once

#include <array>
#include <cstdint>

/// The printed tables of the 32 clubs, typed apart from the editor's own.
namespace kalco::test {

struct PrintedCopy {
    std::int64_t position;
    int capacity;
};

/// A club's eight name places as the table prints them: two here, the six copies apart.
struct PrintedClub {
    const char* row;
    std::int64_t full_width_position;
    int full_width_bytes;
    std::int64_t short_position;
};
extern const std::array<PrintedClub, 32> printed_clubs;
using PrintedCopies = std::array<PrintedCopy, 6>;
extern const std::array<PrintedCopies, 32> printed_copies;
const PrintedClub& printed_club(int club);

/// Where a club's link table begins.
std::int64_t printed_link_position(int club);

}  // namespace kalco::test

#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "disc/formation_facts.h"
#include "disc/image/image.h"
#include "disc/indexes.h"

/// Formations as values: records, labels, places on the screen.
namespace kalco {

/// The stored bytes, by outfield player.
struct Formation {
    using Column = std::array<std::uint8_t, outfield_players>;
    Column roles{};
    Column x{};
    Column y{};

    friend bool operator==(const Formation&, const Formation&) = default;
};

/// The record of a row.
Pieces formation_field(TeamRow row);

/// The formation of a record of 30 bytes; missing ones are 0.
Formation unpack_formation(std::string_view record);
std::string pack_formation(const Formation& formation);

Formation read_formation(const Image& image, TeamRow row);
/// Writes the bytes of a record over the row's; as many as there are. Where the record is split, the first piece takes
/// the first 20 bytes and the second one the last 10, so that both hold bytes from the middle of a short text.
void write_formation(Image& image, TeamRow row, std::string_view bytes);

/// The label of a stored role; "???" for one outside the table.
std::string_view role_label(std::uint8_t role);
/// The same for its two digits (upper case).
std::string_view role_label(std::string_view code);
/// The two digits of a label, empty for one outside the table.
std::string role_code(std::string_view label);

/// Where a marker stands for an X or Y value: the nearest form unit, halves to the even one.
int screen_left(int x);
int screen_top(int y);

/// The module of a name, nullptr when there is none.
const ModuleRow* module_named(std::string_view name);

}  // namespace kalco

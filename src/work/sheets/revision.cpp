#include "work/sheets/revision.h"

#include <array>
#include <cstdint>
#include <string_view>

#include "disc/codec/hextext.h"
#include "work/sheets/ids.h"
#include "work/sheets/places.h"

namespace kalco {
namespace {

/// A change of a few neighbouring bits always gives another sum, which is why it is this one.
constexpr std::array<std::uint32_t, 256> make_steps() {
    constexpr std::uint32_t polynomial = 0xEDB88320;
    std::array<std::uint32_t, 256> steps{};
    for (std::uint32_t byte = 0; byte < steps.size(); ++byte) {
        std::uint32_t sum = byte;
        for (int bit = 0; bit < 8; ++bit) sum = (sum & 1) != 0 ? sum >> 1 ^ polynomial : sum >> 1;
        steps[byte] = sum;
    }
    return steps;
}

constexpr std::array<std::uint32_t, 256> steps = make_steps();

std::uint32_t crc32(std::string_view bytes) {
    std::uint32_t sum = 0xFFFFFFFF;
    for (const char byte : bytes) sum = steps[(sum ^ static_cast<unsigned char>(byte)) & 0xFF] ^ sum >> 8;
    return ~sum;
}

}  // namespace

std::string revision(const DiscBytes& disc, int row) {
    std::string bytes = disc.read(player_name_place(row, 0)->bytes) + disc.read(player_record_field(place_of_row(row)));
    if (const auto cost = cost_place(row, 0)) bytes += disc.read(cost->bytes);
    return 'r' + hex_number(crc32(bytes), 8);
}

}  // namespace kalco

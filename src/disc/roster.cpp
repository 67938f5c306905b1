#include "disc/roster.h"

#include "disc/codec/latin1.h"

namespace kalco {

std::string read_player_name(const Image& image, const Pieces& field) {
    const std::string bytes = image.read(field);
    return std::string(until_zero(trim(bytes)));
}

}  // namespace kalco

#include "disc/player_writing.h"

#include "disc/codec/hextext.h"
#include "disc/codec/latin1.h"

namespace kalco {

void write_player_name(Image& image, const Pieces& field, std::string_view name) {
    image.clear(field);
    image.write(field, trim(name));
}

void write_player_record(Image& image, const Pieces& field, std::string_view entry) {
    image.write(field, bytes_of_digits(without_blanks(entry)));
}

}  // namespace kalco

#include "disc/set_pieces.h"

#include <algorithm>

namespace kalco {

Pieces set_piece_field(TeamRow row) {
    if (row == default_team_row) return Piece{default_team_set_pieces, set_piece_bytes};
    return field_at(SetPieceBase + set_piece_bytes * team_of(row).value(), set_piece_bytes);
}

SetPieces unpack_set_pieces(std::string_view record) {
    SetPieces takers{};
    std::copy_n(record.begin(), std::min(record.size(), takers.size()), takers.begin());
    return takers;
}

std::string pack_set_pieces(const SetPieces& takers) {
    return {takers.begin(), takers.end()};
}

SetPieces read_set_pieces(const Image& image, TeamRow row) {
    return unpack_set_pieces(image.read(set_piece_field(row)));
}

void write_set_pieces(Image& image, TeamRow row, std::string_view bytes) {
    image.write(set_piece_field(row), bytes);
}

}  // namespace kalco

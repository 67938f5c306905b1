#include "ctl/demo/demo_disc.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace kalco::demo {

void DemoDisc::scatter(std::uint32_t first_sector, Random& random) {
    for (auto k = static_cast<std::size_t>(first_sector) * user_bytes; k + 8 <= user_data_.size(); k += 8) {
        std::uint64_t bits = random.next();
        for (std::size_t byte = 0; byte < 8; ++byte, bits >>= 8) user_data_[k + byte] = static_cast<char>(bits & 0xFFU);
    }
}

void DemoDisc::zero(UserOffset from, UserOffset end) {
    put(from, std::string(static_cast<std::size_t>(end - from), '\0'));
}

void DemoDisc::put(UserOffset offset, std::string_view bytes) {
    const auto start = static_cast<std::size_t>(offset);
    if (offset < 0 || start + bytes.size() > user_data_.size())
        throw std::out_of_range("the table ends behind the disc");
    user_data_.replace(start, bytes.size(), bytes);
}

void DemoDisc::put(const Pieces& field, std::string_view text) {
    if (text.size() > static_cast<std::size_t>(field.bytes()))
        throw std::length_error("the text is longer than the field");
    for (const Piece& piece : field) {
        const std::string_view head = text.substr(0, static_cast<std::size_t>(piece.bytes));
        text.remove_prefix(head.size());
        const UserOffset offset = user_offset_of(piece.position);
        zero(offset, offset + piece.bytes);
        put(offset, head);
    }
}

RawSector DemoDisc::sector(std::uint32_t number) const {
    std::array<std::uint8_t, user_bytes> user{};
    const auto start = user_data_.begin() + static_cast<std::ptrdiff_t>(number) * user_bytes;
    std::transform(start, start + user_bytes, user.begin(), [](char byte) { return static_cast<std::uint8_t>(byte); });
    return make_sector(number, user);
}

}  // namespace kalco::demo

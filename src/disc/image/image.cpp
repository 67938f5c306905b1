#include "disc/image/image.h"

#include <algorithm>
#include <utility>

#include "disc/runtime_error.h"

namespace kalco {

void Image::open(const std::string& path) {
    storage_ = opener_(path);
    dirty_ = false;
}

void Image::close() {
    const std::unique_ptr<Storage> closing = std::exchange(storage_, nullptr);
    if (closing && std::exchange(dirty_, false)) closing->flush();
}

Storage& Image::storage() const {
    if (!storage_) throw RuntimeError(error::bad_file_name);
    return *storage_;
}

std::string Image::read(ImagePos position, int bytes) const {
    return storage().read(position - 1, static_cast<std::size_t>(bytes));
}

std::string Image::read(const Pieces& field) const {
    std::string result;
    for (const Piece& piece : field) result += read(piece.position, piece.bytes);
    return result;
}

void Image::write(ImagePos position, std::string_view bytes) {
    Storage& target = storage();
    dirty_ = true;
    target.write(position - 1, bytes);
}

void Image::write(const Pieces& field, std::string_view bytes) {
    for (std::size_t i = 0; i + 1 < field.size(); ++i) {
        const auto room = static_cast<std::size_t>(field[i].bytes);
        write(field[i].position, bytes.substr(0, room));
        bytes.remove_prefix(std::min(room, bytes.size()));
    }
    if (!bytes.empty()) write(field[field.size() - 1].position, bytes);
}

void Image::clear(const Pieces& field) {
    for (const Piece& piece : field) write(piece.position, zero_bytes(static_cast<std::size_t>(piece.bytes)));
}

}  // namespace kalco

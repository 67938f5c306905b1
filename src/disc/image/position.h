#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace kalco {

/// A 1-based position in the image file: file offset + 1.
using ImagePos = std::int64_t;
/// A 0-based count along the user data of the raw sectors, without the bytes between two stretches of it.
using UserOffset = std::int64_t;

inline constexpr int sector_bytes = 2352;
inline constexpr int user_bytes = 2048;
/// Sync, address, mode and sub-header stand before a sector's user data.
inline constexpr int user_start = 24;

constexpr ImagePos position_of(UserOffset offset) {
    return (offset / user_bytes) * sector_bytes + user_start + (offset % user_bytes) + 1;
}

/// The inverse of position_of, for a position that lies in user data.
constexpr UserOffset user_offset_of(ImagePos position) {
    return ((position - 1) / sector_bytes) * user_bytes + (position - 1) % sector_bytes - user_start;
}

/// A stretch of bytes that lies whole in the image.
struct Piece {
    ImagePos position = 0;
    int bytes = 0;

    friend constexpr bool operator==(const Piece&, const Piece&) = default;
};

/// Where a field lies: one piece, or two when it crosses the end of a sector's user data.
class Pieces {
public:
    constexpr Pieces(Piece whole) : pieces_{whole, {}}, count_(1) {}
    constexpr Pieces(Piece first, Piece second) : pieces_{first, second}, count_(2) {}

    constexpr const Piece* begin() const { return pieces_.data(); }
    constexpr const Piece* end() const { return pieces_.data() + count_; }
    constexpr std::size_t size() const { return count_; }
    constexpr const Piece& operator[](std::size_t i) const { return pieces_[i]; }
    constexpr bool split() const { return count_ == 2; }
    constexpr ImagePos position() const { return pieces_[0].position; }
    constexpr int bytes() const { return pieces_[0].bytes + (split() ? pieces_[1].bytes : 0); }

    friend constexpr bool operator==(const Pieces& a, const Pieces& b) {
        return a.count_ == b.count_ && a.pieces_ == b.pieces_;
    }

private:
    std::array<Piece, 2> pieces_;
    std::size_t count_;
};

/// The field of `bytes` bytes (at most one sector's user data) that begins at `offset` of the user data.
constexpr Pieces field_at(UserOffset offset, int bytes) {
    const int room = user_bytes - static_cast<int>(offset % user_bytes);
    if (bytes <= room) return Piece{position_of(offset), bytes};
    return {Piece{position_of(offset), room}, Piece{position_of(offset + room), bytes - room}};
}

/// The same for a field whose first position is known from a table.
constexpr Pieces field_from(ImagePos position, int bytes) {
    return field_at(user_offset_of(position), bytes);
}

}  // namespace kalco

#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "ctl/demo/random.h"
#include "disc/image/position.h"
#include "disc/image/sector.h"

namespace kalco::demo {

/// The user data of a disc that is being made. Tables are put in place; sectors are made of it at the end.
class DemoDisc {
public:
    explicit DemoDisc(std::uint32_t sectors)
        : user_data_(static_cast<std::size_t>(sectors) * static_cast<std::size_t>(user_bytes), '\0') {}

    /// Fills the user data from a sector on with bytes that mean nothing, in the place of the game's own data: an
    /// editor that writes where it should not does not go unseen among zeroes.
    void scatter(std::uint32_t first_sector, Random& random);

    void zero(UserOffset from, UserOffset end);
    void put(UserOffset offset, std::string_view bytes);
    /// The text and zeroes behind it; it must not be longer than the field.
    void put(const Pieces& field, std::string_view text);

    std::uint32_t sectors() const { return static_cast<std::uint32_t>(user_data_.size() / user_bytes); }
    RawSector sector(std::uint32_t number) const;

private:
    std::string user_data_;
};

}  // namespace kalco::demo

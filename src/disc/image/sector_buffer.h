#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "disc/image/save.h"

namespace kalco {

/// The sectors that a save has touched so far, over an image that stays as it is. Offsets are 0-based.
class SectorBuffer {
public:
    /// Gives the bytes of the image below; those beyond its end are zero.
    using Below = std::function<std::string(std::int64_t offset, std::size_t bytes)>;

    /// True until the first write behind begin().
    bool empty() const { return sectors_.empty() && length_ == length_before_; }
    /// The image's length as the writes make it.
    std::int64_t length() const { return length_; }

    /// Forgets everything, for an image of `length` bytes.
    void begin(std::int64_t length);
    /// Takes the sectors that it needs from `below`, and nothing when one of them can't be read.
    void write(std::int64_t offset, std::string_view bytes, const Below& below);
    /// Cuts the image or extends it by zeroes. Bytes that are cut off and not held must be zero.
    void set_length(std::int64_t length);
    /// Puts what is held over bytes that were read from below.
    void overlay(std::int64_t offset, std::span<char> bytes) const;

    /// The sectors that are not as they were, in rising order.
    std::vector<std::int64_t> changed_sectors() const;
    /// One that is held.
    SectorChange change(std::int64_t sector) const;
    std::vector<SectorChange> changes() const;
    /// Everything that is held becomes a save, which takes the bytes over; the buffer is over then.
    Save release(std::string_view what);

private:
    /// Both have a whole sector's bytes; those beyond the image's end are zero.
    struct Held {
        std::string before;
        std::string now;
    };
    using Sectors = std::map<std::int64_t, Held>;

    std::string_view before(const Sectors::value_type& held) const;
    std::string_view now(const Sectors::value_type& held) const;

    Sectors sectors_;
    std::int64_t length_before_ = 0;
    std::int64_t length_ = 0;
};

}  // namespace kalco

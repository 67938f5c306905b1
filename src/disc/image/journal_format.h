#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "disc/image/save.h"

/// The file that lies beside an image while a save is under way: blocks of 512 bytes, numbers little-endian.
///
///      0    4  "KLJ1"
///      4    4  the block's number, from 0
///      8    8  the journal's random number
///     16  492  contents, going on from block to block
///    508    4  CRC-32 of the 508 bytes before
///
/// Contents: the image's length before and after the save (8 bytes each), then for each sector its number (8), the
/// counts of its bytes before and after (2 each), and those bytes. The number -1 ends them; zeroes fill the last block.
///
/// A block that never reached the disk is missing or zero, and a whole one never is. That tells a journal that was
/// still being written, with the image untouched, from one that was damaged later.
namespace kalco::journal {

inline constexpr std::size_t block_bytes = 512;

/// Makes the blocks of a journal and gives them to `sink`, some 64 KiB at a time.
void encode(const Save& save, std::uint64_t random, const std::function<void(std::string_view)>& sink);

enum class State {
    unfinished,  ///< Empty, or ours and never wholly on the disk: the image has not been touched.
    complete,
    foreign,  ///< Anything else, a damaged journal too.
};

/// The image's lengths in bytes.
struct Lengths {
    std::int64_t before = 0;
    std::int64_t after = 0;
};

/// Reads a journal in bounded memory.
class Reader {
public:
    /// Gives up to `bytes` bytes from `offset` of the file, fewer only at its end.
    using Source = std::function<std::string(std::int64_t offset, std::size_t bytes)>;
    using Use = std::function<void(const SectorChange&)>;

    /// Reads the journal through.
    explicit Reader(Source source);

    State state() const { return state_; }
    /// Of a complete journal.
    Lengths lengths() const { return lengths_; }
    /// Gives the sectors of a complete journal in rising order.
    void each(const Use& use) const;

private:
    State contents(Lengths& lengths, const Use& use) const;

    Source source_;
    State state_;
    Lengths lengths_;
};

}  // namespace kalco::journal

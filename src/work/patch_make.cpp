#include "work/patch_make.h"

#include <algorithm>
#include <stdexcept>
#include <string>

#include "disc/image/position.h"
#include "work/undo_patch.h"

namespace kalco {

PatchSize make_patch(const Image& original, const Image& edited, std::string_view description,
                     const PpfWriter::Sink& sink, const PatchProgress& progress) {
    // Whole sectors, so that no run of bytes is cut but where a record may not go on anyway.
    constexpr std::int64_t block_bytes = 256 * sector_bytes;
    const std::int64_t length = original.length();
    if (edited.length() != length) throw std::invalid_argument("the images have different lengths");

    PpfWriter writer(description, sink, checked_block(original));
    std::string before;
    std::string after;
    for (std::int64_t offset = 0; offset < length; offset += block_bytes) {
        const std::int64_t bytes = std::min(block_bytes, length - offset);
        before.resize(static_cast<std::size_t>(bytes));
        after.resize(static_cast<std::size_t>(bytes));
        original.read_into(offset + 1, before);
        edited.read_into(offset + 1, after);
        writer.add(static_cast<std::uint64_t>(offset), before, after);
        if (progress) progress(offset + bytes);
    }
    return {writer.records(), writer.bytes()};
}

}  // namespace kalco

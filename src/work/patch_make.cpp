#include "work/patch_make.h"

#include <algorithm>
#include <stdexcept>
#include <string>

#include "disc/image/position.h"
#include "work/ppf.h"

namespace kalco {

PatchSize make_patch(Storage& original, Storage& edited, std::string_view description, const PpfWriter::Sink& sink,
                     const PatchProgress& progress) {
    // Whole sectors, so that no run of bytes is cut but where a record may not go on anyway.
    constexpr std::int64_t block_bytes = 256 * sector_bytes;
    const std::int64_t length = original.size();
    if (edited.size() != length) throw std::invalid_argument("the images have different lengths");

    const auto checked = static_cast<std::int64_t>(ppf_block_offset(PpfImage::bin));
    PpfWriter writer(description, original.read(checked, ppf_block_bytes), sink);
    for (std::int64_t offset = 0; offset < length; offset += block_bytes) {
        const auto bytes = static_cast<std::size_t>(std::min(block_bytes, length - offset));
        const std::string before = original.read(offset, bytes);
        const std::string after = edited.read(offset, bytes);
        writer.add(static_cast<std::uint64_t>(offset), before, after);
        if (progress) progress(offset + static_cast<std::int64_t>(bytes), length);
    }
    return {writer.records(), writer.bytes()};
}

}  // namespace kalco

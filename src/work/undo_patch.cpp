#include "work/undo_patch.h"

#include "work/ppf.h"
#include "work/ppf_writer.h"

namespace kalco {

std::string checked_block(const Image& image) {
    return image.read(static_cast<ImagePos>(ppf_block_offset(PpfImage::bin)) + 1, static_cast<int>(ppf_block_bytes));
}

std::string patch_of_changes(std::string_view block, std::span<const SectorChange> changes,
                             std::string_view description) {
    std::string patch;
    PpfWriter writer(
        description, [&patch](std::string_view bytes) { patch += bytes; }, block);
    for (const SectorChange& change : changes) {
        writer.add(static_cast<std::uint64_t>(change.offset()), change.before, change.after);
    }
    return patch;
}

}  // namespace kalco

#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "disc/image/image.h"
#include "work/ppf.h"

/// Applying a patch to an image, and taking it back.
namespace kalco {

enum class PatchWay { apply, take_back };

/// Neighbouring bytes that a patch can't change: they are neither the old nor the new ones.
struct PatchConflict {
    ImagePos position = 0;
    std::string expected;  ///< What the patch takes for the bytes before the change.
    std::string found;
};

/// Whether the block that the patch was made over is the image's: for applying, the one of the image as it is, for
/// taking back, the one of the image as it will be. What the patch itself has changed there already counts as its old
/// bytes, or as fitting where those are not known. True when the patch holds no block.
bool block_fits(const Image& image, const PpfPatch& patch);

/// Writes the patch into the image without a commit. Where the old bytes are known, every byte must be the old or the
/// new one; what is neither is given back in rising order, and the image is for the caller to discard then. A byte that
/// the records as a whole leave as it is is never a conflict.
///
/// EDC and parities are never a conflict. In a sector whose check fields all fit they stay as they are, for the caller
/// to renew, unless the patch makes a sector of another kind of it; elsewhere the patch's bytes are written.
///
/// Throws PpfError when a record lies beyond the image's end, and when a patch without old bytes is to be taken back.
std::vector<PatchConflict> write_patch(Image& image, const PpfPatch& patch, PatchWay way);

}  // namespace kalco

#pragma once

#include <span>
#include <vector>

#include "work/change.h"
#include "work/other_bytes.h"
#include "work/patch.h"

/// What a patch does to an image, by meaning.
namespace kalco {

struct PatchMeaning {
    std::vector<FieldChange> fields;
    std::vector<ByteRun> others;  ///< Outside all fields.
};

/// What stands in an image's buffer and is not committed; `before` is the disc without it.
PatchMeaning meaning_of_changes(const DiscBytes& before, const Image& after);

/// The fields that a patch expects to be others than the disc's: from the expected value to the one that is there. Of
/// the bytes those outside all fields, and where no field shows the difference, all.
PatchMeaning meaning_of_conflicts(const DiscBytes& disc, std::span<const PatchConflict> conflicts);

}  // namespace kalco

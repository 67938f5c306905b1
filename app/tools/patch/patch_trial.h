#pragma once

#include "work/patch_meaning.h"

namespace kalco::app {

/// What a patch would do to the open image.
struct PatchTrial {
    DiscBytes disc;          ///< Before it.
    bool fits = true;        ///< The block that the patch checks is the image's.
    bool changes = false;    ///< A byte would become another one.
    PatchMeaning meaning;    ///< What it would change.
    PatchMeaning conflicts;  ///< Where the image has neither the old nor the new values.

    bool in_conflict() const { return !conflicts.fields.empty() || !conflicts.others.empty(); }
};

/// Tries it on the image's bytes; the image itself is only read. Throws PpfError where write_patch does.
PatchTrial try_patch(const Image& image, const PpfPatch& patch, PatchWay way);

}  // namespace kalco::app

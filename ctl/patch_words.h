#pragma once

#include <string>
#include <vector>

#include "work/patch_meaning.h"

namespace kalco::ctl {

/// What a patch does to an image, told by meaning: the fields with their values, and how many bytes lie outside all of
/// them.
class PatchWords {
public:
    /// Remembers the disc as the open image holds it.
    explicit PatchWords(const Image& before);

    /// Compares it with what stands in the image's buffer now.
    void see(const Image& after);

    /// A line for each change.
    std::string lines() const;
    /// An object for each change, one a line.
    std::string json() const;

    /// A line for each field that the patch expects to be another one; for bytes outside all fields, and where no field
    /// shows the difference, a line for each stretch of them.
    std::vector<std::string> of_conflicts(const std::vector<PatchConflict>& conflicts) const;

private:
    DiscBytes before_;
    PatchMeaning meaning_;
};

/// Everything that a patch tells about itself.
std::string text_of_patch(const PpfPatch& patch);
/// The same as one JSON object.
std::string json_of_patch(const PpfPatch& patch);

}  // namespace kalco::ctl

#pragma once

#include <span>

#include "work/change.h"

namespace kalco {

/// Writes the new values of some changes into the image's buffer: the bits of these fields and no others. The changes
/// are those of plan_import or changes_between, all of them or some.
void write_changes(Image& image, std::span<const FieldChange> changes);

}  // namespace kalco

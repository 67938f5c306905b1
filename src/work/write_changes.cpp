#include "work/write_changes.h"

namespace kalco {

void write_changes(Image& image, std::span<const FieldChange> changes) {
    const DiscBytes before = read_sheets(image);
    DiscBytes after = before;
    for (const FieldChange& change : changes) store_value(after, *change.column, change.row, change.after);
    for (const DiscBytes::Run& run : differences(before, after)) image.write(run.position, run.bytes);
}

}  // namespace kalco

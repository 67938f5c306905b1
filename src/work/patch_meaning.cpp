#include "work/patch_meaning.h"

#include "work/sheets/known_bits.h"
#include "work/sheets/sheets.h"

namespace kalco {
namespace {

bool in_a_field(ImagePos position) {
    const auto known = known_bits().find((position - 1) / sector_bytes);
    return known != known_bits().end() && known->second[static_cast<std::size_t>((position - 1) % sector_bytes)] != 0;
}

/// The stretches of a conflict that are chosen by position.
template <typename Chosen>
void add_runs(const PatchConflict& conflict, Chosen chosen, std::vector<ByteRun>& runs) {
    const auto size = static_cast<ImagePos>(conflict.found.size());
    for (ImagePos from = 0; from < size;) {
        ImagePos end = from;
        while (end < size && chosen(conflict.position + end)) ++end;
        if (end > from) runs.push_back({conflict.position + from, end - from});
        from = end + 1;
    }
}

}  // namespace

PatchMeaning meaning_of_changes(const DiscBytes& before, const Image& after) {
    return {changes_between(before, read_sheets(after)), other_differences(after.changes())};
}

PatchMeaning meaning_of_conflicts(const DiscBytes& disc, std::span<const PatchConflict> conflicts) {
    DiscBytes expected = disc;
    for (const PatchConflict& conflict : conflicts) expected.put(conflict.position, conflict.expected);
    PatchMeaning meaning{changes_between(expected, disc), {}};
    for (const PatchConflict& conflict : conflicts) {
        add_runs(
            conflict, [&](ImagePos position) { return meaning.fields.empty() || !in_a_field(position); },
            meaning.others);
    }
    return meaning;
}

}  // namespace kalco

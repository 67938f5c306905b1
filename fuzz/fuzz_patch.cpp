// Any bytes as a patch, for `patch show`, `apply` and `undo`: it is refused, or told and written without leaving the
// image's length; what is applied once is applied already, and can be taken back. The first byte tells whether the
// others are the file or what a file is put together from, so that records over the image's own bytes come up too.

#include <algorithm>
#include <vector>

#include "ctl/patch_words.h"
#include "disc/codec/utf8.h"
#include "disc/image/sector.h"
#include "disc/image/sector_layout.h"
#include "fuzz/input.h"
#include "support/filled_disc.h"
#include "support/memory_storage.h"
#include "work/edit.h"
#include "work/patch.h"

using namespace kalco;
using fuzz::require;

namespace {

/// The check fields of every third sector fit, the others are no data sectors.
test::Disc& disc() {
    static test::Disc disc = [] {
        std::string bytes = test::filled_image();
        bytes.resize(bytes.size() / sector_bytes * sector_bytes);
        for (std::size_t start = 0; start < bytes.size(); start += std::size_t{3} * sector_bytes) {
            std::copy(layout::sync_pattern.begin(), layout::sync_pattern.end(),
                      bytes.begin() + static_cast<long>(start));
            bytes.replace(start + layout::mode, 9, std::string("\2\0\0\x08\0\0\0\x08\0", 9));
            auto* const first = reinterpret_cast<std::uint8_t*>(bytes.data()) + start;
            renew_checks(SectorBytes(first, static_cast<std::size_t>(sector_bytes)));
        }
        return test::Disc{.bytes = std::move(bytes)};
    }();
    return disc;
}

/// A 3.0 patch whose records begin at offsets all over the image and mostly know its bytes.
std::string patch_of(fuzz::Bytes& input) {
    const std::string& image = disc().bytes;
    std::string file("PPF30\2", 6);
    file += std::string(50, ' ');
    const int flags = input.next();
    const bool block = (flags & 1) != 0;
    const bool undo = (flags & 2) != 0;
    file += {static_cast<char>(flags >> 2 & 1), static_cast<char>(block), static_cast<char>(undo), '\0'};
    if (block) file += image.substr((flags & 4) != 0 ? 0x80A0 : 0x9320, ppf_block_bytes);
    for (int records = 1 + input.next() % 8; records > 0; --records) {
        const int sector = input.next() << 8 | input.next();
        const int byte = input.next() << 8 | input.next();
        const auto offset =
            static_cast<std::uint64_t>(sector % 2404) * sector_bytes + static_cast<std::uint64_t>(byte % 2352);
        const auto count = static_cast<std::size_t>(1 + input.next() % 255);
        for (int shift = 0; shift < 64; shift += 8) file += static_cast<char>(offset >> shift);
        file += static_cast<char>(count);
        for (std::size_t i = 0; i < count; ++i) file += static_cast<char>(input.next());
        if (!undo) continue;
        std::string old = image.substr(offset, count);
        old.resize(count);
        if (input.next() % 8 == 0) old[0] = static_cast<char>(input.next());
        file += old;
    }
    return file;
}

bool overlap(const PpfPatch& patch) {
    std::vector<PpfRecord> records = patch.records();
    std::sort(records.begin(), records.end(), [](const auto& a, const auto& b) { return a.offset < b.offset; });
    return std::adjacent_find(records.begin(), records.end(),
                              [](const auto& a, const auto& b) { return a.end() > b.offset; }) != records.end();
}

/// Gives all sectors that are to change, with their checks renewed.
std::vector<SectorChange> apply(Edit& edit, const PpfPatch& patch, PatchWay way,
                                std::vector<PatchConflict>& conflicts) {
    conflicts = write_patch(edit.image(), patch, way);
    return edit.settle();
}

void write(const PpfPatch& patch, bool with_words) {
    Edit edit("disc.bin", true, test::opener_of(disc()));
    edit.image().open(edit.path());
    const std::int64_t length = edit.image().length();
    block_fits(edit.image(), patch);
    std::vector<PatchConflict> conflicts;
    const std::vector<SectorChange> changes = apply(edit, patch, PatchWay::apply, conflicts);
    require(edit.image().length() == length);
    for (const PatchConflict& conflict : conflicts) {
        require(conflict.position > 0 && conflict.found.size() == conflict.expected.size() && !conflict.found.empty());
    }
    if (with_words) {
        test::Disc same{.bytes = disc().bytes};
        Image before(test::opener_of(same));
        before.open("disc.bin");
        ctl::PatchWords words(before);
        words.see(edit.image());
        require(!broken_utf8(words.lines() + words.json()));
        require(conflicts.empty() == words.of_conflicts(conflicts).empty());
    }
    if (!conflicts.empty()) return;
    require(apply(edit, patch, PatchWay::apply, conflicts) == changes);
    require(conflicts.empty());
    if (!patch.has_undo() || overlap(patch)) return;
    apply(edit, patch, PatchWay::take_back, conflicts);
    require(conflicts.empty());
    for (const PpfRecord& record : patch.records()) {
        const std::string bytes =
            edit.image().read(static_cast<ImagePos>(record.offset) + 1, static_cast<int>(record.old_bytes.size()));
        for (std::size_t i = 0; i < bytes.size(); ++i) {
            require(bytes[i] == record.old_bytes[i] || (record.offset + i) % sector_bytes >= layout::mode1_edc);
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Bytes input(data, size);
    const int way = input.next();
    try {
        const PpfPatch patch((way & 1) != 0 ? patch_of(input) : input.rest());
        for (const PpfRecord& record : patch.records()) {
            require(!record.new_bytes.empty() && record.new_bytes.size() <= ppf_record_most_bytes);
            require(record.old_bytes.size() == (patch.has_undo() ? record.new_bytes.size() : 0));
        }
        require(!broken_utf8(ctl::text_of_patch(patch) + ctl::json_of_patch(patch)));
        write(patch, way == 0xFF);
    } catch (const PpfError&) {
        // What is no patch, or one for a longer image.
    }
    return 0;
}

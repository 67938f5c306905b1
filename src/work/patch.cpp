#include "work/patch.h"

#include <algorithm>
#include <map>
#include <span>

#include "disc/image/sector.h"

namespace kalco {
namespace {

/// What a patch's bytes for the check fields of a sector are worth.
struct SectorState {
    SectorKind kind = SectorKind::other;
    bool renewed = false;  ///< The fields fit: they follow the edit, whatever the patch says.
};

class PatchRun {
public:
    PatchRun(Image& image, PatchWay way) : image_(image), way_(way) {}

    void write(const PpfRecord& record) {
        const bool back = way_ == PatchWay::take_back;
        const std::string_view target = back ? record.old_bytes : record.new_bytes;
        const std::string_view expected = back ? record.new_bytes : record.old_bytes;
        const auto position = static_cast<ImagePos>(record.offset) + 1;
        std::string bytes = image_.read(position, static_cast<int>(target.size()));
        for (std::size_t i = 0; i < target.size(); ++i) {
            const std::uint64_t offset = record.offset + i;
            const SectorState& sector = state_of(offset / sector_bytes);
            const auto place = static_cast<std::size_t>(offset % sector_bytes);
            if (is_check_byte(sector.kind, place)) {
                if (!sector.renewed) bytes[i] = target[i];
                continue;
            }
            if (!expected.empty() && bytes[i] != expected[i] && bytes[i] != target[i]) {
                add_conflict(static_cast<ImagePos>(offset) + 1, expected[i], bytes[i]);
            }
            bytes[i] = target[i];
        }
        image_.write(position, bytes);
    }

    std::vector<PatchConflict> take_conflicts() {
        std::sort(conflicts_.begin(), conflicts_.end(),
                  [](const PatchConflict& a, const PatchConflict& b) { return a.position < b.position; });
        return std::move(conflicts_);
    }

private:
    const SectorState& state_of(std::uint64_t number) {
        const auto [found, added] = states_.try_emplace(number);
        if (added) found->second = read_state(static_cast<std::int64_t>(number));
        return found->second;
    }

    SectorState read_state(std::int64_t number) const {
        const std::string bytes = image_.read(number * sector_bytes + 1, sector_bytes);
        const std::span<const std::uint8_t> sector(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
        const SectorView view = sector.first<sector_bytes>();
        return {kind_of(view), checks_all_fit(view)};
    }

    void add_conflict(ImagePos position, char expected, char found) {
        const bool joins =
            !conflicts_.empty() &&
            conflicts_.back().position + static_cast<ImagePos>(conflicts_.back().found.size()) == position;
        if (!joins) conflicts_.push_back({position, {}, {}});
        conflicts_.back().expected += expected;
        conflicts_.back().found += found;
    }

    Image& image_;
    PatchWay way_;
    std::map<std::uint64_t, SectorState> states_;
    std::vector<PatchConflict> conflicts_;
};

void check_range(const Image& image, const PpfPatch& patch) {
    const auto length = static_cast<std::uint64_t>(image.length());
    for (const PpfRecord& record : patch.records()) {
        if (record.end() > length) {
            throw PpfError("a record for position " + std::to_string(record.offset + 1) + ", beyond the image's end");
        }
    }
}

}  // namespace

bool block_fits(const Image& image, const PpfPatch& patch) {
    if (!patch.block()) return true;
    const std::uint64_t start = ppf_block_offset(patch.image());
    std::string block = image.read(static_cast<ImagePos>(start) + 1, ppf_block_bytes);
    const auto put_back = [&block, start](const PpfRecord& record) {
        for (std::size_t i = 0; i < record.old_bytes.size(); ++i) {
            const std::uint64_t offset = record.offset + i;
            if (offset < start || offset >= start + ppf_block_bytes) continue;
            char& byte = block[static_cast<std::size_t>(offset - start)];
            if (byte == record.new_bytes[i]) byte = record.old_bytes[i];
        }
    };
    std::for_each(patch.records().rbegin(), patch.records().rend(), put_back);
    return block == *patch.block();
}

std::vector<PatchConflict> write_patch(Image& image, const PpfPatch& patch, PatchWay way) {
    if (way == PatchWay::take_back && !patch.has_undo()) throw PpfError("the patch has no old bytes to take it back");
    check_range(image, patch);
    PatchRun run(image, way);
    const auto& records = patch.records();
    if (way == PatchWay::apply) {
        for (const PpfRecord& record : records) run.write(record);
    } else {
        std::for_each(records.rbegin(), records.rend(), [&run](const PpfRecord& record) { run.write(record); });
    }
    return run.take_conflicts();
}

}  // namespace kalco

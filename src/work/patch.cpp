#include "work/patch.h"

#include <algorithm>
#include <map>
#include <span>

#include "disc/image/sector.h"

namespace kalco {
namespace {

/// A sector before the patch.
struct SectorBefore {
    SectorKind kind = SectorKind::other;
    std::string checks;  ///< The bytes of its check fields when they all fit, else none.
};

class PatchRun {
public:
    PatchRun(Image& image, PatchWay way) : image_(image), way_(way) {}

    void write(const PpfRecord& record) {
        const bool back = way_ == PatchWay::take_back;
        const std::string_view target = back ? record.old_bytes : record.new_bytes;
        const std::string_view expected = back ? record.new_bytes : record.old_bytes;
        const auto position = static_cast<ImagePos>(record.offset) + 1;
        const std::string found = image_.read(position, static_cast<int>(target.size()));
        for (std::size_t i = 0; i < target.size(); ++i) {
            const std::uint64_t offset = record.offset + i;
            const SectorBefore& sector = sector_before(offset / sector_bytes);
            if (expected.empty() || found[i] == expected[i] || found[i] == target[i]) continue;
            if (is_check_byte(sector.kind, static_cast<std::size_t>(offset % sector_bytes))) continue;
            doubts_.push_back({static_cast<ImagePos>(offset) + 1, expected[i], found[i]});
        }
        image_.write(position, target);
    }

    /// To be called when all records are written.
    std::vector<PatchConflict> finish() {
        for (const auto& [number, sector] : sectors_) put_checks_back(static_cast<std::int64_t>(number), sector);
        std::sort(doubts_.begin(), doubts_.end(), [](const Doubt& a, const Doubt& b) { return a.place < b.place; });
        std::vector<PatchConflict> conflicts;
        for (const Doubt& doubt : doubts_) {
            // Several records may stand for one byte: what is there already counts for them all.
            if (image_.read(doubt.place, 1).front() == doubt.found) continue;
            const bool joins =
                !conflicts.empty() &&
                conflicts.back().position + static_cast<ImagePos>(conflicts.back().found.size()) == doubt.place;
            if (!joins) conflicts.push_back({doubt.place, {}, {}});
            conflicts.back().expected += doubt.expected;
            conflicts.back().found += doubt.found;
        }
        return conflicts;
    }

private:
    /// A byte that is neither the old nor the new one of a record.
    struct Doubt {
        ImagePos place;
        char expected;
        char found;
    };

    const SectorBefore& sector_before(std::uint64_t number) {
        const auto [place, added] = sectors_.try_emplace(number);
        if (added) {
            const std::string bytes = image_.read(static_cast<ImagePos>(number) * sector_bytes + 1, sector_bytes);
            SectorBefore& sector = place->second;
            sector.kind = kind_of(view_of(bytes));
            const bool fits = checks_all_fit(view_of(bytes));
            for (std::size_t i = 0; fits && i < bytes.size(); ++i) {
                if (is_check_byte(sector.kind, i)) sector.checks += bytes[i];
            }
        }
        return place->second;
    }

    /// A sector that becomes one of another kind has its check fields elsewhere: it keeps what the patch has for them.
    void put_checks_back(std::int64_t number, const SectorBefore& before) {
        const ImagePos start = number * sector_bytes + 1;
        if (before.checks.empty()) return;
        std::string bytes = image_.read(start, sector_bytes);
        if (kind_of(view_of(bytes)) != before.kind) return;
        std::size_t check = 0;
        for (std::size_t i = 0; i < bytes.size(); ++i) {
            if (is_check_byte(before.kind, i)) bytes[i] = before.checks[check++];
        }
        image_.write(start, bytes);
    }

    static SectorView view_of(std::string_view bytes) {
        return std::span(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()).first<sector_bytes>();
    }

    Image& image_;
    PatchWay way_;
    std::map<std::uint64_t, SectorBefore> sectors_;
    std::vector<Doubt> doubts_;
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
    const auto put_back = [&](const PpfRecord& record) {
        for (std::size_t i = 0; i < record.new_bytes.size(); ++i) {
            const std::uint64_t offset = record.offset + i;
            if (offset < start || offset >= start + ppf_block_bytes) continue;
            const auto place = static_cast<std::size_t>(offset - start);
            if (block[place] != record.new_bytes[i]) continue;
            block[place] = record.old_bytes.empty() ? (*patch.block())[place] : record.old_bytes[i];
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
    return run.finish();
}

}  // namespace kalco

#include "work/edit.h"

#include <algorithm>

#include "disc/image/file_error.h"
#include "disc/image/sector.h"

namespace kalco {
namespace {

RawSector raw_sector(std::string_view bytes) {
    RawSector sector{};
    std::transform(bytes.begin(), bytes.end(), sector.begin(),
                   [](char byte) { return static_cast<std::uint8_t>(byte); });
    return sector;
}

/// An EDC that is left out in the system area is no EDC that fits: it stays left out.
bool all_fitted(const std::string& before) {
    if (before.size() != sector_bytes) return false;
    const RawSector sector = raw_sector(before);
    return kind_of(sector) != SectorKind::other && !bad_fields(system_area_sectors, sector).any();
}

}  // namespace

std::vector<SectorChange> Edit::settle() {
    for (const SectorChange& change : image_.changes()) {
        if (change.before.size() != change.after.size()) {
            throw FileError(path_, change.position(), "a change beyond the image's end");
        }
        if (!all_fitted(change.before)) continue;
        RawSector sector = raw_sector(change.after);
        renew_checks(sector);
        image_.write(change.position(), {reinterpret_cast<const char*>(sector.data()), sector.size()});
    }
    return image_.changes();
}

void Edit::commit(std::string_view what) {
    settle();
    if (!dry_run_) image_.commit(what);
}

}  // namespace kalco

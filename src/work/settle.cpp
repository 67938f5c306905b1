#include "work/settle.h"

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

}  // namespace

void settle(Image& image, const std::string& path) {
    for (const std::int64_t number : image.changed_sectors()) {
        const SectorChange change = image.change(number);
        if (change.before.size() != change.after.size()) {
            throw FileError(path, change.position(), "a change beyond the image's end");
        }
        // An EDC that is left out in the system area is no EDC that fits: it stays left out.
        if (change.before.size() != sector_bytes || !checks_all_fit(raw_sector(change.before))) continue;
        RawSector sector = raw_sector(change.after);
        renew_checks(sector);
        image.write(change.position(), {reinterpret_cast<const char*>(sector.data()), sector.size()});
    }
}

}  // namespace kalco

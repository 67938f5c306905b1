#include "work/repair.h"

#include "disc/image/sector.h"

namespace kalco {
namespace {

std::span<char> characters(std::span<std::uint8_t> bytes) {
    return {reinterpret_cast<char*>(bytes.data()), bytes.size()};
}

constexpr ImagePos position_of_sector(std::int64_t sector) {
    return sector * sector_bytes + 1;
}

}  // namespace

check::ReadSectors sectors_of(const Image& image) {
    return [&image](std::int64_t first, std::span<std::uint8_t> bytes) {
        image.read_into(position_of_sector(first), characters(bytes));
    };
}

check::Summary check_image(const Image& image, const SectorChoice& choice, const check::Listener& listener) {
    if (choice) return check::check_these(*choice, sectors_of(image), listener);
    return check::check_all(image.length() / sector_bytes, sectors_of(image), listener);
}

Repair repair_image(Image& image, const SectorChoice& choice, const std::function<void(std::int64_t)>& progress) {
    Repair repair;
    const auto note = [&repair](const check::BadSector& bad) {
        if (bad.sector >= system_area_sectors) repair.renewed.push_back(bad);
    };
    repair.summary = check_image(image, choice, {note, progress});
    repair.summary.bad = static_cast<std::int64_t>(repair.renewed.size());
    for (const check::BadSector& bad : repair.renewed) {
        RawSector sector{};
        sectors_of(image)(bad.sector, sector);
        renew_checks(sector);
        const std::span<const char> renewed = characters(sector);
        image.write(position_of_sector(bad.sector), {renewed.data(), renewed.size()});
    }
    return repair;
}

}  // namespace kalco

// Any bytes as an image for check and repair. Every method finds what the plain way finds; a repair changes EDC and
// parities of bad sectors alone, and behind it nothing from sector 16 on is bad. The first bytes choose which sectors
// get a sync pattern and which are renewed, so that not all are audio.

#include <algorithm>
#include <cstdlib>
#include <vector>

#include "fuzz/input.h"
#include "support/memory_storage.h"
#include "work/container.h"
#include "work/edit.h"
#include "work/repair.h"

using namespace kalco;
using fuzz::require;

namespace {

constexpr std::size_t sectors = 18;

std::string image_of(fuzz::Bytes& input) {
    std::vector<int> choices(sectors);
    for (int& choice : choices) choice = input.next();
    const std::string bytes = input.rest();
    std::string image;
    for (std::size_t k = 0; k < sectors; ++k) {
        RawSector sector{};
        for (std::size_t i = 0; i < sector.size() && !bytes.empty(); ++i) {
            sector[i] = static_cast<std::uint8_t>(bytes[(k * sector.size() + i) % bytes.size()]);
        }
        const int choice = choices[k];
        if (choice % 4 != 0) std::copy(layout::sync_pattern.begin(), layout::sync_pattern.end(), sector.begin());
        if (choice % 4 != 0) sector[layout::mode] = static_cast<std::uint8_t>(choice % 4);
        if (choice & 0x10) renew_checks(sector);
        if (choice & 0x20) sector[static_cast<std::size_t>(choice) * 9] ^= 1;
        if (choice & 0x40) std::fill_n(sector.begin() + layout::form1_edc, layout::edc_bytes, std::uint8_t{0});
        image.append(sector.begin(), sector.end());
    }
    return image;
}

std::vector<check::BadSector> plainly_bad(const std::string& image) {
    std::vector<check::BadSector> bad;
    for (std::size_t k = 0; k < sectors; ++k) {
        RawSector sector{};
        std::copy_n(image.begin() + static_cast<std::ptrdiff_t>(k * sector_bytes), sector_bytes, sector.begin());
        const auto number = static_cast<std::int64_t>(k);
        if (const CheckFields fields = bad_fields(number, sector); fields.any()) bad.push_back({number, fields});
    }
    return bad;
}

std::vector<check::BadSector> found_bad(const Image& image, const check::SectorCheck& how) {
    std::vector<check::BadSector> bad;
    const check::Listener listener{[&bad](const check::BadSector& one) { bad.push_back(one); }};
    check::check_all(sectors, sectors_of(image), listener, 1, how);
    return bad;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Bytes input(data, size);
    look_at_container(static_cast<std::int64_t>(size), [&](std::int64_t offset, std::size_t count) {
        std::string bytes(count, '\0');
        for (std::size_t k = 0; k < count && static_cast<std::size_t>(offset) + k < size; ++k) {
            bytes[k] = static_cast<char>(data[static_cast<std::size_t>(offset) + k]);
        }
        return bytes;
    });

    test::Disc disc;
    disc.bytes = image_of(input);
    const std::string before = disc.bytes;
    const std::vector<check::BadSector> bad = plainly_bad(before);
    {
        Image image(test::opener_of(disc));
        image.open("disc.bin");
        require(found_bad(image, {check::edc_methods().front().fits, check::parity_methods().front().fit}) == bad);
        require(found_bad(image, {}) == bad);
    }
    {
        Edit edit("disc.bin", false, test::opener_of(disc));
        edit.image().open(edit.path());
        repair_image(edit.image(), {}, [](std::int64_t) {});
        edit.commit("repair");
    }
    require(disc.bytes.size() == before.size());
    for (std::size_t k = 0; k < before.size(); ++k) {
        if (disc.bytes[k] == before[k]) continue;
        const auto sector = static_cast<std::int64_t>(k) / sector_bytes;
        require(k % sector_bytes >= layout::mode1_edc && sector >= system_area_sectors);
        require(std::any_of(bad.begin(), bad.end(), [&](const auto& one) { return one.sector == sector; }));
    }
    for (const check::BadSector& one : plainly_bad(disc.bytes)) require(one.sector < system_area_sectors);
    return 0;
}

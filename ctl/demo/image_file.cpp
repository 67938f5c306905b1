#include <filesystem>
#include <stdexcept>
#include <string_view>
#include <system_error>

#include "ctl/demo/demo_image.h"
#include "ctl/partial_file.h"

namespace kalco::demo {
namespace {

namespace fs = std::filesystem;

void refuse_existing(const std::string& path, bool replace) {
    std::error_code ignored;
    const fs::file_status status = fs::status(path, ignored);
    if (!fs::exists(status)) return;
    if (!fs::is_regular_file(status)) throw std::runtime_error(path + ": it is no plain file");
    if (!replace) throw std::runtime_error(path + ": it exists already; --force replaces it");
}

}  // namespace

void write_image(const DemoDisc& disc, const std::string& path, bool replace, const Progress& progress) {
    refuse_existing(path, replace);
    ctl::PartialFile file(path);
    for (std::uint32_t number = 0; number < disc.sectors(); ++number) {
        const RawSector sector = disc.sector(number);
        file.write({reinterpret_cast<const char*>(sector.data()), sector.size()});
        progress(number + 1);
    }
    file.finish(replace);
}

}  // namespace kalco::demo

#include <filesystem>
#include <memory>
#include <string_view>

#include "ctl/demo/demo_image.h"
#include "disc/image/file_error.h"
#include "disc/image/new_file.h"
#include "disc/image/storage.h"

namespace kalco::demo {
namespace {

namespace fs = std::filesystem;

/// The file that is to be replaced, held as the editor holds an image; nothing when there is none.
std::unique_ptr<Storage> hold_existing(const std::string& path, bool replace) {
    std::error_code ignored;
    const fs::file_status status = fs::status(path, ignored);
    if (!fs::exists(status)) return nullptr;
    if (!fs::is_regular_file(status)) throw FileError(path, "it is no plain file");
    if (!replace) throw FileError(path, "it exists already; --force replaces it");
    return open_to_write(path);
}

}  // namespace

void write_image(const DemoDisc& disc, const std::string& path, bool replace, const Progress& progress) {
    const std::unique_ptr<Storage> held = hold_existing(path, replace);
    NewFile file(path);
    for (std::uint32_t number = 0; number < disc.sectors(); ++number) {
        const RawSector sector = disc.sector(number);
        file.write({reinterpret_cast<const char*>(sector.data()), sector.size()});
        progress(number + 1);
    }
    file.finish(replace ? NewFile::Existing::replace : NewFile::Existing::keep);
}

}  // namespace kalco::demo

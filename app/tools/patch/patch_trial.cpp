#include "app/tools/patch/patch_trial.h"

#include "disc/runtime_error.h"
#include "work/sheets/sheets.h"

namespace kalco::app {
namespace {

/// What an open image holds, to be read only: an image on it has a buffer of its own.
class ImageStorage : public Storage {
public:
    explicit ImageStorage(const Image& image) : image_(image) {}

    std::string read(std::int64_t offset, std::size_t bytes) override {
        return image_.read(offset + 1, static_cast<int>(bytes));
    }
    std::int64_t size() override { return image_.length(); }
    void write(std::int64_t /*offset*/, std::string_view /*bytes*/) override { refuse(); }
    void truncate(std::int64_t /*size*/) override { refuse(); }
    void flush() override {}

private:
    [[noreturn]] static void refuse() { throw RuntimeError(error::path_access); }

    const Image& image_;
};

}  // namespace

PatchTrial try_patch(const Image& image, const PpfPatch& patch, PatchWay way) {
    Image trial([&image](const std::string&) { return std::make_unique<ImageStorage>(image); });
    trial.open({});
    PatchTrial result{read_sheets(trial), block_fits(trial, patch), false, {}, {}};
    const std::vector<PatchConflict> conflicts = write_patch(trial, patch, way);
    result.changes = !trial.changes().empty();
    result.conflicts = meaning_of_conflicts(result.disc, conflicts);
    result.meaning = meaning_of_changes(result.disc, trial);
    trial.discard();
    return result;
}

}  // namespace kalco::app

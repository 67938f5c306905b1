#include "ctl/patch_file.h"

#include <algorithm>
#include <filesystem>

#include "disc/image/file_error.h"
#include "disc/image/new_file.h"
#include "work/undo_patch.h"

namespace kalco::ctl {
namespace {

namespace fs = std::filesystem;

std::string lower_ascii(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + 32) : letter;
    });
    return text;
}

/// The name in its directory, the way to that without links.
fs::path named(const std::string& path) {
    std::error_code failure;
    const fs::path whole = fs::absolute(path, failure);
    const fs::path directory = fs::weakly_canonical(whole.parent_path(), failure);
    return directory / whole.filename();
}

bool stands_beside(const fs::path& patch, const fs::path& image) {
    return patch.parent_path() == image.parent_path() && patch.stem() == image.stem();
}

}  // namespace

void refuse_patch_beside(const std::string& patch, const std::vector<std::string>& images) {
    const fs::path path = named(patch);
    if (lower_ascii(path.extension().string()) != ".ppf") return;
    for (const std::string& image : images) {
        // The link and the file that it leads to: emulators go by the name that they are given.
        std::error_code failure;
        const fs::path file = fs::canonical(image, failure);
        if (!stands_beside(path, named(image)) && (failure || !stands_beside(path, file))) continue;
        throw FileError(patch, "emulators load a patch of this name with " + image +
                                   " by themselves, and a stale one hides later edits; take another name, or --force");
    }
}

UndoFile::UndoFile(std::string path, Edit& edit) : path_(std::move(path)), edit_(edit) {
    if (path_.empty()) return;
    std::error_code ignored;
    if (fs::exists(fs::symlink_status(path_, ignored))) throw FileError(path_, "a file of that name exists");
    block_ = checked_block(edit_.image());
}

void UndoFile::commit(std::string_view what) {
    if (path_.empty() || edit_.dry_run()) return edit_.commit(what);
    const std::vector<SectorChange> changes = edit_.settle();
    if (changes.empty()) return;
    NewFile file(path_);
    file.write(patch_of_changes(block_, changes, "Undo"));
    file.finish(NewFile::Existing::keep);
    try {
        edit_.commit(what);
    } catch (...) {
        std::error_code ignored;
        fs::remove(path_, ignored);
        throw;
    }
}

}  // namespace kalco::ctl

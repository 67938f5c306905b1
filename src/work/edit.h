#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "disc/image/image.h"

namespace kalco {

/// The one way how a command changes an image: open it, write into its buffer, settle, tell what changes, commit.
///
///     Edit edit(path, dry_run);
///     edit.image().open(edit.path());                     // kalcoctl: open_image(), which looks what the file is
///     edit.image().write(position, bytes);                // as often as need be
///     for (const SectorChange& change : edit.settle()) ...  // all that a save would change, for an undo file
///     edit.commit("Importazione");
///
/// Nothing reaches the file before the commit, and then all of it or nothing does. An Edit that goes without a commit
/// leaves the image as it was.
class Edit {
public:
    /// A dry run opens the image to read it only: it takes no lock, and a commit does nothing.
    Edit(std::string path, bool dry_run) : Edit(std::move(path), dry_run, dry_run ? open_to_read : open_to_write) {}
    Edit(std::string path, bool dry_run, StorageOpener opener)
        : path_(std::move(path)),
          dry_run_(dry_run),
          image_(std::move(opener)) {}
    Edit(const Edit&) = delete;
    Edit& operator=(const Edit&) = delete;
    ~Edit() { image_.discard(); }

    const std::string& path() const { return path_; }
    Image& image() { return image_; }
    bool dry_run() const { return dry_run_; }

    /// All that a save would change, with EDC and parities as kalco::settle() renews them. Throws FileError.
    std::vector<SectorChange> settle();

    /// Settles, then brings the changes to the disk as one save. Does nothing when there are none. Throws FileError.
    void commit(std::string_view what);

private:
    std::string path_;
    bool dry_run_;
    Image image_;
};

}  // namespace kalco

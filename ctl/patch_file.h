#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "work/edit.h"

/// The patch files that commands write.
namespace kalco::ctl {

/// Throws FileError when the patch's path is that of an image with its ending made ".ppf": emulators load such a file
/// by themselves, and a stale one hides later edits.
void refuse_patch_beside(const std::string& patch, const std::vector<std::string>& images);

/// A patch that takes an edit back, for `--keep-undo`. It is on the disk before the edit is, and goes away again when
/// the edit fails.
class UndoFile {
public:
    /// An empty path: no file is kept. Looks at the image before it is changed. Throws FileError for a path where a
    /// file is already.
    UndoFile(std::string path, Edit& edit);

    /// Commits the edit. Nothing is kept of an edit that changes nothing.
    void commit(std::string_view what);

private:
    std::string path_;
    Edit& edit_;
    std::string block_;
};

}  // namespace kalco::ctl

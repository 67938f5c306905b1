#pragma once

#include <string>

#include "disc/image/descriptor.h"
#include "disc/image/file_system.h"
#include "disc/image/save.h"

namespace kalco {

/// The place of an image's journal: beside the file itself, links followed. Results are 0 or an errno.
class JournalPlace {
public:
    /// `image` is the path that was opened.
    JournalPlace(FileSystem& files, const std::string& image);

    const std::string& path() const { return path_; }
    /// ENOENT when the open image does not lie beside this place any more.
    int check(const FileSystem::About& image) const;

    /// ENOENT when there is nothing, EACCES when there is something that can't be read or is no file.
    Descriptor open() const;
    Descriptor create(unsigned permissions) const;
    /// Writes the journal into the new file and brings both to the disk; one that can't be finished is removed.
    int write(const Descriptor& file, const Save& save) const;
    int remove() const;
    int sync_directory() const;

private:
    FileSystem& files_;
    std::string image_;
    std::string path_;
    std::string directory_;
};

}  // namespace kalco

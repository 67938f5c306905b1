#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace kalco {

struct CopyOptions {
    /// Whether a file that has the name already is replaced; otherwise it is an error (EEXIST).
    bool replace = false;
    /// Is told how many bytes are done. What it throws ends the copy, and nothing of it stays.
    std::function<void(std::int64_t done)> progress = [](std::int64_t /*done*/) {};
};

/// Makes `to` a copy of the file `from`, by reference where the file system shares blocks between files, else byte by
/// byte; whole or not at all. Looks first whether there is room for it (ENOSPC). Every failure is a FileError
/// with the path that it is about; a copy onto the file itself is one too.
void copy_image(const std::string& from, const std::string& to, const CopyOptions& options);

}  // namespace kalco

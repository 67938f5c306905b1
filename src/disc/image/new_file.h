#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "disc/image/descriptor.h"

namespace kalco {

/// A file that takes its name only when it is complete: until then it is a part file beside, and what had the name
/// stands. A part that is given up goes away again. Every failure is a SystemFileError.
class NewFile {
public:
    /// Links are followed: the file that they lead to is the one to be replaced. It has to be a plain file that may be
    /// written; its mode, and its owner where that is allowed, are kept.
    explicit NewFile(const std::string& path);
    ~NewFile();
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    void write(std::string_view bytes);
    /// Makes it a copy of another file without writing, before the first write. False where that can't be done.
    bool share_blocks_of(const Descriptor& source) const { return file_->share_blocks_of(source) == 0; }

    enum class Existing { replace, keep };
    /// Brings everything to the disk, gives the file its name and brings that to the disk. With `keep`, a file that has
    /// the name is an error (EEXIST), also one that came up in the meantime.
    void finish(Existing existing = Existing::replace);

private:
    std::string target_;
    std::string part_;  ///< Empty once the name is taken.
    std::optional<Descriptor> file_;
    std::int64_t end_ = 0;
};

}  // namespace kalco

#pragma once

#include <string>
#include <string_view>

namespace kalco::ctl {

/// A new file beside its final path, which goes away again unless it takes that name. Every failure is a FileError.
class PartialFile {
public:
    explicit PartialFile(std::string final_path);
    PartialFile(const PartialFile&) = delete;
    PartialFile& operator=(const PartialFile&) = delete;
    ~PartialFile();

    void write(std::string_view bytes);
    /// Brings it to the disk and gives it its name; an existing file makes way if `replace` is set.
    void finish(bool replace);

private:
    std::string final_path_;
    std::string path_;
    int fd_ = -1;
};

}  // namespace kalco::ctl

#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace kalco {

/// Where the side files lie: on the disk of the machine, or in memory. Paths are UTF-8.
class SideFiles {
public:
    /// A file that is read on, block by block.
    class Reader {
    public:
        virtual ~Reader() = default;
        /// Empty at the file's end. Error 57 when it can't be read on.
        virtual std::string next_block() = 0;
    };
    /// A file that can be written; until it is, what had the name stands.
    class Writer {
    public:
        virtual ~Writer() = default;
        /// Replaces the file. Error 61 when the disk is full, 57 when it can't be written.
        virtual void finish(std::string_view text) = 0;
    };

    virtual ~SideFiles() = default;

    /// Makes the directory if nothing of that name is there. Error 75 when it can't be made, 61 when the disk is full.
    virtual void make_directory(const std::string& path) = 0;
    /// Error 53 when there is no such file, 75 when it can't be opened.
    virtual std::unique_ptr<Reader> read(const std::string& path) = 0;
    /// Error 75 when there can't be such a file, 61 when the disk is full.
    virtual std::unique_ptr<Writer> replace(const std::string& path) = 0;
};

/// Those of the machine.
SideFiles& disk_files();

}  // namespace kalco

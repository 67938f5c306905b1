#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "disc/image/save.h"
#include "disc/runtime_error.h"

namespace kalco {

/// What lay beside an image when it was opened for writing.
enum class Beside {
    nothing,
    interrupted_save,  ///< It was taken back: the image is as it was before that save.
    foreign_file,      ///< It has a journal's name and is none, or can't be removed: saves are refused (error 75).
};

/// Error 75: the journal beside the image is that of another one. Nothing was touched.
class JournalOfAnotherImage : public RuntimeError {
public:
    JournalOfAnotherImage() : RuntimeError(error::path_access) {}
};

/// What an open image stands on: random access by 0-based file offset. Tests put a failing one in its place.
class Storage {
public:
    virtual ~Storage() = default;

    /// Exactly `bytes` bytes; those beyond the end are zero. Error 57 when the system refuses.
    virtual std::string read(std::int64_t offset, std::size_t bytes) = 0;
    /// The same into `bytes`. Several threads may do this at a time.
    virtual void read_into(std::int64_t offset, std::span<char> bytes) {
        const std::string read_bytes = read(offset, bytes.size());
        std::copy(read_bytes.begin(), read_bytes.end(), bytes.begin());
    }
    /// Writes all bytes, extending the file if need be. Error 61 when there is no room, 57 for any other refusal.
    virtual void write(std::int64_t offset, std::string_view bytes) = 0;
    /// The file's length in bytes. Errors as for read.
    virtual std::int64_t size() = 0;
    /// Cuts the file, or extends it by zeroes. Errors as for write.
    virtual void truncate(std::int64_t size) = 0;
    /// Brings what was written to the disk. Errors as for write.
    virtual void flush() = 0;

    /// Lays the old and the new bytes of a save beside the file until remove_journal(), and brings them to the disk.
    /// False where there can be no journal; errors as for write, or 75.
    virtual bool keep_journal(const Save& /*save*/) { return false; }
    virtual void remove_journal() {}
    /// Brings the removal to the disk.
    virtual void sync_directory() {}
    virtual Beside found() const { return Beside::nothing; }
};

using StorageOpener = std::function<std::unique_ptr<Storage>(const std::string& path)>;

/// Opens an existing file read-write and exclusively. Error 53 when it does not exist, 70 when another program holds
/// it, 75 for anything else that prevents the opening. Creates nothing. A save that was interrupted is taken back.
std::unique_ptr<Storage> open_file(const std::string& path);

/// The same for commands: every failure is a FileError.
std::unique_ptr<Storage> open_to_write(const std::string& path);

/// Opens an existing file, also a write-protected one, to read it as it was before a save that was interrupted; takes
/// no lock and writes nothing. Every failure is a FileError, and so is a commit.
std::unique_ptr<Storage> open_to_read(const std::string& path);

}  // namespace kalco

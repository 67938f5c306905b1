#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace kalco {

/// What an open image stands on: random access by 0-based file offset. Tests put a failing one in its place.
class Storage {
public:
    virtual ~Storage() = default;

    /// Exactly `bytes` bytes; those beyond the end are zero.
    virtual std::string read(std::int64_t offset, std::size_t bytes) = 0;
    /// Writes all bytes, extending the file if need be. Error 61 when there is no room, 57 for any other refusal.
    virtual void write(std::int64_t offset, std::string_view bytes) = 0;
    /// Brings what was written to the disk. Errors as for write.
    virtual void flush() = 0;
};

using StorageOpener = std::function<std::unique_ptr<Storage>(const std::string& path)>;

/// Opens an existing file read-write and exclusively. Error 53 when it does not exist, 70 when another program holds
/// it, 75 for anything else that prevents the opening. Creates nothing.
std::unique_ptr<Storage> open_file(const std::string& path);

}  // namespace kalco

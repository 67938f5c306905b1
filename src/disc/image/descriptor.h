#pragma once

#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "disc/image/file_system.h"

namespace kalco {

/// A descriptor that is closed with its object. Calls that a signal breaks off are made again, and those that go only
/// part of the way are continued. Results are 0 or an errno.
class Descriptor {
public:
    /// Takes over the result of FileSystem::open or create.
    Descriptor(FileSystem& files, int descriptor) : files_(&files), descriptor_(descriptor) {}
    static Descriptor opened(FileSystem& files, const std::string& path, FileSystem::Access access);
    static Descriptor created(FileSystem& files, const std::string& path, unsigned permissions);
    Descriptor(Descriptor&& other) noexcept : files_(other.files_), descriptor_(std::exchange(other.descriptor_, -1)) {}
    Descriptor& operator=(Descriptor&&) = delete;
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor();

    /// Why it could not be opened; 0 when it is open.
    int failure() const { return descriptor_ < 0 ? -descriptor_ : 0; }

    int about(FileSystem::About& about) const;
    int lock() const;
    /// Fills `bytes`; what lies beyond the end is zero. `got` counts the bytes that lie before it.
    int read(std::span<char> bytes, std::int64_t offset, std::size_t& got) const;
    int write(std::string_view bytes, std::int64_t offset) const;
    int truncate(std::int64_t size) const;
    /// Takes over the source's blocks, where both are of one file system that can.
    int share_blocks_of(const Descriptor& source) const;
    int sync() const;

private:
    FileSystem* files_;
    int descriptor_;
};

}  // namespace kalco

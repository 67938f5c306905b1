#include "disc/image/descriptor.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>

namespace kalco {

Descriptor Descriptor::opened(FileSystem& files, const std::string& path, FileSystem::Access access) {
    return {files, after_signals([&] { return files.open(path, access); })};
}

Descriptor Descriptor::created(FileSystem& files, const std::string& path, unsigned permissions) {
    return {files, after_signals([&] { return files.create(path, permissions); })};
}

Descriptor::~Descriptor() {
    if (descriptor_ >= 0) files_->close(descriptor_);
}

int Descriptor::about(FileSystem::About& about) const {
    return -after_signals([&] { return files_->about(descriptor_, about); });
}

int Descriptor::lock() const {
    return -after_signals([this] { return files_->lock(descriptor_); });
}

int Descriptor::read(std::span<char> bytes, std::int64_t offset, std::size_t& got) const {
    for (got = 0; got < bytes.size();) {
        const std::int64_t result = after_signals([&] {
            return files_->read(descriptor_, bytes.data() + got, bytes.size() - got,
                                offset + static_cast<std::int64_t>(got));
        });
        if (result < 0) return static_cast<int>(-result);
        if (result == 0) break;
        got += static_cast<std::size_t>(result);
    }
    std::fill(bytes.begin() + static_cast<std::ptrdiff_t>(got), bytes.end(), '\0');
    return 0;
}

int Descriptor::write(std::string_view bytes, std::int64_t offset) const {
    while (!bytes.empty()) {
        const std::int64_t result =
            after_signals([&] { return files_->write(descriptor_, bytes.data(), bytes.size(), offset); });
        if (result < 0) return static_cast<int>(-result);
        // A device that takes nothing and gives no reason would be asked for ever.
        if (result == 0) return EIO;
        bytes.remove_prefix(static_cast<std::size_t>(result));
        offset += result;
    }
    return 0;
}

int Descriptor::truncate(std::int64_t size) const {
    return -after_signals([&] { return files_->truncate(descriptor_, size); });
}

int Descriptor::share_blocks_of(const Descriptor& source) const {
    return -after_signals([&] { return files_->share_blocks(descriptor_, source.descriptor_); });
}

int Descriptor::sync() const {
    const int failure = -after_signals([this] { return files_->sync(descriptor_); });
    // What can't be synced, such as some devices, has no more to give.
    return failure == EINVAL ? 0 : failure;
}

}  // namespace kalco

#pragma once

#include <algorithm>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "disc/image/storage.h"
#include "disc/runtime_error.h"

namespace kalco::test {

/// The bytes of an image in memory, shared by a test and the storage that the editor opens.
struct Disc {
    std::string bytes;
    int writes = 0;
    int flushes = 0;
    /// The write that fails, counted from 1; 0 for none. It leaves nothing behind.
    int failing_write = 0;
    int failure = error::disk_full;
    bool held = false;

    std::string at(std::int64_t position, std::size_t count) const {
        return bytes.substr(static_cast<std::size_t>(position - 1), count);
    }
    void put(std::int64_t position, const std::string& text) {
        const auto offset = static_cast<std::size_t>(position - 1);
        if (bytes.size() < offset + text.size()) bytes.resize(offset + text.size(), '\0');
        bytes.replace(offset, text.size(), text);
    }
};

class MemoryStorage final : public Storage {
public:
    explicit MemoryStorage(Disc& disc) : disc_(disc) { disc_.held = true; }
    ~MemoryStorage() override { disc_.held = false; }
    MemoryStorage(const MemoryStorage&) = delete;
    MemoryStorage& operator=(const MemoryStorage&) = delete;

    std::string read(std::int64_t offset, std::size_t bytes) override {
        std::string result;
        const auto start = static_cast<std::size_t>(offset);
        if (start < disc_.bytes.size()) result = disc_.bytes.substr(start, bytes);
        result.resize(bytes, '\0');
        return result;
    }

    void write(std::int64_t offset, std::string_view bytes) override {
        if (++disc_.writes == disc_.failing_write) throw RuntimeError(disc_.failure);
        disc_.put(offset + 1, std::string(bytes));
    }

    std::int64_t size() override { return static_cast<std::int64_t>(disc_.bytes.size()); }
    void truncate(std::int64_t size) override { disc_.bytes.resize(static_cast<std::size_t>(size), '\0'); }
    void flush() override { ++disc_.flushes; }

private:
    Disc& disc_;
};

/// An opener that knows one disc under every path but the empty one (error 75), and refuses one that is held (70).
inline StorageOpener opener_of(Disc& disc) {
    return [&disc](const std::string& path) -> std::unique_ptr<Storage> {
        if (path.empty()) throw RuntimeError(error::path_access);
        if (disc.held) throw RuntimeError(error::permission_denied);
        return std::make_unique<MemoryStorage>(disc);
    };
}

/// The 1-based positions at which two images differ.
inline std::vector<std::int64_t> differences(const std::string& before, const std::string& after) {
    std::vector<std::int64_t> positions;
    const std::size_t common = std::min(before.size(), after.size());
    for (std::size_t i = 0; i < common; ++i) {
        if (before[i] != after[i]) positions.push_back(static_cast<std::int64_t>(i) + 1);
    }
    for (std::size_t i = common; i < std::max(before.size(), after.size()); ++i) {
        positions.push_back(static_cast<std::int64_t>(i) + 1);
    }
    return positions;
}

}  // namespace kalco::test

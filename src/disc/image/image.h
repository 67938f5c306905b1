#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "disc/image/position.h"
#include "disc/image/storage.h"

namespace kalco {

inline std::string zero_bytes(std::size_t count) {
    return std::string(count, '\0');
}

/// The one open image: strings of exact length at 1-based positions. Nothing of it is ever inspected or cached.
/// Every operation without an open image is error 52.
class Image {
public:
    explicit Image(StorageOpener opener = open_file) : opener_(std::move(opener)) {}

    /// Opens an existing file exclusively (errors 53, 70, 75). The image must be closed.
    void open(const std::string& path);
    /// Brings the writes to the disk and lets go of the file, also when the former fails (errors 57, 61).
    void close();
    bool is_open() const { return storage_ != nullptr; }

    std::string read(ImagePos position, int bytes) const;
    std::string read(const Pieces& field) const;

    void write(ImagePos position, std::string_view bytes);
    /// The first piece takes as many bytes as it holds and the last one all the others: a shorter text leaves the
    /// tail of the field alone, a longer one runs on behind it.
    void write(const Pieces& field, std::string_view bytes);
    /// Zeroes over the whole field.
    void clear(const Pieces& field);

private:
    Storage& storage() const;

    StorageOpener opener_;
    std::unique_ptr<Storage> storage_;
    bool dirty_ = false;
};

}  // namespace kalco

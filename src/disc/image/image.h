#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "disc/image/position.h"
#include "disc/image/save.h"
#include "disc/image/sector_buffer.h"
#include "disc/image/storage.h"

namespace kalco {

inline std::string zero_bytes(std::size_t count) {
    return std::string(count, '\0');
}

/// Is told what happens to an image.
class ImageObserver {
public:
    virtual ~ImageObserver() = default;

    /// A write into the buffer.
    virtual void written(ImagePos /*position*/, std::string_view /*bytes*/) {}
    /// A save that is on the disk.
    virtual void committed(const Save& /*save*/) {}
};

/// The one open image: strings of exact length at 1-based positions. Nothing of it is ever inspected or cached.
/// Writes go to a buffer of whole sectors, which reads see; commit() brings them to the disk, all or none.
/// Every read and write without an open image is error 52. A failure of the storage discards what was not committed,
/// so that a save whose own reads fail leaves nothing behind.
class Image {
public:
    explicit Image(StorageOpener opener = open_file) : opener_(std::move(opener)) {}
    Image(const Image&) = delete;
    Image& operator=(const Image&) = delete;

    /// Opens an existing file as its opener does. The image must be closed.
    void open(const std::string& path);
    /// Commits, and lets go of the file, also when the former fails.
    void close();
    bool is_open() const { return storage_ != nullptr; }
    /// What lay beside the open image when it was opened.
    Beside found() const { return storage().found(); }

    std::string read(ImagePos position, int bytes) const;
    /// As many bytes as there is room for. Several threads may do this at a time while nothing is written.
    void read_into(ImagePos position, std::span<char> bytes) const;
    std::string read(const Pieces& field) const;

    void write(ImagePos position, std::string_view bytes);
    /// The first piece takes as many bytes as it holds and the last one all the others: a shorter text leaves the
    /// tail of the field alone, a longer one runs on behind it.
    void write(const Pieces& field, std::string_view bytes);
    /// Zeroes over the whole field.
    void clear(const Pieces& field);

    /// The image's length in bytes, what was not committed included.
    std::int64_t length() const;
    /// The sectors that are not as they were at the last commit, in rising order.
    std::vector<SectorChange> changes() const { return buffer_.changes(); }
    std::vector<std::int64_t> changed_sectors() const { return buffer_.changed_sectors(); }
    /// One of them.
    SectorChange change(std::int64_t sector) const { return buffer_.change(sector); }

    /// Brings the writes since the last commit to the disk: all of them, or none and the error is told (57, 61, 75).
    /// Nothing happens when no byte is another one. `what` tells the user what was saved.
    void commit(std::string_view what = {});
    /// Drops the writes since the last commit.
    void discard();

    /// Writes the bytes from before a save over its sectors, with the length from before it; or those from after it.
    /// False, and nothing is written, when the image does not hold the save's other bytes: it has been changed since.
    /// Nothing may wait for a commit.
    bool take_back(const Save& save);
    bool make_again(const Save& save);

    /// The observer must outlive the image's use.
    void add_observer(ImageObserver& observer) { observers_.push_back(&observer); }

private:
    Storage& storage() const;
    /// Runs `steps` on the storage; the buffer is dropped when it fails.
    template <typename Steps>
    auto guarded(Steps steps) const;
    bool exchange(const Save& save, bool back);
    void commit_to(Storage& target, std::string_view what);

    StorageOpener opener_;
    std::unique_ptr<Storage> storage_;
    mutable SectorBuffer buffer_;
    std::vector<ImageObserver*> observers_;
};

}  // namespace kalco

#include "disc/image/image.h"

#include <algorithm>
#include <utility>

#include "disc/image/commit.h"
#include "disc/runtime_error.h"

namespace kalco {

void Image::open(const std::string& path) {
    storage_ = opener_(path);
    discard();
}

void Image::close() {
    const std::unique_ptr<Storage> closing = std::exchange(storage_, nullptr);
    if (closing) commit_to(*closing, {});
}

Storage& Image::storage() const {
    if (!storage_) throw RuntimeError(error::bad_file_name);
    return *storage_;
}

template <typename Steps>
auto Image::guarded(Steps steps) const {
    try {
        return steps(storage());
    } catch (...) {
        if (!buffer_.empty()) buffer_.begin(0);
        throw;
    }
}

std::string Image::read(ImagePos position, int bytes) const {
    std::string result(static_cast<std::size_t>(bytes), '\0');
    read_into(position, result);
    return result;
}

void Image::read_into(ImagePos position, std::span<char> bytes) const {
    guarded([&](Storage& below) { below.read_into(position - 1, bytes); });
    if (!buffer_.empty()) buffer_.overlay(position - 1, bytes);
}

std::string Image::read(const Pieces& field) const {
    std::string result;
    for (const Piece& piece : field) result += read(piece.position, piece.bytes);
    return result;
}

void Image::write(ImagePos position, std::string_view bytes) {
    guarded([&](Storage& below) {
        if (bytes.empty()) return;
        if (buffer_.empty()) buffer_.begin(below.size());
        buffer_.write(position - 1, bytes,
                      [&below](std::int64_t offset, std::size_t count) { return below.read(offset, count); });
    });
    for (ImageObserver* const observer : observers_) observer->written(position, bytes);
}

void Image::write(const Pieces& field, std::string_view bytes) {
    for (std::size_t i = 0; i + 1 < field.size(); ++i) {
        const auto room = static_cast<std::size_t>(field[i].bytes);
        write(field[i].position, bytes.substr(0, room));
        bytes.remove_prefix(std::min(room, bytes.size()));
    }
    if (!bytes.empty()) write(field[field.size() - 1].position, bytes);
}

void Image::clear(const Pieces& field) {
    for (const Piece& piece : field) write(piece.position, zero_bytes(static_cast<std::size_t>(piece.bytes)));
}

std::int64_t Image::length() const {
    return guarded([this](Storage& below) { return buffer_.empty() ? below.size() : buffer_.length(); });
}

void Image::commit(std::string_view what) {
    if (storage_) commit_to(*storage_, what);
}

void Image::discard() {
    buffer_.begin(0);
}

bool Image::take_back(const Save& save) {
    return exchange(save, true);
}

bool Image::make_again(const Save& save) {
    return exchange(save, false);
}

bool Image::exchange(const Save& save, bool back) {
    const auto from = back ? &SectorChange::after : &SectorChange::before;
    const auto to = back ? &SectorChange::before : &SectorChange::after;
    if (length() != (back ? save.length_after : save.length_before)) return false;
    for (const SectorChange& change : save.sectors) {
        if (read(change.position(), static_cast<int>((change.*from).size())) != change.*from) return false;
    }
    for (const SectorChange& change : save.sectors) {
        std::string whole = change.*to;
        whole.resize(sector_bytes, '\0');
        write(change.position(), whole);
    }
    if (!save.sectors.empty()) buffer_.set_length(back ? save.length_before : save.length_after);
    return true;
}

void Image::commit_to(Storage& target, std::string_view what) {
    if (buffer_.empty()) return;
    // Whatever comes of it, the buffer is over.
    const Save save = buffer_.release(what);
    if (save.empty()) return;
    const bool journal = commit_save(target, save);
    for (ImageObserver* const observer : observers_) observer->committed(save);
    // A failure here is told, but the save stands.
    if (journal) target.sync_directory();
}

}  // namespace kalco

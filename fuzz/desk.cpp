#include "fuzz/desk.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace kalco::fuzz {
namespace {

class DiscStorage final : public Storage {
public:
    explicit DiscStorage(Disc& disc) : disc_(disc) { disc_.held = true; }
    ~DiscStorage() override { disc_.held = false; }
    DiscStorage(const DiscStorage&) = delete;
    DiscStorage& operator=(const DiscStorage&) = delete;

    std::string read(std::int64_t offset, std::size_t bytes) override {
        return disc_.read(static_cast<std::size_t>(offset), bytes);
    }
    void write(std::int64_t offset, std::string_view bytes) override {
        disc_.write(static_cast<std::size_t>(offset), bytes);
    }
    std::int64_t size() override { return static_cast<std::int64_t>(disc_.size()); }
    void truncate(std::int64_t size) override { disc_.resize(static_cast<std::size_t>(size)); }
    void flush() override {}

private:
    Disc& disc_;
};

class MemoryReader final : public SideFiles::Reader {
public:
    explicit MemoryReader(std::string text) : text_(std::move(text)) {}
    std::string next_block() override { return std::exchange(text_, {}); }

private:
    std::string text_;
};

class MemoryWriter final : public SideFiles::Writer {
public:
    explicit MemoryWriter(std::string& file) : file_(file) {}
    void finish(std::string_view text) override { file_ = text; }

private:
    std::string& file_;
};

}  // namespace

void Disc::fill(std::string pattern, std::size_t size) {
    pattern_ = pattern.empty() ? std::string(1, '\0') : std::move(pattern);
    filled_ = size_ = size;
    pages_.clear();
}

std::string Disc::read(std::size_t offset, std::size_t count) const {
    std::string bytes(count, '\0');
    const std::size_t filled = std::min(offset + count, filled_) - std::min(offset, filled_);
    if (pattern_.size() == 1) {
        std::memset(bytes.data(), pattern_[0], filled);
    } else {
        for (std::size_t k = 0; k < filled; ++k) bytes[k] = pattern_[(offset + k) % pattern_.size()];
    }
    for (auto page = pages_.lower_bound(offset / page_bytes); page != pages_.end(); ++page) {
        const std::size_t start = page->first * page_bytes;
        if (start >= offset + count) break;
        const std::size_t from = std::max(start, offset);
        const std::size_t taken = std::min(start + page_bytes, offset + count) - from;
        bytes.replace(from - offset, taken, page->second, from - start, taken);
    }
    return bytes;
}

void Disc::write(std::size_t offset, std::string_view bytes) {
    size_ = std::max(size_, offset + bytes.size());
    while (!bytes.empty()) {
        const std::size_t number = offset / page_bytes;
        const std::size_t place = offset % page_bytes;
        const std::size_t taken = std::min(bytes.size(), page_bytes - place);
        auto page = pages_.find(number);
        if (page == pages_.end()) page = pages_.emplace(number, read(number * page_bytes, page_bytes)).first;
        page->second.replace(place, taken, bytes.substr(0, taken));
        bytes.remove_prefix(taken);
        offset += taken;
    }
}

void Disc::resize(std::size_t size) {
    // What is cut off reads as zeroes when the disc grows again.
    filled_ = std::min(filled_, size);
    for (auto page = pages_.lower_bound(size / page_bytes); page != pages_.end(); ++page) {
        const std::size_t kept = std::max(size, page->first * page_bytes) - page->first * page_bytes;
        if (kept < page_bytes) page->second.replace(kept, std::string::npos, page_bytes - kept, '\0');
    }
    size_ = size;
}

std::unique_ptr<SideFiles::Reader> MemoryFiles::read(const std::string& path) {
    const auto file = files.find(path);
    if (file == files.end()) throw RuntimeError(error::file_not_found);
    return std::make_unique<MemoryReader>(file->second);
}

std::unique_ptr<SideFiles::Writer> MemoryFiles::replace(const std::string& path) {
    return std::make_unique<MemoryWriter>(files[path]);
}

Answer DeskPlatform::message(const std::string&, Icon, Buttons buttons) {
    if (buttons == Buttons::ok) return Answer::ok;
    if (answers.empty()) return Answer::no;
    const Answer answer = answers.front();
    answers.pop_front();
    return answer;
}

std::string DeskPlatform::open_dialog(const std::string&, const std::string&) {
    if (choices.empty()) return {};
    std::string choice = choices.front();
    choices.pop_front();
    return choice;
}

StorageOpener opener_of(Disc& disc) {
    return [&disc](const std::string& path) -> std::unique_ptr<Storage> {
        if (path.empty()) throw RuntimeError(error::path_access);
        if (disc.held) throw RuntimeError(error::permission_denied);
        return std::make_unique<DiscStorage>(disc);
    };
}

Desk::Desk(int tab) : editor(platform, opener_of(disc)) {
    form.image.add_observer(*this);
    platform.choices.emplace_back("disc.bin");
    user::start(form);
    user::select_tab(form, tab);
}

void Desk::begin(std::string pattern, std::size_t size) {
    form.image.discard();
    form.history.forget();
    disc.fill(std::move(pattern), size);
    platform.answers.clear();
    platform.choices.clear();
    platform.disk.files.clear();
    writes_.clear();
}

void Desk::choose_file(std::string bytes) {
    platform.disk.files["side.file"] = std::move(bytes);
    platform.choices.emplace_back("side.file");
}

bool Desk::wrote_within(std::span<const Piece> places) const {
    return std::all_of(writes_.begin(), writes_.end(), [&](const Piece& write) {
        return std::any_of(places.begin(), places.end(), [&](const Piece& place) {
            return place.position <= write.position && write.position + write.bytes <= place.position + place.bytes;
        });
    });
}

ImagePos Desk::first_written() const {
    ImagePos first = std::numeric_limits<ImagePos>::max();
    for (const Piece& write : writes_) first = std::min(first, write.position);
    return first;
}

void Desk::written(ImagePos position, std::string_view bytes) {
    if (!bytes.empty()) writes_.push_back({position, static_cast<int>(bytes.size())});
}

void FormationDesk::begin() {
    Desk::begin("\5", image_bytes);
    form.listApp2.clear();
    raise(form.slots.Read_Bar);
}

}  // namespace kalco::fuzz

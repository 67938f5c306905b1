#include "disc/image/stored_file.h"

#include <algorithm>
#include <cerrno>

#include "disc/image/journal_format.h"
#include "disc/runtime_error.h"

namespace kalco {
namespace {

constexpr auto no_journal_of_ours = "this is no journal of a save; nothing can be saved while it lies there";

journal::Reader::Source source_of(const Descriptor& file, const Failures& failures) {
    return [&file, &failures](std::int64_t offset, std::size_t bytes) {
        std::string result(bytes, '\0');
        std::size_t got = 0;
        if (const int failure = file.read(result, offset, got)) failures.system(failure, offset + 1);
        result.resize(got);
        return result;
    };
}

std::string whole(std::string sector) {
    sector.resize(sector_bytes, '\0');
    return sector;
}

/// True when each byte is one of the two; what a text lacks at its end is zero.
bool is_mixed_of(std::string_view bytes, const SectorChange& change) {
    const auto at = [](std::string_view text, std::size_t place) { return place < text.size() ? text[place] : '\0'; };
    for (std::size_t k = 0; k < bytes.size(); ++k) {
        if (bytes[k] != at(change.before, k) && bytes[k] != at(change.after, k)) return false;
    }
    return true;
}

/// Whether the image can be what an interruption of this save has left.
bool is_of_image(const journal::Reader& journal, Storage& image) {
    const journal::Lengths lengths = journal.lengths();
    const auto [least, most] = std::minmax(lengths.before, lengths.after);
    const std::int64_t size = image.size();
    bool fits = size >= least && size <= most;
    journal.each([&](const SectorChange& change) {
        fits = fits && is_mixed_of(image.read(change.offset(), sector_bytes), change);
    });
    return fits;
}

void write_back(const journal::Reader& journal, Storage& image) {
    journal.each([&image](const SectorChange& change) {
        if (!change.before.empty()) image.write(change.offset(), change.before);
    });
    if (image.size() != journal.lengths().before) image.truncate(journal.lengths().before);
    image.flush();
}

}  // namespace

std::string StoredFile::read(std::int64_t offset, std::size_t bytes) {
    std::string result(bytes, '\0');
    read_into(offset, result);
    return result;
}

void StoredFile::read_into(std::int64_t offset, std::span<char> bytes) {
    std::size_t got = 0;
    if (const int failure = file_.read(bytes, offset, got)) failures_.system(failure, offset + 1);
}

void StoredFile::write(std::int64_t offset, std::string_view bytes) {
    if (const int failure = file_.write(bytes, offset)) failures_.system(failure, offset + 1);
}

void StoredFile::truncate(std::int64_t size) {
    if (const int failure = file_.truncate(size)) failures_.system(failure, size + 1);
}

void StoredFile::flush() {
    if (const int failure = file_.sync()) failures_.system(failure);
}

FileSystem::About StoredFile::about() const {
    FileSystem::About about;
    if (const int failure = file_.about(about)) failures_.system(failure);
    return about;
}

JournaledFile::JournaledFile(Descriptor file, Failures failures, JournalPlace place)
    : StoredFile(std::move(file), std::move(failures)),
      place_(std::move(place)) {
    recover();
}

void JournaledFile::recover() {
    const Failures beside = failures().at(place_.path());
    const Descriptor file = place_.open();
    if (file.failure() == ENOENT) return;
    if (file.failure() == EACCES) {
        found_ = Beside::foreign_file;
        return;
    }
    if (file.failure() != 0) beside.system(file.failure());
    const journal::Reader journal(source_of(file, beside));
    if (journal.state() == journal::State::foreign) {
        found_ = Beside::foreign_file;
        return;
    }
    if (journal.state() == journal::State::complete) {
        if (!is_of_image(journal, *this)) beside.another_image();
        write_back(journal, *this);
        found_ = Beside::interrupted_save;
    }
    const int failure = place_.remove();
    if (failure == EACCES || failure == EPERM || failure == EROFS) {
        // Left beside an image that goes on to be saved, it would take the wrong thing back one day.
        found_ = Beside::foreign_file;
        return;
    }
    if (failure != 0) beside.system(failure);
    sync_directory();
}

bool JournaledFile::keep_journal(const Save& save) {
    const Failures beside = failures().at(place_.path());
    if (found_ == Beside::foreign_file) beside.other(error::path_access, no_journal_of_ours);
    const FileSystem::About image = about();
    const int place = place_.check(image);
    if (place == ENOENT || place == ENOTDIR || place == EACCES) return false;
    if (place != 0) beside.system(place);
    const Descriptor file = place_.create(image.permissions);
    switch (file.failure()) {
        case 0: break;
        case EACCES:
        case EPERM:
        case EROFS:
        case ENAMETOOLONG: return false;
        case EEXIST: beside.other(error::path_access, no_journal_of_ours);
        default: beside.system(file.failure());
    }
    if (const int failure = place_.write(file, save)) beside.system(failure);
    return true;
}

void JournaledFile::remove_journal() {
    if (const int failure = place_.remove()) failures().at(place_.path()).system(failure);
}

void JournaledFile::sync_directory() {
    if (const int failure = place_.sync_directory()) failures().at(place_.path()).system(failure);
}

ReadOnlyFile::ReadOnlyFile(Descriptor file, Failures failures, const JournalPlace& place)
    : StoredFile(std::move(file), std::move(failures)) {
    before_.begin(about().size);
    const Failures beside = this->failures().at(place.path());
    const Descriptor journal_file = place.open();
    if (journal_file.failure() == ENOENT || journal_file.failure() == EACCES) return;
    if (journal_file.failure() != 0) beside.system(journal_file.failure());
    const journal::Reader journal(source_of(journal_file, beside));
    if (journal.state() != journal::State::complete || !is_of_image(journal, *this)) return;
    journal.each([this](const SectorChange& change) {
        before_.write(change.offset(), whole(change.before),
                      [](std::int64_t, std::size_t bytes) { return std::string(bytes, '\0'); });
    });
    before_.set_length(journal.lengths().before);
}

void ReadOnlyFile::read_into(std::int64_t offset, std::span<char> bytes) {
    StoredFile::read_into(offset, bytes);
    before_.overlay(offset, bytes);
}

bool ReadOnlyFile::keep_journal(const Save& /*save*/) {
    failures().other(error::path_access, "this was opened to be read only");
}

}  // namespace kalco

#include "disc/image/journal.h"

#include <cerrno>
#include <cstdint>
#include <random>

#include "disc/image/journal_format.h"

namespace kalco {
namespace {

constexpr auto name_end = ".kalco-journal";

std::uint64_t random_number() {
    std::random_device random;
    return static_cast<std::uint64_t>(random()) << 32 | random();
}

}  // namespace

JournalPlace::JournalPlace(FileSystem& files, const std::string& image)
    : files_(files),
      image_(files.resolved(image)),
      path_(image_ + name_end),
      directory_(image_.substr(0, image_.rfind('/') + 1)) {
    if (directory_.empty()) directory_ = ".";
}

int JournalPlace::check(const FileSystem::About& image) const {
    FileSystem::About here;
    const int failure = -after_signals([&] { return files_.about_path(image_, here); });
    if (failure != 0) return failure;
    return here.same_file(image) ? 0 : ENOENT;
}

Descriptor JournalPlace::open() const {
    FileSystem::About about;
    int failure = -after_signals([&] { return files_.about_path(path_, about); });
    // Where no journal can be, there is none.
    if (failure == ENOTDIR || failure == ENAMETOOLONG) failure = ENOENT;
    if (failure == 0 && about.kind != FileSystem::Kind::file) failure = EACCES;
    if (failure != 0) return {files_, -failure};
    return Descriptor::opened(files_, path_, FileSystem::Access::read);
}

Descriptor JournalPlace::create(unsigned permissions) const {
    return Descriptor::created(files_, path_, permissions);
}

int JournalPlace::write(const Descriptor& file, const Save& save) const {
    int failure = 0;
    std::int64_t offset = 0;
    journal::encode(save, random_number(), [&](std::string_view blocks) {
        if (failure == 0) failure = file.write(blocks, offset);
        offset += static_cast<std::int64_t>(blocks.size());
    });
    if (failure == 0) failure = file.sync();
    if (failure == 0) failure = sync_directory();
    // What is left of it would only be taken for a save that was interrupted here.
    if (failure != 0) static_cast<void>(remove());
    return failure;
}

int JournalPlace::remove() const {
    return -after_signals([this] { return files_.remove(path_); });
}

int JournalPlace::sync_directory() const {
    const Descriptor directory = Descriptor::opened(files_, directory_, FileSystem::Access::directory);
    // A directory that lets files be made but not be listed can't be opened.
    if (directory.failure() == EACCES) return 0;
    return directory.failure() != 0 ? directory.failure() : directory.sync();
}

}  // namespace kalco

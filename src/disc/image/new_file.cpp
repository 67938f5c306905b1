#include "disc/image/new_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <utility>

#include "disc/image/file_error.h"

namespace kalco {
namespace {

/// The file that a path leads to when every link is followed, also where nothing is there yet.
std::string link_target(const std::string& path) {
    constexpr int most_links = 40;
    std::filesystem::path target(path);
    std::error_code failure;
    for (int links = 0; std::filesystem::is_symlink(target, failure); ++links) {
        if (links == most_links) throw SystemFileError(path, ELOOP);
        const auto next = std::filesystem::read_symlink(target, failure);
        if (failure) throw SystemFileError(path, failure.value());
        target = target.parent_path() / next;
    }
    return target.string();
}

/// What is at the path; nothing when it is free.
std::optional<struct stat> existing_file(const std::string& path) {
    struct stat about {};
    if (::stat(path.c_str(), &about) == 0) return about;
    if (errno == ENOENT) return std::nullopt;
    throw SystemFileError(path, errno);
}

/// What can't be replaced is refused, and so is what is write-protected: renaming asks the directory alone.
void require_replaceable(const std::string& path, const struct stat& existing) {
    if (S_ISDIR(existing.st_mode)) throw SystemFileError(path, EISDIR);
    if (!S_ISREG(existing.st_mode)) throw SystemFileError(path, ENOTSUP);
    if (::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0) throw SystemFileError(path, errno);
}

/// Only some may give files away. The mode comes last, as a change of the owner takes bits from it.
void take_over(const struct stat& existing, const std::string& part) {
    static_cast<void>(::chown(part.c_str(), existing.st_uid, existing.st_gid) == 0);
    static_cast<void>(::chmod(part.c_str(), existing.st_mode & 07777));
}

/// A directory that can't be opened is brought to the disk when the system wishes.
void sync_directory_of(const std::string& path) {
    const auto parent = std::filesystem::path(path).parent_path();
    const std::string directory = parent.empty() ? "." : parent.string();
    const Descriptor opened = Descriptor::opened(system_files(), directory, FileSystem::Access::directory);
    if (opened.failure() != 0) return;
    if (const int failure = opened.sync()) throw SystemFileError(directory, failure);
}

}  // namespace

NewFile::NewFile(const std::string& path) : target_(link_target(path)) {
    const auto existing = existing_file(target_);
    if (existing) require_replaceable(target_, *existing);
    constexpr int most_parts = 100;
    for (int k = 0;; ++k) {
        part_ = target_ + ".part" + (k == 0 ? "" : std::to_string(k));
        Descriptor created = Descriptor::created(system_files(), part_, 0666);
        if (created.failure() == 0) {
            file_.emplace(std::move(created));
            break;
        }
        if (created.failure() != EEXIST || k == most_parts) throw SystemFileError(target_, created.failure());
    }
    if (existing) take_over(*existing, part_);
}

NewFile::~NewFile() {
    if (!part_.empty()) ::unlink(part_.c_str());
}

void NewFile::write(std::string_view bytes) {
    if (const int failure = file_->write(bytes, end_)) throw SystemFileError(target_, failure);
    end_ += static_cast<std::int64_t>(bytes.size());
}

void NewFile::finish(Existing existing) {
    if (const int failure = file_->sync()) throw SystemFileError(target_, failure);
    file_.reset();
    // A link is refused where a file has come up meanwhile; a renaming would take its place. Some file systems have
    // no links.
    if (existing == Existing::keep && ::link(part_.c_str(), target_.c_str()) == 0) {
        ::unlink(part_.c_str());
    } else {
        if (existing == Existing::keep && errno == EEXIST) throw SystemFileError(target_, EEXIST);
        if (::rename(part_.c_str(), target_.c_str()) != 0) throw SystemFileError(target_, errno);
    }
    part_.clear();
    sync_directory_of(target_);
}

}  // namespace kalco

#include "disc/image/storage.h"

#include <cerrno>

#include "disc/image/opening.h"
#include "disc/image/stored_file.h"
#include "disc/runtime_error.h"

namespace kalco {
namespace {

/// An open file that can be an image; `kind` tells which.
Descriptor open_existing(FileSystem& files, const std::string& path, FileSystem::Access access,
                         const Failures& failures, FileSystem::Kind& kind) {
    Descriptor file = Descriptor::opened(files, path, access);
    if (const int failure = file.failure()) {
        // An empty path is that of a dialog that was cancelled, and no name of a file.
        const bool missing = failure == ENOENT && !path.empty();
        failures.other(missing ? error::file_not_found : error::path_access, static_cast<std::errc>(failure));
    }
    FileSystem::About about;
    if (const int failure = file.about(about)) failures.other(error::path_access, static_cast<std::errc>(failure));
    if (about.kind == FileSystem::Kind::other) failures.other(error::path_access, "this is no file");
    kind = about.kind;
    return file;
}

}  // namespace

std::unique_ptr<Storage> open_for_saves(FileSystem& files, const std::string& path, Failures::Kind errors) {
    const Failures failures(errors, path);
    FileSystem::Kind kind{};
    Descriptor file = open_existing(files, path, FileSystem::Access::write, failures, kind);
    if (file.lock() != 0) failures.other(error::permission_denied, "another program has it open");
    if (kind != FileSystem::Kind::file) return std::make_unique<StoredFile>(std::move(file), failures);
    return std::make_unique<JournaledFile>(std::move(file), failures, JournalPlace(files, path));
}

std::unique_ptr<Storage> open_for_reading(FileSystem& files, const std::string& path) {
    const Failures failures(Failures::Kind::file, path);
    FileSystem::Kind kind{};
    Descriptor file = open_existing(files, path, FileSystem::Access::read, failures, kind);
    return std::make_unique<ReadOnlyFile>(std::move(file), failures, JournalPlace(files, path));
}

std::unique_ptr<Storage> open_file(const std::string& path) {
    return open_for_saves(system_files(), path, Failures::Kind::run_time);
}

std::unique_ptr<Storage> open_to_write(const std::string& path) {
    return open_for_saves(system_files(), path, Failures::Kind::file);
}

std::unique_ptr<Storage> open_to_read(const std::string& path) {
    return open_for_reading(system_files(), path);
}

}  // namespace kalco

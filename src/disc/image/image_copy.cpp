#include "disc/image/image_copy.h"

#include <cerrno>
#include <filesystem>
#include <vector>

#include "disc/image/file_error.h"
#include "disc/image/new_file.h"

namespace kalco {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t chunk_bytes = std::size_t{1} << 20;

void require_room(const std::string& to, std::int64_t bytes) {
    std::error_code unknown;
    const fs::path directory = fs::absolute(to, unknown).parent_path();
    const fs::space_info space = fs::space(directory, unknown);
    if (!unknown && space.available < static_cast<std::uintmax_t>(bytes)) throw SystemFileError(to, ENOSPC);
}

/// What an image may still get is read too: the end is where the file ends.
void copy_bytes(const Descriptor& source, const std::string& from, NewFile& copy, const CopyOptions& options) {
    std::vector<char> chunk(chunk_bytes);
    std::int64_t done = 0;
    for (std::size_t got = chunk.size(); got == chunk.size();) {
        if (const int failure = source.read(chunk, done, got)) throw SystemFileError(from, failure);
        copy.write({chunk.data(), got});
        done += static_cast<std::int64_t>(got);
        options.progress(done);
    }
}

}  // namespace

void copy_image(const std::string& from, const std::string& to, const CopyOptions& options) {
    const Descriptor source = Descriptor::opened(system_files(), from, FileSystem::Access::read);
    if (source.failure() != 0) throw SystemFileError(from, source.failure());
    FileSystem::About about;
    if (const int failure = source.about(about)) throw SystemFileError(from, failure);
    std::error_code ignored;
    if (fs::equivalent(from, to, ignored)) throw FileError(to, "that is the image itself");
    if (!options.replace && fs::exists(fs::symlink_status(to, ignored))) throw SystemFileError(to, EEXIST);

    NewFile copy(to);
    if (copy.share_blocks_of(source)) {
        options.progress(about.size);
    } else {
        require_room(to, about.size);
        copy_bytes(source, from, copy, options);
    }
    copy.finish(options.replace ? NewFile::Existing::replace : NewFile::Existing::keep);
}

}  // namespace kalco

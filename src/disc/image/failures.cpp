#include "disc/image/failures.h"

#include <cerrno>

#include "disc/image/file_error.h"
#include "disc/image/storage.h"
#include "disc/runtime_error.h"

namespace kalco {
namespace {

bool means_no_room(int code) {
    return code == ENOSPC || code == EDQUOT || code == EFBIG;
}

}  // namespace

void Failures::system(int code, std::optional<ImagePos> position) const {
    if (kind_ == Kind::file) throw SystemFileError(path_, position, code);
    throw RuntimeError(means_no_room(code) ? error::disk_full : error::device_io);
}

void Failures::other(int number, const std::string& reason) const {
    if (kind_ == Kind::file) throw FileError(path_, reason);
    throw RuntimeError(number);
}

void Failures::other(int number, std::errc code) const {
    if (kind_ == Kind::file) throw SystemFileError(path_, static_cast<int>(code));
    throw RuntimeError(number);
}

void Failures::another_image() const {
    if (kind_ == Kind::file) {
        throw FileError(path_, "this is the journal of another image's save; nothing was touched");
    }
    throw JournalOfAnotherImage();
}

}  // namespace kalco

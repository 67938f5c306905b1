#include "ctl/script/script_source.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

#include "disc/image/file_error.h"

namespace kalco::script {
namespace {

bool is_standard_input(const std::string& file) {
    return file.empty() || file == "-";
}

int opened(const std::string& file) {
    if (is_standard_input(file)) return STDIN_FILENO;
    for (;;) {
        const int fd = ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
        if (fd >= 0) return fd;
        if (errno != EINTR) {
            throw FileError(file, "the script can't be read: " + std::system_category().message(errno));
        }
    }
}

}  // namespace

DescriptorBuffer::int_type DescriptorBuffer::underflow() {
    for (;;) {
        const ssize_t got = ::read(fd_, bytes_.data(), bytes_.size());
        if (got < 0 && errno == EINTR) continue;
        if (got < 0) throw std::system_error(errno, std::system_category());
        setg(bytes_.data(), bytes_.data(), bytes_.data() + got);
        return got == 0 ? traits_type::eof() : traits_type::to_int_type(bytes_[0]);
    }
}

ScriptSource::ScriptSource(const std::string& file)
    : name_(is_standard_input(file) ? "standard input" : file),
      fd_(opened(file)),
      buffer_(fd_),
      stream_(&buffer_) {}

ScriptSource::~ScriptSource() {
    if (fd_ != STDIN_FILENO) ::close(fd_);
}

}  // namespace kalco::script

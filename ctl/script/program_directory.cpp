#include "ctl/script/program_directory.h"

#include <fcntl.h>
#include <pwd.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "disc/image/file_error.h"
#include "editor/window/system_directories.h"

namespace kalco::script {
namespace {

bool writable(const std::string& directory) {
    return ::faccessat(AT_FDCWD, directory.c_str(), W_OK | X_OK, AT_EACCESS) == 0;
}

std::filesystem::path home_directory() {
    if (const char* const home = std::getenv("HOME"); home != nullptr && *home == '/') return home;
    const passwd* const user = ::getpwuid(::geteuid());
    return user != nullptr && user->pw_dir != nullptr ? user->pw_dir : "/";
}

std::filesystem::path user_data_directory() {
    // A relative path is to be ignored.
    const char* const data = std::getenv("XDG_DATA_HOME");
    const bool given = data != nullptr && *data == '/';
    return (given ? std::filesystem::path(data) : home_directory() / ".local/share") / "kalco";
}

}  // namespace

std::string program_directory() {
    std::error_code failure;
    std::string own = std::filesystem::read_symlink("/proc/self/exe", failure).parent_path().string();
    if (!failure && !is_system_program_directory(own) && writable(own)) return own;
    const auto data = user_data_directory();
    std::filesystem::create_directories(data, failure);
    return data.string();
}

void require_writable_directory(const std::string& path) {
    std::error_code failure;
    if (!std::filesystem::is_directory(path, failure)) throw FileError(path, "no directory for side files");
    if (!writable(path)) {
        throw FileError(path, "side files can't be written there: " + std::system_category().message(errno));
    }
}

}  // namespace kalco::script

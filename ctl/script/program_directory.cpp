#include "ctl/script/program_directory.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>

namespace kalco::script {
namespace {

std::filesystem::path user_data_directory() {
    if (const char* data = std::getenv("XDG_DATA_HOME"); data != nullptr && *data != '\0') {
        return std::filesystem::path(data) / "kalco";
    }
    const char* home = std::getenv("HOME");
    return std::filesystem::path(home != nullptr ? home : ".") / ".local/share/kalco";
}

}  // namespace

std::string program_directory() {
    std::error_code failure;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", failure);
    if (!failure && ::access(program.parent_path().c_str(), W_OK) == 0) return program.parent_path().string();
    const auto data = user_data_directory();
    std::filesystem::create_directories(data, failure);
    return data.string();
}

}  // namespace kalco::script

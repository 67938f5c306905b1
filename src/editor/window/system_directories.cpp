#include "editor/window/system_directories.h"

#include <algorithm>
#include <array>

namespace kalco {

bool is_system_program_directory(std::string_view directory) {
    static constexpr std::array<std::string_view, 9> all{"/bin",           "/sbin",           "/usr/bin",
                                                         "/usr/sbin",      "/usr/games",      "/app/bin",
                                                         "/usr/local/bin", "/usr/local/sbin", "/usr/local/games"};
    while (directory.size() > 1 && directory.ends_with('/')) directory.remove_suffix(1);
    return std::find(all.begin(), all.end(), directory) != all.end();
}

}  // namespace kalco

#pragma once

#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

namespace kalco::test {

/// A directory of its own for a test, in place of the program's; it goes with the object.
class TemporaryHome {
public:
    TemporaryHome() {
        std::string name = (std::filesystem::temp_directory_path() / "kalco-XXXXXX").string();
        if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary directory");
        path_ = name;
    }
    ~TemporaryHome() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryHome(const TemporaryHome&) = delete;
    TemporaryHome& operator=(const TemporaryHome&) = delete;

    std::string path(const std::string& below = {}) const { return below.empty() ? path_ : path_ + '/' + below; }

    std::string write(const std::string& below, const std::string& bytes) const {
        std::ofstream(path(below), std::ios::binary) << bytes;
        return path(below);
    }
    std::string read(const std::string& below) const {
        std::ifstream file(path(below), std::ios::binary);
        if (!file) throw std::runtime_error("no such file: " + below);
        std::string bytes;
        // Of a device or a pipe the size is not known before.
        std::array<char, std::size_t{1} << 16> part{};
        while (file.read(part.data(), part.size()) || file.gcount() > 0) {
            bytes.append(part.data(), static_cast<std::size_t>(file.gcount()));
        }
        return bytes;
    }
    bool has(const std::string& below) const { return std::filesystem::exists(path(below)); }

private:
    std::string path_;
};

}  // namespace kalco::test

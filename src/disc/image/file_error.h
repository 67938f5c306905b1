#pragma once

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <system_error>

namespace kalco {

/// A failure at a file, for commands: what() is a sentence with the path, the position where there is one, and the
/// system's reason.
class FileError : public std::runtime_error {
public:
    FileError(const std::string& path, const std::string& reason) : FileError(path, std::nullopt, reason) {}
    /// `position` is 1-based, that of the first byte that was to be read or written.
    FileError(const std::string& path, std::optional<std::int64_t> position, const std::string& reason)
        : std::runtime_error(path + ": " + (position ? "position " + std::to_string(*position) + ": " : "") + reason),
          path_(path),
          position_(position),
          reason_(reason) {}

    const std::string& path() const { return path_; }
    std::optional<std::int64_t> position() const { return position_; }
    const std::string& reason() const { return reason_; }

private:
    std::string path_;
    std::optional<std::int64_t> position_;
    std::string reason_;
};

/// The same for a failure that the system has a number for, an errno.
class SystemFileError : public FileError {
public:
    SystemFileError(const std::string& path, int code) : SystemFileError(path, std::nullopt, code) {}
    SystemFileError(const std::string& path, std::optional<std::int64_t> position, int code)
        : FileError(path, position, std::system_category().message(code)),
          code_(code) {}

    int code() const { return code_; }

private:
    int code_;
};

}  // namespace kalco

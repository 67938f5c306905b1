#pragma once

#include <optional>
#include <string>
#include <system_error>
#include <utility>

#include "disc/image/position.h"

namespace kalco {

/// How the failures of a file are told: the editor's handlers know RuntimeError, commands FileError.
class Failures {
public:
    enum class Kind { run_time, file };

    Failures(Kind kind, std::string path) : kind_(kind), path_(std::move(path)) {}

    /// A system call's errno: error 61 when there is no room, else 57; or the reason in words, with the position.
    [[noreturn]] void system(int code, std::optional<ImagePos> position = {}) const;
    /// A run-time error of this number, or the reason.
    [[noreturn]] void other(int number, const std::string& reason) const;
    [[noreturn]] void other(int number, std::errc code) const;
    /// The journal is that of another image.
    [[noreturn]] void another_image() const;

    /// The same for another path.
    Failures at(std::string path) const { return {kind_, std::move(path)}; }

private:
    Kind kind_;
    std::string path_;
};

}  // namespace kalco

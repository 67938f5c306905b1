#pragma once

#include <exception>
#include <string_view>

namespace kalco {

/// Numbers of the run-time errors that the editor's operations raise. They are part of its behaviour: a few handlers
/// test them, and the script runner prints the number of one that nothing caught.
namespace error {
inline constexpr int invalid_call = 5;
inline constexpr int overflow = 6;
inline constexpr int out_of_memory = 7;
inline constexpr int type_mismatch = 13;
inline constexpr int bad_file_name = 52;
inline constexpr int file_not_found = 53;
inline constexpr int device_io = 57;
inline constexpr int disk_full = 61;
inline constexpr int past_end_of_file = 62;
inline constexpr int permission_denied = 70;
inline constexpr int path_access = 75;
inline constexpr int resource_not_found = 326;
inline constexpr int no_such_element = 340;
inline constexpr int invalid_property = 380;
}  // namespace error

/// The Italian text of an error number (Latin-1), empty for a number that the editor never raises.
std::string_view run_time_error_text(int number);

/// A failure that a handler with an error route tests by its number; any other ends the program.
class RuntimeError : public std::exception {
public:
    explicit RuntimeError(int number) : number_(number) {}

    int number() const { return number_; }
    std::string_view text() const { return run_time_error_text(number_); }
    const char* what() const noexcept override;

private:
    int number_;
};

/// The number that any failure ends the program with: its own, 7 for memory that there is not, 5 for all others.
int error_number(const std::exception& failure);

}  // namespace kalco

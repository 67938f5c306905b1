#include "ctl/command.h"

#include <unistd.h>

#include <cstdio>
#include <iostream>
#include <string>

namespace kalco::ctl {
namespace {

/// Control characters as escapes: a complaint stays on its line and gives no orders to a terminal.
std::string printable(std::string_view text) {
    static constexpr std::string_view digits = "0123456789abcdef";
    std::string result;
    for (const char character : text) {
        const auto byte = static_cast<unsigned char>(character);
        if (byte >= 0x20 && byte != 0x7F) {
            result += character;
        } else {
            result.append("\\x") += digits[byte >> 4];
            result += digits[byte & 0xF];
        }
    }
    return result;
}

}  // namespace

void complain(std::string_view command, std::string_view what) {
    std::cerr << "kalcoctl " << command << ": " << printable(what) << '\n';
}

bool output_arrived() {
    const bool flushed = std::cout.flush().good() && std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
    // Some file systems tell only at the closing that there was no room.
    const int copy = ::dup(STDOUT_FILENO);
    const bool closed = copy < 0 || ::close(copy) == 0;
    return flushed && closed;
}

}  // namespace kalco::ctl

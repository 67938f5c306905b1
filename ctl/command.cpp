#include "ctl/command.h"

#include <unistd.h>

#include <cstdio>
#include <iostream>

#include "ctl/printable.h"

namespace kalco::ctl {
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

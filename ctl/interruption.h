#pragma once

#include <array>
#include <csignal>

namespace kalco::ctl {

/// Thrown to give up work that a signal breaks off; main() ends the program by that signal. No std::exception, so that
/// nothing takes it for a failure.
struct Interrupted {
    int signal;
};

/// While one lives, Ctrl-C and its like are noted instead of ending the program on the spot: the work looks at check()
/// now and then, and what it has begun is cleared away as after any other exception.
class Interruption {
public:
    Interruption();
    ~Interruption();
    Interruption(const Interruption&) = delete;
    Interruption& operator=(const Interruption&) = delete;

    /// Throws Interrupted when a signal has come.
    void check() const;

    static constexpr std::array<int, 3> signals{SIGINT, SIGTERM, SIGHUP};

private:
    std::array<struct sigaction, signals.size()> before_{};
};

}  // namespace kalco::ctl

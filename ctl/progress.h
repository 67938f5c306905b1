#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>

namespace kalco::ctl {

/// Tells on a terminal how far a command is, from the first second on, in a line that it writes over again and that
/// goes with the object. Says nothing when standard error is no terminal.
class Progress {
public:
    using Clock = std::chrono::steady_clock;
    using Now = std::function<Clock::time_point()>;

    /// `total` is the number of steps, of any size.
    Progress(std::string_view command, std::int64_t total);
    /// A terminal and a clock of the caller's; none: it says nothing.
    Progress(std::string_view command, std::int64_t total, std::ostream* terminal, Now now = Clock::now);
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    ~Progress() { hide(); }

    void operator()(std::int64_t done);
    /// Takes the line away, before something else is written to the terminal.
    void hide();

private:
    std::string command_;
    std::int64_t total_;
    std::ostream* terminal_;
    Now now_;
    Clock::time_point next_;
    bool shown_ = false;
};

}  // namespace kalco::ctl

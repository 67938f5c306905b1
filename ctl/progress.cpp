#include "ctl/progress.h"

#include <unistd.h>

#include <algorithm>
#include <iostream>
#include <utility>

namespace kalco::ctl {
namespace {

constexpr std::chrono::milliseconds first_time{1000};
constexpr std::chrono::milliseconds every_time{200};

}  // namespace

Progress::Progress(std::string_view command, std::int64_t total)
    : Progress(command, total, ::isatty(STDERR_FILENO) == 1 ? &std::cerr : nullptr) {}

Progress::Progress(std::string_view command, std::int64_t total, std::ostream* terminal, Now now)
    : command_(command),
      total_(std::max<std::int64_t>(total, 1)),
      terminal_(terminal),
      now_(std::move(now)),
      next_(now_() + first_time) {}

void Progress::operator()(std::int64_t done) {
    if (terminal_ == nullptr) return;
    const Clock::time_point now = now_();
    if (now < next_) return;
    next_ = now + every_time;
    *terminal_ << "\rkalcoctl " << command_ << ": " << done * 100 / total_ << " %" << std::flush;
    shown_ = true;
}

void Progress::hide() {
    if (std::exchange(shown_, false)) *terminal_ << "\r\x1b[K" << std::flush;
}

}  // namespace kalco::ctl

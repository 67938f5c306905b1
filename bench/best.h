#pragma once

#include <algorithm>
#include <chrono>
#include <ctime>

namespace kalco::bench {

/// The shortest time of some runs.
class Best {
public:
    template <typename Run>
    double measure(Run run) {
        const auto start = std::chrono::steady_clock::now();
        const std::clock_t work = std::clock();
        run();
        work_ = std::min(work_, static_cast<double>(std::clock() - work));
        const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
        seconds_ = std::min(seconds_, seconds);
        return seconds;
    }
    double seconds() const { return seconds_; }
    /// The processor's time, of all threads.
    double work() const { return work_; }

private:
    double seconds_ = 1e9;
    double work_ = 1e18;
};

}  // namespace kalco::bench

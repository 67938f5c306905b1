#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace kalco::demo {

/// A stream of numbers that is the same on every machine. Each table draws from a stream of its own, so that a change
/// in one of them leaves the others as they were.
class Random {
public:
    Random(std::uint64_t seed, std::string_view stream);

    std::uint64_t next();
    /// 0 to count - 1.
    int below(int count);
    /// Both ends included.
    int between(int lowest, int highest) { return lowest + below(highest - lowest + 1); }
    bool chance(int percent) { return below(100) < percent; }

    template <class List>
    const auto& one_of(const List& list) {
        return list[static_cast<std::size_t>(below(static_cast<int>(list.size())))];
    }

    template <class List>
    void shuffle(List& list) {
        for (std::size_t left = list.size(); left > 1; --left) {
            const auto other = static_cast<std::size_t>(below(static_cast<int>(left)));
            const auto kept = list[left - 1];
            list[left - 1] = list[other];
            list[other] = kept;
        }
    }

private:
    std::uint64_t state_;
};

}  // namespace kalco::demo

#pragma once

#include <cstddef>
#include <deque>

namespace kalco::test {

enum class SystemCall { open, read, write, sync, rename };

/// How a call ends: with an error number, or having done at most so many bytes (which may be none).
struct Fault {
    int error = 0;
    std::size_t at_most = 0;
    bool passes = false;  ///< It works; the fault after it is for the next call.
    bool kills = false;   ///< The process is killed in front of it.
};

/// While one lives, the next calls of a kind by this process end so, one fault a call; later ones work as ever.
/// Reads and writes are those at an offset. One kind of call at a time.
class SystemFaults {
public:
    SystemFaults(SystemCall call, std::deque<Fault> faults);
    ~SystemFaults();
    SystemFaults(const SystemFaults&) = delete;
    SystemFaults& operator=(const SystemFaults&) = delete;

    /// How many faults no call has met yet.
    std::size_t left() const;
};

}  // namespace kalco::test

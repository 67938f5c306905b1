#include "work/check/image_check.h"

#include <algorithm>
#include <condition_variable>
#include <exception>
#include <map>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace kalco::check {
namespace {

/// What is read at once: enough to make a call of the system cheap, and little enough to stay in a core's cache.
constexpr std::int64_t block_sectors = 64;
/// How many blocks the fastest thread may be ahead of what has been told.
constexpr std::int64_t most_ahead = 256;

/// What was found in a block.
struct Found {
    Summary summary;
    std::vector<BadSector> bad;
    std::exception_ptr failure;
};

/// Hands out blocks, and tells what was found in them in their order.
class Blocks {
public:
    Blocks(std::int64_t sectors, const Listener& listener) : sectors_(sectors), listener_(listener) {}

    std::int64_t count() const { return (sectors_ + block_sectors - 1) / block_sectors; }
    std::int64_t sectors_in(std::int64_t block) const {
        return std::min(block_sectors, sectors_ - block * block_sectors);
    }

    /// The next block; none when all are handed out or something failed.
    std::optional<std::int64_t> take() {
        std::unique_lock lock(mutex_);
        room_.wait(lock, [this] { return failure_ || next_ < told_ + most_ahead; });
        if (failure_ || next_ == count()) return std::nullopt;
        return next_++;
    }

    void give(std::int64_t block, Found found) {
        const std::scoped_lock lock(mutex_);
        waiting_.emplace(block, std::move(found));
        while (!failure_ && !waiting_.empty() && waiting_.begin()->first == told_) {
            try {
                tell(waiting_.begin()->second);
            } catch (...) {
                failure_ = std::current_exception();
            }
            waiting_.erase(waiting_.begin());
            ++told_;
        }
        room_.notify_all();
    }

    /// Ends it all.
    void fail(std::exception_ptr failure) {
        const std::scoped_lock lock(mutex_);
        if (!failure_) failure_ = std::move(failure);
        room_.notify_all();
    }

    /// Only when no thread is at work any more.
    Summary summary() const {
        if (failure_) std::rethrow_exception(failure_);
        return summary_;
    }

private:
    void tell(const Found& found) {
        for (const BadSector& bad : found.bad) listener_.bad(bad);
        summary_ += found.summary;
        if (found.failure) std::rethrow_exception(found.failure);
        listener_.progress(summary_.sectors);
    }

    const std::int64_t sectors_;
    const Listener& listener_;
    std::mutex mutex_;
    std::condition_variable room_;
    std::int64_t next_ = 0;
    std::int64_t told_ = 0;
    std::map<std::int64_t, Found> waiting_;
    Summary summary_;
    std::exception_ptr failure_;
};

/// Checks the sectors that lie one behind the other in `bytes`.
void look_at(std::int64_t first, std::span<const std::uint8_t> bytes, SectorCheck& check, Found& found) {
    for (std::int64_t number = first; !bytes.empty(); ++number, bytes = bytes.subspan(sector_bytes)) {
        const SectorView sector = bytes.first<sector_bytes>();
        const SectorKind kind = kind_of(sector);
        const CheckFields bad = check(number, kind, sector);
        found.summary.count(kind, bad.any());
        if (bad.any()) found.bad.push_back({number, bad});
    }
}

/// One thread's part. A failure to read is told in its turn.
void work(Blocks& blocks, const ReadSectors& read, SectorCheck check) try {
    std::vector<std::uint8_t> buffer(static_cast<std::size_t>(block_sectors * sector_bytes));
    while (const auto block = blocks.take()) {
        const std::int64_t first = *block * block_sectors;
        const std::span bytes(buffer.data(), static_cast<std::size_t>(blocks.sectors_in(*block) * sector_bytes));
        Found found;
        try {
            read(first, bytes);
        } catch (...) {
            found.failure = std::current_exception();
        }
        if (!found.failure) look_at(first, bytes, check, found);
        blocks.give(*block, std::move(found));
    }
} catch (...) {
    blocks.fail(std::current_exception());
}

}  // namespace

void Summary::count(SectorKind kind, bool is_bad) {
    ++sectors;
    bad += is_bad ? 1 : 0;
    ++of_kind[static_cast<std::size_t>(kind)];
}

Summary& Summary::operator+=(const Summary& other) {
    sectors += other.sectors;
    bad += other.bad;
    for (std::size_t k = 0; k < of_kind.size(); ++k) of_kind[k] += other.of_kind[k];
    return *this;
}

Summary check_these(std::span<const int> sectors, const ReadSectors& read, const Listener& listener) {
    SectorCheck check;
    RawSector bytes{};
    Summary summary;
    for (const int number : sectors) {
        read(number, bytes);
        Found found;
        look_at(number, bytes, check, found);
        for (const BadSector& bad : found.bad) listener.bad(bad);
        summary += found.summary;
        listener.progress(summary.sectors);
    }
    return summary;
}

Summary check_all(std::int64_t sectors, const ReadSectors& read, const Listener& listener, unsigned threads,
                  const SectorCheck& check) {
    Blocks blocks(sectors, listener);
    if (threads == 0) threads = std::max(1U, std::thread::hardware_concurrency());
    const std::int64_t helpers = std::min<std::int64_t>(threads, blocks.count()) - 1;
    {
        std::vector<std::jthread> at_work;
        try {
            for (std::int64_t k = 0; k < helpers; ++k) at_work.emplace_back([&] { work(blocks, read, check); });
        } catch (const std::system_error&) {
            // No more threads are to be had: those that there are do it all.
        }
        work(blocks, read, check);
    }
    return blocks.summary();
}

}  // namespace kalco::check

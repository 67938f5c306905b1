// The check of an image beside a bare reading of the same bytes that only xors them. Both are measured in turn, and the
// best of each is compared, so that other work on the machine disturbs little:
//   of_bare       the speed of the check as a part of that of the bare reading, on one thread
//   of_one_thread the speed of the check on two threads as a multiple of that on one
//   work_of_one   the processor's time for the former as a multiple of that for the latter; beside other work on the
//                 machine this tells more

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/best.h"
#include "support/sectors.h"
#include "support/temporary_home.h"
#include "work/check/image_check.h"

namespace {

using namespace kalco;
using bench::Best;

constexpr std::int64_t sectors = 140000;  // 329 MB

/// An image of valid sectors in the page cache.
class CachedImage {
public:
    CachedImage() : path_(home_.path("disc.bin")) {
        constexpr std::int64_t at_once = 1000;
        std::mt19937 random(1);
        std::string bytes;
        for (std::int64_t k = 0; k < at_once; ++k) {
            bytes += test::as_text(test::random_sector(SectorKind::form1, random));
        }
        fd_ = ::open(path_.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
        for (std::int64_t k = 0; k < sectors; k += at_once) {
            if (::write(fd_, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size()))
                throw std::runtime_error("no room for the image");
        }
        xor_all();
    }
    CachedImage(const CachedImage&) = delete;
    CachedImage& operator=(const CachedImage&) = delete;
    ~CachedImage() { ::close(fd_); }

    void read(std::int64_t first, std::span<std::uint8_t> bytes) const {
        const auto got = ::pread(fd_, bytes.data(), bytes.size(), first * sector_bytes);
        if (got != static_cast<ssize_t>(bytes.size())) throw std::runtime_error("the image is too short");
    }

    void xor_all() const {
        constexpr std::int64_t at_once = 64;
        std::vector<std::uint8_t> bytes(static_cast<std::size_t>(at_once * sector_bytes));
        std::uint64_t sum = 0;
        for (std::int64_t first = 0; first < sectors; first += at_once) {
            const std::span part(bytes.data(),
                                 static_cast<std::size_t>(std::min(at_once, sectors - first) * sector_bytes));
            read(first, part);
            for (std::size_t k = 0; k < part.size(); k += sizeof sum) {
                std::uint64_t word = 0;
                std::memcpy(&word, part.data() + k, sizeof word);
                sum ^= word;
            }
        }
        benchmark::DoNotOptimize(sum);
    }

    void check(unsigned threads, const check::SectorCheck& how) const {
        const auto summary = check::check_all(
            sectors, [this](std::int64_t first, std::span<std::uint8_t> bytes) { read(first, bytes); }, {}, threads,
            how);
        if (summary.bad != 0) throw std::runtime_error("the check is wrong");
    }

private:
    test::TemporaryHome home_;
    std::string path_;
    int fd_ = -1;
};

const CachedImage& image() {
    static const CachedImage cached;
    return cached;
}

void compare_with_bare_reading(benchmark::State& state, const check::SectorCheck& how) {
    Best bare;
    Best checked;
    for (auto _ : state) {
        bare.measure([] { image().xor_all(); });
        state.SetIterationTime(checked.measure([&] { image().check(1, how); }));
    }
    state.SetBytesProcessed(state.iterations() * sectors * sector_bytes);
    state.counters["of_bare"] = bare.seconds() / checked.seconds();
}

void check_with_portable_code(benchmark::State& state) {
    compare_with_bare_reading(state, {check::edc_methods().front().fits, check::parity_methods().front().fit});
}

void check_with_this_processor(benchmark::State& state) {
    compare_with_bare_reading(state, {});
}

void check_with_two_threads(benchmark::State& state) {
    Best one;
    Best two;
    for (auto _ : state) {
        one.measure([] { image().check(1, {}); });
        state.SetIterationTime(two.measure([] { image().check(2, {}); }));
    }
    state.SetBytesProcessed(state.iterations() * sectors * sector_bytes);
    state.counters["of_one_thread"] = one.seconds() / two.seconds();
    state.counters["work_of_one"] = two.work() / one.work();
}

BENCHMARK(check_with_portable_code)->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond);
BENCHMARK(check_with_this_processor)->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond);
BENCHMARK(check_with_two_threads)->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond);

}  // namespace

// Making a patch of two images in the page cache, beside a bare reading and comparing of both. They are measured in
// turn and the best of each is compared:
//   of_bare  the speed of the patch as a part of that of the bare comparison

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cstring>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/best.h"
#include "disc/image/image.h"
#include "support/temporary_home.h"
#include "work/patch_make.h"

namespace {

using namespace kalco;

constexpr std::int64_t image_bytes = 140000 * std::int64_t{sector_bytes};  // 329 MB
constexpr std::size_t at_once = std::size_t{1} << 18;

/// Two images of one length that differ in 200 places of up to 30 bytes, as after an evening's edits.
class TwoImages {
public:
    TwoImages() : paths_{home_.path("a.bin"), home_.path("b.bin")} {
        for (std::size_t image = 0; image < paths_.size(); ++image) {
            fds_[image] = ::open(paths_[image].c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
            std::mt19937 random(1);
            std::vector<std::uint32_t> words(std::size_t{sector_bytes} * 250);
            for (std::uint32_t& word : words) word = static_cast<std::uint32_t>(random());
            const auto size = words.size() * sizeof words.front();
            for (std::int64_t offset = 0; offset < image_bytes; offset += static_cast<std::int64_t>(size)) {
                write(fds_[image], words.data(), size, offset);
            }
        }
        std::mt19937 random(2);
        for (int place = 0; place < 200; ++place) {
            const std::string bytes(1 + random() % 30, 'x');
            write(fds_[1], bytes.data(), bytes.size(), static_cast<std::int64_t>(random() % (image_bytes - 100)));
        }
    }
    TwoImages(const TwoImages&) = delete;
    TwoImages& operator=(const TwoImages&) = delete;
    ~TwoImages() {
        for (const int fd : fds_) ::close(fd);
    }

    /// The number of blocks that are not the same.
    int compare() const {
        std::array<std::vector<char>, 2> blocks{std::vector<char>(at_once), std::vector<char>(at_once)};
        int different = 0;
        for (std::int64_t offset = 0; offset < image_bytes; offset += static_cast<std::int64_t>(at_once)) {
            for (std::size_t image = 0; image < blocks.size(); ++image) {
                if (::pread(fds_[image], blocks[image].data(), at_once, offset) <= 0) {
                    throw std::runtime_error("the image is too short");
                }
            }
            if (std::memcmp(blocks[0].data(), blocks[1].data(), at_once) != 0) ++different;
        }
        return different;
    }

    PatchSize make() const {
        Image before(open_to_read);
        Image after(open_to_read);
        before.open(paths_[0]);
        after.open(paths_[1]);
        std::size_t bytes = 0;
        return make_patch(before, after, "test", [&bytes](std::string_view part) { bytes += part.size(); });
    }

private:
    static void write(int fd, const void* bytes, std::size_t size, std::int64_t offset) {
        if (::pwrite(fd, bytes, size, offset) != static_cast<ssize_t>(size)) {
            throw std::runtime_error("no room for the image");
        }
    }

    test::TemporaryHome home_;
    std::array<std::string, 2> paths_;
    std::array<int, 2> fds_{};
};

void make_a_patch(benchmark::State& state) {
    const TwoImages images;
    bench::Best bare;
    bench::Best made;
    for (auto _ : state) {
        bare.measure([&] { benchmark::DoNotOptimize(images.compare()); });
        state.SetIterationTime(made.measure([&] {
            if (images.make().records < 200) throw std::runtime_error("the patch is too small");
        }));
    }
    state.SetBytesProcessed(state.iterations() * 2 * image_bytes);
    state.counters["of_bare"] = bare.seconds() / made.seconds();
    state.counters["work_of_bare"] = bare.work() / made.work();
}

BENCHMARK(make_a_patch)->UseManualTime()->Iterations(10)->Unit(benchmark::kMillisecond);

}  // namespace

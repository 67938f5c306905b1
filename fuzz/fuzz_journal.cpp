// Any bytes as the file beside an image: it is left alone, or removed, or a journal whose save is taken back.

#include <algorithm>

#include "disc/image/crc32.h"
#include "disc/image/image.h"
#include "disc/image/journal_format.h"
#include "disc/image/opening.h"
#include "fuzz/input.h"
#include "support/fake_files.h"

using namespace kalco;

namespace {

constexpr auto image_name = "disc.bin";
constexpr auto journal_name = "disc.bin.kalco-journal";
constexpr std::int64_t most_bytes = 1 << 20;

/// The contents as whole blocks, so that most inputs get behind the checksums.
std::string blocks_of(const std::string& contents) {
    constexpr std::size_t contents_bytes = 492;
    std::string blocks;
    for (std::size_t place = 0, number = 0; place < contents.size() || number == 0; place += contents_bytes, ++number) {
        std::string block = "KLJ1";
        for (int k = 0; k < 4; ++k) block += static_cast<char>(number >> (8 * k));
        block += "random!!" + contents.substr(place, contents_bytes);
        block.resize(508, '\0');
        const std::uint32_t sum = crc32(block);
        for (int k = 0; k < 4; ++k) block += static_cast<char>(sum >> (8 * k));
        blocks += block;
    }
    return blocks;
}

journal::Reader reader_of(const std::string& bytes) {
    return journal::Reader([&bytes](std::int64_t offset, std::size_t count) {
        const auto start = std::min(bytes.size(), static_cast<std::size_t>(offset));
        return bytes.substr(start, count);
    });
}

/// The image on one side of the journal's save; empty when it would be too large.
std::string image_of(const journal::Reader& journal, bool before) {
    const auto [length, other] = std::pair(journal.lengths().before, journal.lengths().after);
    if (std::max(length, other) > most_bytes) return {};
    std::string image(static_cast<std::size_t>(before ? length : other), '\0');
    journal.each([&image, before](const SectorChange& change) {
        const std::string& bytes = before ? change.before : change.after;
        if (!bytes.empty()) image.replace(static_cast<std::size_t>(change.offset()), bytes.size(), bytes);
    });
    return image;
}

std::string read_all(const StorageOpener& opener) {
    Image image(opener);
    image.open(image_name);
    return image.read(1, static_cast<int>(image.length()));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Bytes bytes(data, size);
    const bool as_contents = bytes.next() % 2 != 0;
    const std::string journal_bytes = as_contents ? blocks_of(bytes.rest()) : bytes.rest();
    const journal::Reader journal = reader_of(journal_bytes);
    const bool complete = journal.state() == journal::State::complete;
    const std::string before = complete ? image_of(journal, true) : "an image";
    const std::string left = complete ? image_of(journal, false) : before;

    test::FakeFiles files;
    files.put(image_name, left);
    files.put(journal_name, journal_bytes);
    const auto for_saves = [&files](const std::string& path) {
        return open_for_saves(files, path, Failures::Kind::run_time);
    };
    const auto for_reading = [&files](const std::string& path) { return open_for_reading(files, path); };
    if (complete && std::max(journal.lengths().before, journal.lengths().after) > most_bytes) {
        // The image is empty, which an interrupted save leaves only if it was so on one side.
        if (std::min(journal.lengths().before, journal.lengths().after) == 0) return 0;
        fuzz::require(fuzz::attempt([&] { read_all(for_saves); }) == error::path_access,
                      "the image is of neither side");
        fuzz::require(files.bytes(image_name).empty(), "it is left alone");
        return 0;
    }
    fuzz::require(read_all(for_reading) == before);
    fuzz::require(files.bytes(journal_name) == journal_bytes);
    fuzz::require(read_all(for_saves) == before);
    fuzz::require(files.has(journal_name) == (journal.state() == journal::State::foreign));
    fuzz::require(files.bytes(image_name) == before);
    return 0;
}

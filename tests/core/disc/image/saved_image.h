#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "disc/image/image.h"
#include "disc/image/opening.h"
#include "disc/runtime_error.h"
#include "support/fake_files.h"
#include "support/image_names.h"

namespace kalco::test {

/// A small image on the fake file system, and a few kinds of saves of it.
struct SaveCase {
    std::string name;
    std::string before;
    std::function<void(Image&)> write;
    std::string after;
};

inline std::string pattern(std::size_t bytes) {
    std::string text(bytes, '\0');
    for (std::size_t k = 0; k < bytes; ++k) text[k] = static_cast<char>('a' + k / 7 % 26);
    return text;
}

inline std::string with(std::string image, std::size_t position, const std::string& bytes) {
    if (image.size() < position - 1 + bytes.size()) image.resize(position - 1 + bytes.size(), '\0');
    return image.replace(position - 1, bytes.size(), bytes);
}

/// One sector, several that rise and fall, over the end, far behind the end, and an image of odd length.
inline std::vector<SaveCase> save_cases() {
    const std::string five = pattern(5 * 2352);
    const std::string odd = pattern(3 * 2352 + 700);
    return {
        {"one sector", five, [](Image& image) { image.write(3000, "XYZ"); }, with(five, 3000, "XYZ")},
        {"several sectors", five,
         [](Image& image) {
             image.write(9408, "OVER A SEAM");
             image.write(10, "FIRST");
             image.write(2353, std::string(2352, 'W'));
         },
         with(with(with(five, 9408, "OVER A SEAM"), 10, "FIRST"), 2353, std::string(2352, 'W'))},
        {"the last bytes of an odd image", odd, [](Image& image) { image.write(7750, "END"); }, with(odd, 7750, "END")},
        {"over the end", odd,
         [](Image& image) {
             image.write(1, "BEGIN");
             image.write(7750, std::string(5000, 'G'));
         },
         with(with(odd, 1, "BEGIN"), 7750, std::string(5000, 'G'))},
        {"far behind the end", odd, [](Image& image) { image.write(40000, "FAR"); }, with(odd, 40000, "FAR")},
        {"zeroes behind the end", odd, [](Image& image) { image.write(8000, std::string(3, '\0')); },
         with(odd, 8000, std::string(3, '\0'))},
    };
}

inline StorageOpener opener_on(FakeFiles& files, Failures::Kind errors = Failures::Kind::run_time) {
    return [&files, errors](const std::string& path) { return open_for_saves(files, path, errors); };
}

/// What the image holds for whoever opens it next, after the journal was dealt with.
inline std::string after_next_opening(FakeFiles& files) {
    files.end_process();
    Image image(opener_on(files));
    image.open(image_name);
    EXPECT_FALSE(files.has(journal_name));
    EXPECT_EQ(image.length(), static_cast<std::int64_t>(files.bytes(image_name).size()));
    return files.bytes(image_name);
}

}  // namespace kalco::test

#pragma once

#include <cstddef>
#include <random>
#include <string>

/// Bytes without any rule, the same for a seed.
namespace kalco::test {

inline std::string random_bytes(std::mt19937& random, std::size_t count) {
    std::string bytes(count, '\0');
    for (char& byte : bytes) byte = static_cast<char>(random() & 0xFF);
    return bytes;
}

/// An image that reaches beyond the last table of the disc.
inline std::string random_image(std::mt19937::result_type seed) {
    constexpr std::size_t image_bytes = 5'700'000;
    std::mt19937 random(seed);
    std::string image(image_bytes, '\0');
    for (std::size_t i = 0; i + 4 <= image_bytes; i += 4) {
        const auto word = static_cast<std::uint32_t>(random());
        for (std::size_t byte = 0; byte < 4; ++byte) image[i + byte] = static_cast<char>(word >> 8 * byte & 0xFF);
    }
    return image;
}

}  // namespace kalco::test

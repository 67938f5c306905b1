#include "disc/image/crc32.h"

#include <array>
#include <cstddef>

namespace kalco {
namespace {

constexpr std::size_t stride = 8;
using ByteTable = std::array<std::uint32_t, 256>;

// Table k tells what a byte does to the rest once k more bytes have followed it, so that eight go at once.
constexpr std::array<ByteTable, stride> make_tables() {
    std::array<ByteTable, stride> tables{};
    for (std::uint32_t value = 0; value < 256; ++value) {
        std::uint32_t rest = value;
        for (int bit = 0; bit < 8; ++bit) rest = (rest >> 1) ^ ((rest & 1U) != 0 ? 0xEDB88320U : 0U);
        tables[0][value] = rest;
    }
    for (std::size_t k = 1; k < stride; ++k) {
        for (std::size_t value = 0; value < 256; ++value) {
            const std::uint32_t before = tables[k - 1][value];
            tables[k][value] = (before >> 8) ^ tables[0][before & 0xFFU];
        }
    }
    return tables;
}

constexpr auto tables = make_tables();

std::uint32_t byte_at(std::string_view bytes, std::size_t place) {
    return static_cast<unsigned char>(bytes[place]);
}

}  // namespace

std::uint32_t crc32(std::string_view bytes) {
    std::uint32_t rest = 0xFFFFFFFFU;
    for (; bytes.size() >= stride; bytes.remove_prefix(stride)) {
        std::uint32_t next = 0;
        for (std::size_t k = 0; k < stride; ++k) {
            const std::uint32_t old = k < 4 ? rest >> (8 * k) : 0U;
            next ^= tables[stride - 1 - k][(old ^ byte_at(bytes, k)) & 0xFFU];
        }
        rest = next;
    }
    for (std::size_t k = 0; k < bytes.size(); ++k) rest = (rest >> 8) ^ tables[0][(rest ^ byte_at(bytes, k)) & 0xFFU];
    return ~rest;
}

}  // namespace kalco

#include "work/check/edc.h"

#ifdef __x86_64__
#include <immintrin.h>

#include <array>
#include <cstddef>
#include <cstring>

// Folding with carry-less multiplication.
//
// A block of 16 bytes with the halves A and B, A in front, stands for A x^64 + B. What it contributes from d bits
// ahead, (A x^64 + B) x^d, has the same rest by P as A (x^(d+64) mod P) + B (x^d mod P): two products of 64 by 32 bits,
// which fit into a block d bits on. So four blocks at a time are carried on over 64 bytes until the message ends, then
// over one another, and tables do the last one.
//
// The low bit comes first here. Then the instruction's product of two 64-bit operands stands for their product times x,
// and a 32-bit constant k shifted by one for k x^31: the constant for a product with x^n is x^(n-32) mod P.
namespace kalco::check {
namespace {

/// x^n mod P, low bit first, shifted by one.
constexpr std::uint64_t power(unsigned n) {
    std::uint64_t rest = 0x80000000U;
    for (; n > 0; --n) rest = (rest >> 1) ^ ((rest & 1U) != 0 ? 0xD8018001U : 0U);
    return rest << 1;
}

constexpr unsigned block_bits = 128;
constexpr std::size_t block_bytes = 16;
constexpr std::size_t lanes = 4;
constexpr std::size_t step_bytes = lanes * block_bytes;

/// The constants that carry a block on over `bits` bits.
template <unsigned bits>
constexpr std::array<std::uint64_t, 2> carry_on{power(bits + 64 - 32), power(bits - 32)};

[[gnu::target("pclmul,sse4.1")]] __m128i load(const void* from) {
    return _mm_loadu_si128(static_cast<const __m128i*>(from));
}

// NOLINTNEXTLINE(bugprone-easily-swappable-parameters): registers have one type
[[gnu::target("pclmul,sse4.1")]] __m128i folded(__m128i block, __m128i constants, __m128i onto) {
    const __m128i front = _mm_clmulepi64_si128(block, constants, 0x00);
    const __m128i back = _mm_clmulepi64_si128(block, constants, 0x11);
    return _mm_xor_si128(_mm_xor_si128(front, back), onto);
}

}  // namespace

[[gnu::target("pclmul,sse4.1")]] bool edc_fits_by_multiplication(std::span<const std::uint8_t> bytes_with_edc) {
    // Zeroes in front change nothing.
    const std::size_t begin = (bytes_with_edc.size() - 1) % step_bytes + 1;
    std::array<std::uint8_t, step_bytes> head{};
    std::memcpy(head.data() + step_bytes - begin, bytes_with_edc.data(), begin);

    __m128i block[lanes];
    for (std::size_t k = 0; k < lanes; ++k) block[k] = load(head.data() + k * block_bytes);
    const __m128i over_all = load(carry_on<lanes * block_bits>.data());
    for (std::size_t at = begin; at < bytes_with_edc.size(); at += step_bytes) {
        const std::uint8_t* const next = bytes_with_edc.data() + at;
        for (std::size_t k = 0; k < lanes; ++k) block[k] = folded(block[k], over_all, load(next + k * block_bytes));
    }
    const __m128i over_one = load(carry_on<block_bits>.data());
    for (std::size_t k = 1; k < lanes; ++k) block[k] = folded(block[k - 1], over_one, block[k]);

    std::array<std::uint8_t, block_bytes> left{};
    std::memcpy(left.data(), &block[lanes - 1], left.size());
    return edc_rest(left) == 0;
}

}  // namespace kalco::check

#endif

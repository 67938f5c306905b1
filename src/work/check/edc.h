#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

/// Whether a stretch of bytes fits the EDC that follows it: ways that are fast, beside the plain one of
/// disc/image/sector.h.
///
/// All of them read the bytes, EDC included, as one long polynomial over the two-element field, the low bit of the
/// first byte in front. It fits when P(x) = x^32 + x^31 + x^16 + x^15 + x^4 + x^3 + x + 1 divides it.
namespace kalco::check {

/// Of at most the bytes of a sector, and not fewer than 2048.
using EdcFits = bool (*)(std::span<const std::uint8_t> bytes_with_edc);

struct EdcMethod {
    std::string_view name;
    EdcFits fits;
};

bool edc_fits_by_division(std::span<const std::uint8_t> bytes_with_edc);
/// Needs a processor with PCLMUL and SSE 4.1.
bool edc_fits_by_multiplication(std::span<const std::uint8_t> bytes_with_edc);

/// Those that this processor runs, the fastest last.
std::vector<EdcMethod> edc_methods();

/// What is left of the bytes after the division by P, with tables; their number is a multiple of 8.
std::uint32_t edc_rest(std::span<const std::uint8_t> bytes);

}  // namespace kalco::check

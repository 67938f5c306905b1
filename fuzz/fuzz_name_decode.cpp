// Any bytes as a field of full-width letters, and as a text to be coded.

#include <algorithm>

#include "disc/codec/latin1.h"
#include "disc/codec/letters.h"
#include "fuzz/input.h"

using namespace kalco;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // No field of the disc has more; each byte is a step of its own.
    const std::string bytes = fuzz::Bytes(data, std::min<std::size_t>(size, 64)).rest();
    std::string letters;
    const int failure = fuzz::attempt([&] { letters = decode_letters(bytes); });
    fuzz::require(failure == (bytes.starts_with(' ') ? error::invalid_call : 0), "only a blank in front fails");
    fuzz::require(letters.size() <= bytes.size() / 2 + 2, "a letter takes two bytes");

    LetterEncoder encoder;
    const std::string coded = encoder.encode(bytes);
    fuzz::require(coded.size() <= 2 * trim(bytes).size(), "a letter gives two bytes at most");
    fuzz::require(coded.empty() || encoder.code().size() == 5 || encoder.code() == "20", "a code is one or two bytes");
    return 0;
}

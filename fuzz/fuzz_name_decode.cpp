// Any bytes as a field of full-width letters, and as a text to be coded.

#include "disc/codec/latin1.h"
#include "disc/codec/letters.h"
#include "fuzz/editor_desk.h"

using namespace kalco;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes = fuzz::Bytes(data, size).rest();
    std::string letters;
    const int failure = fuzz::EditorDesk::attempt([&] { letters = decode_letters(bytes); });
    fuzz::require(failure == (bytes.starts_with(' ') ? error::invalid_call : 0));
    fuzz::require(letters.size() <= bytes.size() / 2 + 2);

    LetterEncoder encoder;
    const std::string coded = encoder.encode(bytes);
    fuzz::require(coded.size() <= 2 * trim(bytes).size());
    fuzz::require(coded.empty() || encoder.code().size() == 5 || encoder.code() == "20");
    return 0;
}

#include "disc/codec/letters.h"

#include <array>

#include "disc/codec/hextext.h"
#include "disc/codec/latin1.h"
#include "disc/runtime_error.h"

namespace kalco {
namespace {

/// A run of codes with the same first byte that stand for characters in step.
struct CodeRun {
    unsigned char lead;
    unsigned char first;
    unsigned char last;
    char character;
};

constexpr std::array<CodeRun, 3> code_runs{{
    {0x82, 0x60, 0x79, 'A'},
    {0x82, 0x81, 0x9A, 'a'},
    {0x81, 0x44, 0x44, '.'},
}};

constexpr std::size_t code_length = 5;
constexpr std::string_view blank_byte = "20";

}  // namespace

char Hex_Let(std::string_view code) {
    if (code.size() != code_length) return ' ';
    const unsigned char lead = hex_pair(code.substr(0, 2));
    const unsigned char trail = hex_pair(code.substr(3, 2));
    for (const CodeRun& run : code_runs) {
        if (lead == run.lead && trail >= run.first && trail <= run.last) {
            return static_cast<char>(run.character + (trail - run.first));
        }
    }
    return ' ';
}

void LetterEncoder::Let_HX(char character) {
    if (character == ' ') {
        code_ = blank_byte;
        return;
    }
    for (const CodeRun& run : code_runs) {
        const char last = static_cast<char>(run.character + (run.last - run.first));
        if (character < run.character || character > last) continue;
        const std::array<char, 2> bytes{static_cast<char>(run.lead),
                                        static_cast<char>(run.first + (character - run.character))};
        code_ = hex_line({bytes.data(), bytes.size()});
        return;
    }
}

std::string LetterEncoder::encode(std::string_view text) {
    std::string digits;
    for (const char character : trim(text)) {
        Let_HX(character);
        digits += without_blanks(code_);
    }
    return bytes_of_digits(digits);
}

std::string decode_letters(std::string_view bytes) {
    std::string text = hex_line(bytes) + ' ';
    if (const auto place = text.find(blank_byte); place != std::string::npos) {
        if (place == 0) throw RuntimeError(error::invalid_call);
        text = text.substr(0, place - 1) + " 20 20 " + text.substr(place + 3);
    }
    const std::string_view walked = trim(text);
    std::string letters;
    for (std::size_t place = 0; place < walked.size(); place += code_length + 1) {
        letters += Hex_Let(walked.substr(place, code_length));
    }
    return letters;
}

}  // namespace kalco

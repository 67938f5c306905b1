#pragma once

#include <cstdint>
#include <string>

#include "fuzz/input.h"
#include "work/sheets/sheets.h"

namespace kalco::fuzz {

/// The sheets of an image in which every byte is another one than its neighbour; always the same.
inline const DiscBytes& sheet_bytes() {
    static const DiscBytes disc(
        [](ImagePos position, int bytes) {
            std::string result;
            for (ImagePos place = position; place < position + bytes; ++place) {
                result += static_cast<char>(place * place / 7);
            }
            return result;
        },
        sheet_sectors());
    return disc;
}

}  // namespace kalco::fuzz

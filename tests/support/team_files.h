#pragma once

#include <string>
#include <vector>

#include "support/filled_disc.h"

/// Team files as texts, written apart from the editor's own export.
namespace kalco::test {

inline std::string head_of_team_file(const std::string& long_name, const std::string& short_name,
                                     const std::string& end = "\r\n") {
    return "[data]" + end + "intro=" + end + "id=n" + end + "longname=" + long_name + end + "shortname=" + short_name +
           end;
}

/// The three words of a record as signed decimal numbers, each with a comma behind it.
inline std::string words_of_record(const std::string& record) {
    std::string text;
    for (std::size_t word = 0; word < 3; ++word) {
        std::int64_t value = 0;
        for (std::size_t byte = 4; byte-- > 0;) {
            value = value * 256 + static_cast<unsigned char>(record[word * 4 + byte]);
        }
        if (value >= 2147483648) value -= 4294967296;
        text += std::to_string(value) + ',';
    }
    return text;
}

/// A file of `players` players: the names and records of another team of the filled image.
inline std::string team_file(int team, int players, const std::string& long_name = "Nuova",
                             const std::string& short_name = "NUO", const std::string& end = "\r\n") {
    std::string text = head_of_team_file(long_name, short_name, end);
    for (int i = 0; i < players; ++i) {
        text +=
            'p' + std::to_string(i + 1) + '=' + words_of_record(player_record(team, i)) + player_name(team, i) + end;
    }
    return text;
}

}  // namespace kalco::test

#pragma once

#include <string>
#include <vector>

#include "disc/player_record.h"
#include "support/filled_disc.h"

/// Team files as texts, written apart from the editor's own export.
namespace kalco::test {

inline std::string head_of_team_file(const std::string& long_name, const std::string& short_name,
                                     const std::string& end = "\r\n") {
    return "[data]" + end + "intro=" + end + "id=n" + end + "longname=" + long_name + end + "shortname=" + short_name +
           end;
}

/// The three words of a record as signed decimal numbers, each with a comma behind it.
inline std::string text_of_words(const std::string& record) {
    std::string text;
    for (const std::int64_t word : words_of_record(record)) text += std::to_string(word) + ',';
    return text;
}

/// A file of `players` players: the names and records of another team of the filled image.
inline std::string team_file(int team, int players, const std::string& long_name = "Nuova",
                             const std::string& short_name = "NUO", const std::string& end = "\r\n") {
    std::string text = head_of_team_file(long_name, short_name, end);
    for (int i = 0; i < players; ++i) {
        text += 'p' + std::to_string(i + 1) + '=' + text_of_words(player_record(team, i)) + player_name(team, i) + end;
    }
    return text;
}

}  // namespace kalco::test

#include "disc/team_file.h"

#include "disc/codec/binary_text.h"
#include "disc/codec/decimal.h"
#include "disc/codec/hextext.h"
#include "disc/codec/latin1.h"
#include "disc/roster.h"
#include "disc/runtime_error.h"

namespace kalco {
namespace {

/// "p1=" before the first nine players, "p10=" from the tenth on.
constexpr std::size_t two_digit_ordinal_index = 9;
constexpr std::size_t first_field_offset = 3;

std::array<std::size_t, 3> first_commas(std::string_view line) {
    std::array<std::size_t, 3> commas{};
    std::size_t place = 0;
    for (std::size_t& comma : commas) {
        comma = line.find(',', place);
        if (comma == std::string_view::npos) throw RuntimeError(error::invalid_call);
        place = comma + 1;
    }
    return commas;
}

/// The text of a head line behind its key.
std::string name_of_head_line(std::span<const std::string> lines, std::size_t line, std::size_t place) {
    return line < lines.size() ? std::string(mid(lines[line], place)) : std::string();
}

/// Up to and with the first "="; 0 without one.
std::size_t key_length(std::string_view line) {
    const auto equals = line.find('=');
    return equals == std::string_view::npos ? 0 : equals + 1;
}

std::string group_of_word(const std::string& text) {
    const std::int64_t word = number_of(text);
    if (word == 0 && text != "0") return {};
    return reversed_pairs(word_digits(word), " ");
}

}  // namespace

std::vector<std::string> team_file_head(std::string_view long_name, std::string_view short_name) {
    return {"[data]", "intro=", "id=n", "longname=" + std::string(long_name), "shortname=" + std::string(short_name)};
}

TeamFileNames names_of_team_file(std::span<const std::string> lines) {
    return {name_of_head_line(lines, long_name_line, long_name_place),
            name_of_head_line(lines, short_name_line, short_name_place)};
}

std::string player_line(int ordinal, const Words& words, std::string_view name) {
    std::string line = 'p' + std::to_string(ordinal) + '=';
    for (const std::int64_t word : words) line += std::to_string(word) + ',';
    return line.append(name);
}

std::string exported_line(int ordinal, const std::array<std::string, 3>& groups, std::string_view name) {
    return player_line(ordinal, {word_of_group(groups[0]), word_of_group(groups[1]), word_of_group(groups[2])}, name);
}

std::string_view PlayerLine::imported_name() const {
    return left(name, player_name_bytes);
}

PlayerLine split_player_line(std::string_view line, std::size_t index) {
    const auto commas = first_commas(line);
    const std::size_t start = first_field_offset + (index < two_digit_ordinal_index ? 0 : 1);
    if (commas[0] < start) throw RuntimeError(error::invalid_call);
    PlayerLine fields;
    fields.words[0] = line.substr(start, commas[0] - start);
    fields.words[1] = line.substr(commas[0] + 1, commas[1] - commas[0] - 1);
    fields.words[2] = line.substr(commas[1] + 1, commas[2] - commas[1] - 1);
    fields.name = line.substr(commas[2] + 1);
    return fields;
}

std::string_view name_of_player_line(std::string_view line) {
    return line.substr(first_commas(line)[2] + 1);
}

std::array<std::string, 3> groups_of_words(const std::array<std::string, 3>& words) {
    return {group_of_word(words[0]), group_of_word(words[1]), group_of_word(words[2])};
}

std::string with_player_of(std::string_view line, std::string_view other) {
    return std::string(line.substr(0, key_length(line))).append(other.substr(key_length(other)));
}

}  // namespace kalco

#include "disc/player_record.h"

#include <algorithm>

#include "disc/codec/binary_text.h"
#include "disc/codec/hextext.h"
#include "disc/codec/latin1.h"
#include "disc/runtime_error.h"

namespace kalco {
namespace {

constexpr std::int64_t sign_bit = 2147483648;
/// Takes the sign and the 7 between the smallest stored height and the editor's smallest out of the first word.
constexpr std::int64_t height_base = sign_bit - (lowest_height - lowest_stored_height) * height_bits.unit();

/// The first character of the decimal text of n / d, as a number: not the whole part from 10 on. A negative quotient
/// begins with "-" and has no digit.
class DigitPicker {
public:
    bool failed() const { return failed_; }

    std::int64_t pick(std::int64_t n, std::int64_t d) {
        if (n < 0) failed_ = true;
        if (failed_) return 0;
        std::int64_t whole = n / d;
        while (whole >= 10) whole /= 10;
        return whole;
    }

private:
    bool failed_ = false;
};

template <std::size_t n>
std::string text_of(const std::array<std::string_view, n>& table, std::int64_t value) {
    const bool known = value >= 0 && value < static_cast<std::int64_t>(n);
    return std::string(table[known ? static_cast<std::size_t>(value) : 0]);
}

/// Number, then height: what remains of the first word below them.
std::int64_t decode_number_and_height(std::int64_t word, DecodedPlayer& player) {
    std::int64_t rest = (word < 0 ? word : word - sign_bit) + height_base;
    // A quotient of exactly 1 does not count as above 1.
    const std::int64_t number = rest > number_bits.unit() ? rest / number_bits.unit() : 0;
    player.number = std::to_string(number + 1);
    rest -= number * number_bits.unit();
    const std::int64_t height = rest > height_bits.unit() ? rest / height_bits.unit() : 0;
    player.height = std::to_string(height + lowest_height);
    return rest - height * height_bits.unit();
}

std::string decode_beard(std::int64_t& rest, const BitField& bits, DigitPicker& digits) {
    const std::int64_t digit = digits.pick(rest, bits.unit());
    rest -= digit * bits.unit();
    return text_of(beard_texts, digit);
}

/// False when the remainder is exactly one beard unit: then neither hair nor role are read.
bool decode_beards(std::int64_t& rest, DecodedPlayer& player, DigitPicker& digits) {
    const std::int64_t colour_unit = beard_colour_bits.unit();
    const std::int64_t style_unit = beard_style_bits.unit();
    if (rest == colour_unit || rest == style_unit) return false;
    if (rest > colour_unit) {
        player.beard_colour = decode_beard(rest, beard_colour_bits, digits);
        player.beard_colour_shown = true;
        player.beard_style = decode_beard(rest, beard_style_bits, digits);
        player.beard_style_shown = true;
    } else if (rest > style_unit) {
        player.beard_style = decode_beard(rest, beard_style_bits, digits);
        player.beard_style_shown = true;
    }
    return true;
}

void decode_first_word(std::int64_t word, DecodedPlayer& player, DigitPicker& digits) {
    player.out_of_role = word < 0 ? "Si" : "No";
    std::int64_t rest = decode_number_and_height(word, player);
    if (!decode_beards(rest, player, digits)) return;
    const std::int64_t colour = digits.pick(rest, hair_colour_bits.unit());
    if (digits.failed()) return;
    player.hair_colour = text_of(hair_colour_texts, colour);
    rest -= colour * hair_colour_bits.unit();
    const std::int64_t style = rest / hair_style_bits.unit();
    player.hair_style = text_of(hair_style_texts, style);
    rest -= style * hair_style_bits.unit();
    player.role = text_of(role_texts, rest);
}

/// The steps that pick one digit a skill, from the highest bits down.
void decode_skills(std::initializer_list<Skill> skills, std::int64_t& rest, DecodedPlayer& player,
                   DigitPicker& digits) {
    for (const Skill skill : skills) {
        const std::int64_t unit = bits_of(skill).unit();
        const std::int64_t digit = digits.pick(rest, unit);
        player.skills[static_cast<std::size_t>(skill)] = std::to_string(digit + lowest_skill);
        rest -= digit * unit;
    }
}

void decode_second_word(std::int64_t word, DecodedPlayer& player, DigitPicker& digits) {
    std::int64_t rest = word < 0 ? word + 2 * sign_bit : word;
    const std::int64_t attack = rest / bits_of(Skill::attack).unit();
    player.skills[static_cast<std::size_t>(Skill::attack)] = std::to_string(attack + lowest_skill);
    rest -= attack * bits_of(Skill::attack).unit();
    decode_skills(
        {Skill::acceleration, Skill::speed, Skill::dribbling, Skill::stamina, Skill::balance, Skill::reaction}, rest,
        player, digits);
    const std::int64_t age = rest / age_bits.unit();
    player.age = std::to_string(age + lowest_age);
    rest -= age * age_bits.unit();
    const std::int64_t build = digits.pick(rest, build_bits.unit());
    player.build = text_of(build_texts, build);
    rest -= build * build_bits.unit();
    player.skin = text_of(skin_texts, rest);
}

void decode_third_word(std::int64_t word, DecodedPlayer& player, DigitPicker& digits) {
    std::int64_t rest = word;
    if (rest >= foot_bits.unit()) {
        player.foot = "Sinistro";
        rest -= foot_bits.unit();
    } else if (rest < 0) {
        player.foot = "Ambi";
        rest += sign_bit;
    } else {
        player.foot = "Destro";
    }
    const std::int64_t boots = rest > boots_bits.unit() ? digits.pick(rest, boots_bits.unit()) : 0;
    player.boots = text_of(boots_texts, boots);
    rest -= boots * boots_bits.unit();
    decode_skills({Skill::positivity, Skill::curve, Skill::jump, Skill::heading, Skill::technique, Skill::passing,
                   Skill::shot_accuracy, Skill::shot_power},
                  rest, player, digits);
    player.skills[static_cast<std::size_t>(Skill::defence)] = std::to_string(rest + lowest_skill);
}

/// The skills of a word as stored values; the attack has a term of its own.
std::int64_t skill_sum(const PlayerValues& values, int word) {
    std::int64_t sum = 0;
    for (std::size_t i = 0; i < skill_count; ++i) {
        if (skill_bits[i].word != word || static_cast<Skill>(i) == Skill::attack) continue;
        sum += (values.skills[i] - lowest_skill) * skill_bits[i].unit();
    }
    return sum;
}

std::int64_t attack_term(std::int64_t attack) {
    if (attack < lowest_skill || attack > highest_skill) return 0;
    const std::int64_t term = (attack - lowest_skill) * bits_of(Skill::attack).unit();
    return term >= sign_bit ? term - 2 * sign_bit : term;
}

std::int64_t foot_term(std::int64_t foot) {
    if (foot < 0 || foot >= foot_bits.count()) return 0;
    const std::int64_t term = foot * foot_bits.unit();
    return term >= sign_bit ? term - 2 * sign_bit : term;
}

std::int64_t spare_sum(const PlayerValues& values, int word) {
    std::int64_t sum = 0;
    for (std::size_t i = 0; i < spare_count; ++i) {
        if (spare_bits[i].word == word) sum += values.spare[i] * spare_bits[i].unit();
    }
    return sum;
}

std::int64_t signed_word(std::uint32_t bits) {
    return static_cast<std::int32_t>(bits);
}

std::uint32_t mask_of(const BitField& field) {
    return static_cast<std::uint32_t>(field.count() - 1) << field.bit;
}

std::size_t place_of_word(const BitField& field) {
    return static_cast<std::size_t>(field.word - 1);
}

}  // namespace

DecodedPlayer decode_player(const Words& words) {
    DecodedPlayer player;
    DigitPicker digits;
    decode_first_word(words[0], player, digits);
    if (!digits.failed()) decode_second_word(words[1], player, digits);
    if (!digits.failed()) decode_third_word(words[2], player, digits);
    player.stopped = digits.failed();
    return player;
}

Words pack_player(const PlayerValues& values) {
    const std::int64_t first =
        (values.number - 1) * number_bits.unit() - height_base + values.hair_style * hair_style_bits.unit() +
        values.hair_colour * hair_colour_bits.unit() + values.beard_style * beard_style_bits.unit() +
        values.beard_colour * beard_colour_bits.unit() + (values.height - lowest_height) * height_bits.unit() +
        values.role + spare_sum(values, 1) + (values.in_role ? sign_bit : 0);
    const std::int64_t second = values.skin + values.build * build_bits.unit() +
                                (values.age - lowest_age) * age_bits.unit() + spare_sum(values, 2) +
                                skill_sum(values, 2) + attack_term(values.skill(Skill::attack));
    const std::int64_t third = values.boots * boots_bits.unit() + foot_term(values.foot) + skill_sum(values, 3);
    return {first, second, third};
}

PlayerValues unpack_player(const Words& words) {
    const auto value = [&words](const BitField& field) { return field.base + stored_bits(words, field); };
    PlayerValues values;
    values.role = value(role_bits);
    values.hair_style = value(hair_style_bits);
    values.hair_colour = value(hair_colour_bits);
    values.beard_style = value(beard_style_bits);
    values.beard_colour = value(beard_colour_bits);
    values.height = value(height_bits);
    values.number = value(number_bits);
    values.in_role = value(out_of_role_bits) == 0;
    values.skin = value(skin_bits);
    values.build = value(build_bits);
    values.age = value(age_bits);
    values.boots = value(boots_bits);
    values.foot = value(foot_bits);
    for (std::size_t i = 0; i < skill_count; ++i) values.skills[i] = value(skill_bits[i]);
    for (std::size_t i = 0; i < spare_count; ++i) values.spare[i] = value(spare_bits[i]);
    return values;
}

Words words_of_record(std::string_view record) {
    Words words{};
    for (std::size_t word = 0; word < words.size(); ++word) {
        std::uint32_t bits = 0;
        for (std::size_t byte = 4; byte-- > 0;) {
            const std::size_t place = 4 * word + byte;
            bits = bits << 8 | (place < record.size() ? static_cast<unsigned char>(record[place]) : 0);
        }
        words[word] = signed_word(bits);
    }
    return words;
}

std::string record_of_words(const Words& words) {
    std::string record;
    for (const std::int64_t word : words) {
        const auto bits = static_cast<std::uint32_t>(word);
        for (int shift = 0; shift < 32; shift += 8) record += static_cast<char>(bits >> shift & 0xFF);
    }
    return record;
}

int stored_bits(const Words& words, const BitField& field) {
    const auto bits = static_cast<std::uint32_t>(words[place_of_word(field)]);
    return static_cast<int>((bits & mask_of(field)) >> field.bit);
}

int stored_bits(std::string_view record, const BitField& field) {
    return stored_bits(words_of_record(record), field);
}

void store_bits(Words& words, const BitField& field, int value) {
    std::int64_t& word = words[place_of_word(field)];
    const auto bits = static_cast<std::uint32_t>(word) & ~mask_of(field);
    word = signed_word(bits | (static_cast<std::uint32_t>(value) << field.bit & mask_of(field)));
}

void store_bits(std::string& record, const BitField& field, int value) {
    Words words = words_of_record(record);
    store_bits(words, field, value);
    record = record_of_words(words);
}

std::array<std::string, 3> groups_of_entry(std::string_view entry) {
    constexpr std::size_t group_length = 11;
    return {std::string(left(entry, group_length)), std::string(mid(entry, group_length + 2, group_length)),
            std::string(right(entry, group_length))};
}

std::string entry_of_groups(const std::array<std::string, 3>& groups) {
    return groups[0] + ' ' + groups[1] + ' ' + groups[2];
}

std::int64_t word_of_group(std::string_view group) {
    std::int64_t value = 0;
    for (int byte = 0; byte < 4; ++byte) {
        if (group.empty()) throw RuntimeError(error::invalid_call);
        value = value * 256 + hex_pair(trim(right(group, 2)));
        group = trim(group.substr(0, group.size() - std::min<std::size_t>(2, group.size())));
    }
    return value >= sign_bit ? value - 2 * sign_bit : value;
}

std::string file_order_digits(std::int64_t word) {
    return reversed_pairs(word_digits(word));
}

}  // namespace kalco

#include <gtest/gtest.h>

#include <random>

#include "disc/player_record.h"
#include "support/record_words.h"

namespace kalco {
namespace {

using Texts = std::vector<std::string>;
using test::first_word;
using test::signed_word;
using test::skill_text;
using test::unit;

/// The decoder's steps once more, on quotients as decimal texts.
class TextDecoder {
public:
    struct Stop {};

    static Texts decode(const Words& words) {
        TextDecoder decoder;
        try {
            decoder.first(words[0]);
            decoder.second(words[1]);
            decoder.third(words[2]);
        } catch (const Stop&) {
            decoder.found_.emplace_back("stopped");
        }
        return decoder.found_;
    }

private:
    static std::string quotient(std::int64_t n, std::int64_t d) {
        std::string text = n < 0 ? "-" : "";
        const std::int64_t positive = n < 0 ? -n : n;
        text += std::to_string(positive / d);
        if (positive % d != 0) text += ",5";
        return text;
    }
    static std::int64_t whole(std::int64_t n, std::int64_t d) { return std::stoll(quotient(n, d)); }
    static std::int64_t digit(std::int64_t n, std::int64_t d) {
        const char first = quotient(n, d).front();
        if (first == '-') throw Stop{};
        return first - '0';
    }
    template <std::size_t n>
    void add(const std::array<std::string_view, n>& table, std::int64_t value) {
        found_.emplace_back(
            table[value >= 0 && value < static_cast<std::int64_t>(n) ? static_cast<std::size_t>(value) : 0]);
    }

    void first(std::int64_t t) {
        found_.emplace_back(std::to_string(t).front() == '-' ? "Si" : "No");
        std::int64_t b = (t < 0 ? t : t - 2147483648) + 2140143616;
        const std::int64_t number = b > 67108864 ? whole(b, 67108864) + 1 : 1;
        b -= (number - 1) * 67108864;
        const std::int64_t height = b > 1048576 ? whole(b, 1048576) + 155 : 155;
        std::int64_t r = b - (height - 155) * 1048576;
        found_.push_back(std::to_string(number));
        found_.push_back(std::to_string(height));
        if (r == 8192 || r == 131072) {
            found_.emplace_back("skipped");
            return;
        }
        if (r > 131072) {
            const std::int64_t colour = digit(r, 131072);
            add(beard_texts, colour);
            r -= colour * 131072;
        }
        if (b - (height - 155) * 1048576 > 8192) {
            const std::int64_t style = digit(r, 8192);
            add(beard_texts, style);
            r -= style * 8192;
        }
        const std::int64_t colour = digit(r, 512);
        add(hair_colour_texts, colour);
        r -= colour * 512;
        add(hair_style_texts, whole(r, 16));
        r -= whole(r, 16) * 16;
        add(role_texts, r);
    }

    void picked(std::int64_t& v, std::initializer_list<std::int64_t> divisors) {
        for (const std::int64_t divisor : divisors) {
            const std::int64_t d = v >= divisor ? digit(v, divisor) : 0;
            found_.push_back(std::to_string(d + 12));
            v -= d * divisor;
        }
    }

    void second(std::int64_t v) {
        const std::array<std::int64_t, 8> bases{0,           536870912,   1073741824,  1610612736,
                                                -2147483648, -1610612736, -1073741824, -536870912};
        for (std::size_t i = 0; i < bases.size(); ++i) {
            if (v < bases[i] || v > bases[i] + 536870911) continue;
            found_.push_back(std::to_string(12 + i));
            v -= bases[i];
            break;
        }
        picked(v, {67108864, 8388608, 1048576, 131072, 16384, 1024});
        found_.push_back(std::to_string(whole(v, 32) + 15));
        v -= whole(v, 32) * 32;
        const std::int64_t build = digit(v, 4);
        add(build_texts, build);
        v -= build * 4;
        add(skin_texts, v);
    }

    void third(std::int64_t w) {
        if (w >= 1073741824) {
            found_.emplace_back("Sinistro");
            w -= 1073741824;
        } else if (w < 0) {
            found_.emplace_back("Ambi");
            w += 2147483648;
        } else {
            found_.emplace_back("Destro");
        }
        const std::int64_t boots = w > 134217728 ? digit(w, 134217728) : 0;
        add(boots_texts, boots);
        w -= boots * 134217728;
        picked(w, {16777216, 2097152, 262144, 32768, 4096, 512, 64, 8});
        found_.push_back(std::to_string(w + 12));
    }

    Texts found_;
};

Texts in_step_order(const DecodedPlayer& player) {
    Texts found{*player.out_of_role, *player.number, *player.height};
    if (!player.hair_colour && !player.stopped) found.emplace_back("skipped");
    if (player.beard_colour_shown) found.push_back(player.beard_colour);
    if (player.beard_style_shown) found.push_back(player.beard_style);
    if (player.hair_colour) found.insert(found.end(), {*player.hair_colour, *player.hair_style, *player.role});
    if (player.stopped) {
        found.emplace_back("stopped");
        return found;
    }
    for (const Skill skill : {Skill::attack, Skill::acceleration, Skill::speed, Skill::dribbling, Skill::stamina,
                              Skill::balance, Skill::reaction}) {
        found.push_back(skill_text(player, skill));
    }
    found.insert(found.end(), {*player.age, *player.build, *player.skin, *player.foot, *player.boots});
    for (const Skill skill : {Skill::positivity, Skill::curve, Skill::jump, Skill::heading, Skill::technique,
                              Skill::passing, Skill::shot_accuracy, Skill::shot_power, Skill::defence}) {
        found.push_back(skill_text(player, skill));
    }
    return found;
}

TEST(DecodePlayerSteps, AgreeWithTheTextsOfQuotientsForAnyWords) {
    std::mt19937 random(777);
    for (int i = 0; i < 60000; ++i) {
        Words words{};
        for (std::int64_t& word : words) {
            std::int64_t bits = random() & 0xFFFFFFFF;
            // Sparse words reach the thresholds.
            if (i % 3 == 1) bits &= static_cast<std::int64_t>(random());
            if (i % 3 == 2) bits &= static_cast<std::int64_t>(random()) & static_cast<std::int64_t>(random());
            word = signed_word(bits);
        }
        if (i % 2 == 0) words[0] = signed_word(words[0] | 7 * unit(20));
        EXPECT_EQ(in_step_order(decode_player(words)), TextDecoder::decode(words))
            << words[0] << ' ' << words[1] << ' ' << words[2];
    }
    for (int low = 0; low < 20; ++low) {
        for (int bit = 0; bit < 32; ++bit) {
            const Words words{first_word(unit(bit)) - low + 10, signed_word(unit(bit) + low),
                              signed_word(unit(bit)) - 0};
            EXPECT_EQ(in_step_order(decode_player(words)), TextDecoder::decode(words)) << words[0];
        }
    }
}
}  // namespace
}  // namespace kalco

#include "ctl/demo/invented_names.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

#include "players/roster.h"

namespace kalco::demo {
namespace {

struct Syllables {
    std::vector<std::string_view> heads;
    std::vector<std::string_view> middles;
    std::vector<std::string_view> tails;
};

/// By Sound. Accents are single bytes, as everywhere.
const std::array<Syllables, 8>& syllables() {
    static const std::array<Syllables, 8> all{{
        {{"Brask", "Dunv", "Fenk", "Harv", "Kelph", "Lorv", "Madr", "Ormb", "Pelg", "Strav", "Thorb", "Wexl", "O'Brav",
          "McTur"},
         {"a", "e", "er", "i", "o", "al"},
         {"bury", "don", "gath", "ley", "mund", "rix", "shaw", "tun", "wick", "worn", "an"}},
        {{"Albor", "Barq", "Cazt", "Delv", "Fuenq", "Galb", "Ibarz", "Luzt", "Morz", "Quind", "Serv", "Valq", "Zarp",
          "De "},
         {"a", "e", "i", "o", "ua", "ara", "ila"},
         {"bar", "dazo", "dez", "lhor", "llona", "n\xE3o", "nteo", "quil", "r\xEDn", "tovel", "veda", "zar"}},
        {{"Belv", "Corz", "Darp", "Falb", "Grav", "Lamv", "Montr", "Norb", "Pasq", "Rizp", "Serg", "Torv", "Vald",
          "D'Orb"},
         {"a", "e", "i", "o", "u", "ale", "iro"},
         {"cchio", "dello", "gnot", "lvet", "mozzo", "narel", "rdun", "ssolo", "ttavo", "vierro", "zzimo", "l\xE9"}},
        {{"Achd", "Brenk", "Dorv", "Eckl", "Falz", "Grimp", "Holk", "Krav", "Lindv", "M\xFCrl", "Raug", "Stolk", "Van ",
          "W\xF6lp"},
         {"a", "e", "en", "er", "i", "o"},
         {"bach", "brug", "brandel", "grem", "haus", "kerl", "munt", "sund", "stad", "str\xF6m", "veld", "zer"}},
        {{"Borz", "Chuv", "Drag", "Gorv", "Jask", "Kuvl", "Lubr", "Myrk", "Nuvg", "Pyrt", "Rudv", "Stolp", "Vukl",
          "Zdral"},
         {"a", "e", "i", "o", "u", "an", "or"},
         {"bko", "chun", "dicz", "lakh", "nikar", "rovsk", "sekh", "shun", "tkov", "vicz", "yevo", "zny"}},
        {{"Akd", "Balz", "Dimk", "El ", "Farz", "Hasb", "Karv", "Mahr", "Nafd", "Ozg", "Salk", "Tarv", "Yilb", "Zerk"},
         {"a", "e", "i", "o", "u", "ari", "ou"},
         {"banis", "dolis", "doghan", "kisar", "larim", "mouh", "nakor", "lid", "ravel", "sakun", "tayir", "zanou"}},
        {{"Abk", "Bazi", "Chiw", "Diob", "Ekol", "Kazu", "Malw", "Ndov", "Obir", "Phol", "Sibu", "Tamb", "Uchel",
          "Zogo"},
         {"a", "e", "i", "o", "u", "le"},
         {"bero", "doul", "jorwa", "kwezi", "lankor", "mbazo", "nyiri", "phora", "ratu", "s\xE9lo", "tuwe", "waku"}},
        {{"Aki", "Chezo", "Daebo", "Fuku", "Hanai", "Ishu", "Jinbo", "Kurai", "Mingu", "Nagu", "Okiro", "Shinu",
          "Taebi", "Yozu"},
         {"da", "ha", "ki", "mo", "no", "su"},
         {"boru", "dami", "gawo", "hojin", "juno", "mirei", "noko", "raido", "shugo", "tamu", "yamo", "yongi"}},
    }};
    return all;
}

/// The sounds of the nations in their order, by number of Sound.
constexpr std::string_view nation_sounds = "0000"        // Ireland to England
                                           "112333"      // Portugal to Switzerland
                                           "243333"      // Italy to Sweden
                                           "3443444"     // Finland to Croatia
                                           "424"         // Yugoslavia to Bulgaria
                                           "5544"        // Greece to Russia
                                           "55566660"    // Morocco to Usa
                                           "1111111111"  // Mexico to Ecuador
                                           "777550";     // Japan to Australia
static_assert(nation_sounds.size() == nation_count);

}  // namespace

Sound sound_of_country(int code) {
    if (code < nation_count) return static_cast<Sound>(nation_sounds[static_cast<std::size_t>(code)] - '0');
    switch (code) {
        case 0x5F:
        case 0x65: return Sound::germanic;
        case 0x60:
        case 0x61:
        case 0x62:
        case 0x63: return Sound::slavic;
        case 0x66:
        case 0x74: return Sound::northern;
        case 0x69: return Sound::levantine;
        default: return Sound::southern;
    }
}

std::string invented_name(Sound sound, Random& random) {
    const Syllables& from = syllables()[static_cast<std::size_t>(sound)];
    for (;;) {
        std::string name(random.one_of(from.heads));
        // A vowel goes between consonants.
        const bool open = std::string_view("aeiou ").find(name.back()) != std::string_view::npos;
        if (!open || random.chance(40)) name += random.one_of(from.middles);
        name += random.one_of(from.tails);
        if (const std::size_t gap = name.find_first_of(" '"); gap != std::string::npos && gap + 1 < name.size()) {
            char& initial = name[gap + 1];
            if (initial >= 'a' && initial <= 'z') initial = static_cast<char>(initial - 'a' + 'A');
        }
        if (name.size() <= static_cast<std::size_t>(player_name_bytes)) return name;
    }
}

}  // namespace kalco::demo

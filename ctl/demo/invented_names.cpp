#include "ctl/demo/invented_names.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

#include "disc/roster.h"

namespace kalco::demo {
namespace {

struct Syllables {
    std::string_view particle;  ///< Before some of the names.
    std::vector<std::string_view> onsets;
    std::vector<std::string_view> rhymes;
    std::vector<std::string_view> links;  ///< Between a consonant and the tail.
    std::vector<std::string_view> tails;
};

/// By Sound. Accents are single bytes, as everywhere.
const std::array<Syllables, 8>& syllables() {
    static const std::array<Syllables, 8> all{{
        {"O'",
         {"Br", "D", "F", "H", "K", "L", "M", "N", "P", "Str", "Th", "W", "Cr", "G"},
         {"ask", "unv", "enk", "arv", "elph", "orv", "adr", "umb", "elg", "av", "orb", "ex", "ill", "edd"},
         {"a", "e", "er", "i", "o", "al"},
         {"bury", "don", "gath", "ley", "mund", "rix", "shaw", "tun", "wick", "worn", "an", "ock"}},
        {"De ",
         {"B", "C", "D", "F", "G", "L", "M", "Qu", "R", "S", "V", "Z", "Tr", "P"},
         {"alb", "arq", "azt", "elv", "uen", "alv", "ib", "uz", "orz", "ind", "erv", "olq", "arp", "est"},
         {"a", "e", "i", "o", "ua", "ara", "ila"},
         {"bar", "dazo", "dez", "lhor", "llona", "n\xE3o", "nteo", "quil", "r\xEDn", "tovel", "veda", "zar", "mio"}},
        {"Di ",
         {"B", "C", "D", "F", "Gr", "L", "M", "N", "P", "R", "S", "T", "V", "Cl"},
         {"elv", "orz", "arp", "alb", "av", "amb", "ontr", "ill", "asc", "izp", "erg", "urv", "ald", "oss"},
         {"a", "e", "i", "o", "u", "ale", "iro"},
         {"cchio", "dello", "gnot", "lvet", "mozzo", "narel", "rdun", "ssolo", "ttavo", "vierro", "zzimo", "l\xE9"}},
        {"Van ",
         {"Br", "D", "F", "Gr", "H", "Kr", "L", "M", "R", "St", "W", "K", "Schl", "T"},
         {"achd", "enk", "orv", "eckl", "alz", "imp", "olk", "av", "indv", "\xFCrl", "aug", "ult", "\xF6lp", "ess"},
         {"a", "e", "en", "er", "i", "o"},
         {"bach", "brug", "dorn", "grem", "haus", "kerl", "munt", "sund", "stad", "str\xF6m", "veld", "zer"}},
        {"",
         {"B", "Ch", "Dr", "G", "J", "K", "L", "M", "N", "P", "R", "St", "V", "Zdr"},
         {"orz", "uv", "ag", "urv", "ask", "uvl", "ubr", "yrk", "evg", "yrt", "udv", "olp", "ukl", "aln"},
         {"a", "e", "i", "o", "u", "an", "or"},
         {"bko", "chun", "dicz", "lakh", "nikar", "rovsk", "sekh", "shun", "tkov", "vicz", "yevo", "zny"}},
        {"El ",
         {"B", "D", "F", "G", "H", "K", "M", "N", "R", "S", "T", "Y", "Z", "J"},
         {"akd", "alz", "imk", "urf", "arz", "asb", "ulv", "ahr", "afd", "ozg", "alk", "eyv", "ilb", "erk"},
         {"a", "e", "i", "o", "u", "ari", "ou"},
         {"banis", "dolis", "doghan", "kisar", "larim", "mouh", "nakor", "lid", "ravel", "sakun", "tayir", "zanou"}},
        {"",
         {"B", "Ch", "D", "Ek", "K", "M", "Nd", "Ob", "Ph", "S", "T", "Uch", "Z", "W"},
         {"ab", "azi", "iw", "iob", "ol", "azu", "alw", "ov", "ir", "ul", "ibu", "amb", "el", "ogo"},
         {"a", "e", "i", "o", "u"},
         {"bero", "doul", "jorwa", "kwezi", "lankor", "mbazo", "nyiri", "phora", "ratu", "s\xE9lo", "tuwe", "waku"}},
        {"",
         {"Ak", "Ch", "D", "F", "H", "Ish", "J", "K", "M", "N", "Ok", "Sh", "T", "Y"},
         {"i", "ezo", "aebo", "uku", "anai", "u", "inbo", "urai", "ingu", "agu", "iro", "oshi", "inu", "o"},
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
        std::string name(random.chance(6) ? from.particle : "");
        name += random.one_of(from.onsets);
        name += random.one_of(from.rhymes);
        const bool open = std::string_view("aeiou").find(name.back()) != std::string_view::npos;
        if (!open || random.chance(30)) name += random.one_of(from.links);
        name += random.one_of(from.tails);
        if (name.size() <= static_cast<std::size_t>(player_name_bytes)) return name;
    }
}

}  // namespace kalco::demo

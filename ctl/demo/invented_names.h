#pragma once

#include <string>

#include "ctl/demo/random.h"

namespace kalco::demo {

/// Ways of putting syllables together, so that the players of a country sound alike. None is a real person's name.
enum class Sound { northern, iberian, latin, germanic, slavic, levantine, southern, eastern };

/// By the first byte of a player's code: the nations by team, then some countries without a team.
Sound sound_of_country(int code);

/// At most 10 characters of one byte each.
std::string invented_name(Sound sound, Random& random);

}  // namespace kalco::demo

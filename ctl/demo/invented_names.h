#pragma once

#include <string>

#include "ctl/demo/random.h"

namespace kalco::demo {

/// Ways of putting syllables together, so that the players of a country sound alike. None is a real person's name.
enum class Sound { northern, iberian, latin, germanic, slavic, levantine, southern, eastern };

Sound sound_of_nation(int team);

/// At most 10 characters of one byte each.
std::string invented_name(Sound sound, Random& random);

}  // namespace kalco::demo

#pragma once

#include <QString>
#include <string>
#include <vector>

#include "editor/window/frmKalco.h"

/// Clubs have no players of their own: what their links lead to.
namespace kalco::app {

/// Whom a club plays with now, in words: "Chelsea gioca con: Italy". Empty when its links can't be read.
QString links_told(const frmKalco& form, Club club);

/// The names of the first players of a row of the 87-row lists, as the image has them; empty for a link that leads to
/// nobody. Fewer when the image can't be read.
std::vector<std::string> player_names(const Image& image, TeamRow row, int players);

}  // namespace kalco::app

#pragma once

#include <array>
#include <string>

#include "disc/player_facts.h"
#include "editor/window/frmKalco.h"

/// Small routines of general use.
namespace kalco {

/// Rewrites the text in place: the first two words in lower case with a capital initial, what follows in lower case.
/// A text whose first word or rest is empty stays as it is.
void ProperCase(std::string& text);

/// Empties the text of every text box, then of every combo box.
void ClearControls(frmKalco& form);

/// The combo boxes of the skills, by Skill.
std::array<ComboBox*, skill_count> skill_combos(frmKalco& form);

/// Gives the blank fields of the player their defaults.
void fill_blank_player_fields(frmKalco& form);

/// Empties the pictures of the player's looks.
void clear_pictures(frmKalco& form);

}  // namespace kalco

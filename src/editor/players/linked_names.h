#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "disc/indexes.h"
#include "disc/roster.h"
#include "editor/window/frmKalco.h"

/// The names of a club's players. A club owns no players: the links in its table are resolved in disc/player_codes.h,
/// the names are those that listNameGiocNaz and listNC hold, marks and old names included. Each tab shows them itself:
/// - players/team_selection.cpp, numbers/number_editor.cpp: all 23, in listDat and ListName
/// - kickers/set_pieces.cpp: the first eleven, in txtNM
/// - formations/pitch.cpp: the one of the selected marker, in lblNameG
namespace kalco {

/// What is shown for a link that means nobody.
inline constexpr std::string_view unknown_player = "Giocatore ???";

/// By slot; none for a link that means nobody.
using LinkedNames = std::array<std::optional<std::string>, roster_players>;
LinkedNames NEW_NAME_ML(const frmKalco& form, Club club);

/// The club's players as a list. Links that mean nobody are left out and unknown players stand at the end in their
/// stead, also for a player without a name, so that the rows may no longer match the slots. Only here vardal_code has
/// a name.
std::vector<std::string> list_of_linked_names(const frmKalco& form, Club club);

}  // namespace kalco

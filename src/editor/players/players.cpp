#include "editor/players/players.h"

#include "editor/players/player_fields.h"
#include "editor/players/player_save.h"
#include "editor/players/team_selection.h"

namespace kalco {

void connect_players(frmKalco& form) {
    connect_player_fields(form);
    connect_team_selection(form);
    connect_player_save(form);
}

}  // namespace kalco

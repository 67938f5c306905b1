#include "editor.h"

#include <utility>

#include "formations/formations.h"
#include "kickers/kickers.h"
#include "league/league.h"
#include "numbers/number_editor.h"
#include "players/players.h"
#include "teamfiles/teamfiles.h"
#include "teams/names.h"
#include "window/shell.h"

namespace kalco {

Editor::Editor(Platform& platform, StorageOpener opener) : form(platform, std::move(opener)) {
    connect_window(form);
    connect_teams(form);
    connect_players(form);
    connect_teamfiles(form);
    connect_formations(form);
    connect_numbers(form);
    connect_kickers(form);
    connect_league(form);
}

}  // namespace kalco

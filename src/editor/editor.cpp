#include "editor/editor.h"

#include <utility>

#include "editor/formations/formations.h"
#include "editor/kickers/kickers.h"
#include "editor/league/league.h"
#include "editor/numbers/number_editor.h"
#include "editor/players/players.h"
#include "editor/teamfiles/teamfiles.h"
#include "editor/teams/names.h"
#include "editor/window/shell.h"

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

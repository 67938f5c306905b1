#include "editor/players/linked_names.h"

#include "disc/links.h"

namespace kalco {
namespace {

/// The row of listNameGiocNaz is the place's number along all rosters, that of listNC the row of the pool.
const std::string& name_in_lists(const frmKalco& form, const PlayerPlace& place) {
    if (const auto* const row = std::get_if<PoolRow>(&place)) return form.listNC.item(row->value());
    const auto& [team, player] = std::get<RosterPlace>(place);
    return form.listNameGiocNaz.item(roster_players * team.value() + player);
}

LinkedNames names_of(const frmKalco& form, const Links& links) {
    LinkedNames names;
    for (std::size_t slot = 0; slot < links.size(); ++slot) {
        if (const auto place = player_of(links[slot])) names[slot] = name_in_lists(form, *place);
    }
    return names;
}

}  // namespace

LinkedNames NEW_NAME_ML(const frmKalco& form, Club club) {
    return names_of(form, read_links(form.image, club));
}

std::vector<std::string> list_of_linked_names(const frmKalco& form, Club club) {
    const Links links = read_links(form.image, club);
    LinkedNames names = names_of(form, links);
    std::vector<std::string> rows;
    for (std::size_t slot = 0; slot < links.size(); ++slot) {
        if (links[slot] == vardal_code) names[slot] = vardal_name;
        if (names[slot]) rows.push_back(*names[slot]);
    }
    // The list grows while it is looked through.
    for (std::size_t row = 0; row < roster_players; ++row) {
        if (row >= rows.size() || rows[row].empty()) rows.emplace_back(unknown_player);
    }
    return rows;
}

}  // namespace kalco

#pragma once

#include "ctl/demo/demo_disc.h"
#include "ctl/demo/world.h"

/// The tables of the disc, each filled whole.
namespace kalco::demo {

/// Short names, full-width names, T1 to T6.
void put_team_names(DemoDisc& disc);
/// Names and records of the teams with players of their own, and the players' costs.
void put_rosters(DemoDisc& disc, const World& world, Random& random);
/// Names, records and costs of the players outside all rosters.
void put_pool(DemoDisc& disc, const World& world);
/// The clubs' links to their players.
void put_links(DemoDisc& disc, const World& world);
/// Formations of all teams, also of those that the editor has no row for: modules of the catalogue, some moved a bit.
void put_formations(DemoDisc& disc, const World& world, Random& random);
/// Strength bars of the same teams but the default one, 3 to 9.
void put_bars(DemoDisc& disc, const World& world, Random& random);
/// Shirt numbers in both packings; those of the all-star and classic teams are packed behind the nations'.
void put_numbers(DemoDisc& disc, const World& world);
/// Set-piece takers and captains of all teams.
void put_set_pieces(DemoDisc& disc, const World& world);

}  // namespace kalco::demo

#include "ctl/demo/demo_image.h"

#include "ctl/demo/tables.h"
#include "ctl/demo/volume_descriptor.h"
#include "disc/team_names.h"

namespace kalco::demo {
namespace {

/// The highest table is T3, whose first team stands highest; some sectors of the game's own data lie behind it.
constexpr std::uint32_t sectors_behind_the_tables = 12;

std::uint32_t sector_of(ImagePos position) {
    return static_cast<std::uint32_t>((position - 1) / sector_bytes);
}

}  // namespace

DemoDisc make_demo_disc(std::uint64_t seed) {
    DemoDisc disc(sector_of(name_field(Team(0), NamePlace::t3)->position()) + 1 + sectors_behind_the_tables);
    Random other_data(seed, "other data");
    disc.scatter(volume_descriptor_sector, other_data);  // the system area before it stays empty
    put_volume_descriptors(disc, seed);

    const World world = make_world(seed);
    Random rosters(seed, "rosters");
    Random formations(seed, "formations");
    Random bars(seed, "bars");
    put_team_names(disc);
    put_rosters(disc, world, rosters);
    put_pool(disc, world);
    put_links(disc, world);
    put_formations(disc, world, formations);
    put_bars(disc, world, bars);
    put_numbers(disc, world);
    put_set_pieces(disc, world);
    return disc;
}

}  // namespace kalco::demo

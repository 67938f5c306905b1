#include "work/sheets/sheets.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "support/disc_tables.h"
#include "support/sheet_disc.h"

namespace kalco {
namespace {

using test::place_of_cell;

/// The names in one text, a blank behind each.
std::string names_of(const Sheet& sheet) {
    std::string names;
    for (const SheetColumn& column : sheet.columns) names += column.name + ' ';
    return names;
}

std::string numbered(const std::string& prefix, int first, int last) {
    std::string names;
    for (int number = first; number <= last; ++number) names += prefix + std::to_string(number) + ' ';
    return names;
}

TEST(Sheets, HaveTheirColumnsInOrder) {
    const auto all = sheets();
    ASSERT_EQ(all.size(), 7U);
    EXPECT_EQ(all[0].name, "players");
    EXPECT_EQ(names_of(all[0]),
              "team rev name role out_of_role hair_style hair_colour beard_style beard_colour height number skin build "
              "age boots foot attack defence balance stamina speed acceleration passing shot_power shot_accuracy jump "
              "heading technique dribbling curve positivity reaction cost ");
    EXPECT_EQ(all[1].name, "teams");
    EXPECT_EQ(names_of(all[1]), "short full t1 t2 t3 t4 t5 t6 ");
    EXPECT_EQ(all[2].name, "formations");
    EXPECT_EQ(names_of(all[2]), numbered("role", 2, 11) + numbered("x", 2, 11) + numbered("y", 2, 11));
    EXPECT_EQ(all[3].name, "bars");
    EXPECT_EQ(names_of(all[3]), "offense defense power speed technique ");
    EXPECT_EQ(all[4].name, "numbers");
    EXPECT_EQ(names_of(all[4]), numbered("n", 1, 23));
    EXPECT_EQ(all[5].name, "set_pieces");
    EXPECT_EQ(names_of(all[5]), "short_free_kick long_free_kick corner_right corner_left penalty captain ");
    EXPECT_EQ(all[6].name, "links");
    EXPECT_EQ(names_of(all[6]), numbered("s", 1, 23));
}

TEST(Sheets, HaveTheirRowsInOrder) {
    const auto ids = [](std::string_view name) {
        std::vector<std::string> result;
        const Sheet& sheet = *sheet_named(name);
        for (int row = 0; row < sheet.rows; ++row) result.push_back(sheet.id(row));
        return result;
    };
    EXPECT_EQ(ids("players").size(), 63U * 23 + 462);
    EXPECT_EQ(ids("players")[23], "t01p01");
    EXPECT_EQ(ids("players")[1449], "m001");
    EXPECT_EQ(ids("teams").size(), 95U);
    EXPECT_EQ(ids("teams").back(), "t94");
    EXPECT_EQ(ids("formations").size(), 87U);
    EXPECT_EQ(ids("formations")[53], "t53");
    EXPECT_EQ(ids("formations")[54], "t63");
    EXPECT_EQ(ids("formations").back(), "t95");
    EXPECT_EQ(ids("bars").size(), 86U);
    EXPECT_EQ(ids("bars").back(), "t94");
    EXPECT_EQ(ids("numbers"), ids("formations"));
    EXPECT_EQ(ids("set_pieces"), ids("formations"));
    EXPECT_EQ(ids("links").size(), 32U);
    EXPECT_EQ(ids("links").back(), "c31");
}

TEST(Sheets, FindTheirRowsByIdAlone) {
    for (const Sheet& sheet : sheets()) {
        for (int row = 0; row < sheet.rows; ++row) EXPECT_EQ(sheet.row_of(sheet.id(row)), row) << sheet.name;
        for (const char* id : {"", "t96", "m463", "c32", "x00", "t00p24", "T00"}) {
            EXPECT_EQ(sheet.row_of(id), std::nullopt) << sheet.name << ' ' << id;
        }
    }
    EXPECT_EQ(sheet_named("teams")->row_of("t95"), std::nullopt);
    EXPECT_EQ(sheet_named("bars")->row_of("t95"), std::nullopt);
    EXPECT_EQ(sheet_named("formations")->row_of("t54"), std::nullopt);
    EXPECT_EQ(sheet_named("formations")->row_of("t62"), std::nullopt);
    EXPECT_EQ(sheet_named("numbers")->row_of("t63"), 54);
}

TEST(Sheets, AreFoundByTheirNames) {
    for (const Sheet& sheet : sheets()) EXPECT_EQ(sheet_named(sheet.name), &sheet);
    EXPECT_EQ(sheet_named("Players"), nullptr);
    EXPECT_EQ(sheet_named(""), nullptr);
    EXPECT_EQ(sheet_named("players")->column_named("speed")->name, "speed");
    EXPECT_EQ(sheet_named("players")->column_named("id"), nullptr);
    EXPECT_EQ(sheet_named("players")->column_named("Speed"), nullptr);
}

TEST(Sheets, LieWhereThePrintedTablesSay) {
    EXPECT_EQ(place_of_cell("players", "t00p01", "name").bytes, Pieces(Piece{387793, 8}, Piece{388105, 2}));
    EXPECT_EQ(place_of_cell("players", "t00p01", "role").bytes.position(), 2179493);
    EXPECT_EQ(place_of_cell("players", "t00p01", "foot").bytes.position(), 2179493 + 11);
    EXPECT_EQ(place_of_cell("players", "m001", "name").bytes.position(), 2006289);
    EXPECT_EQ(place_of_cell("players", "m001", "role").bytes.position(), 2204113);
    EXPECT_EQ(place_of_cell("players", "m409", "name").bytes, Pieces(Piece{2010673, 8}, Piece{2010985, 2}));
    EXPECT_EQ(place_of_cell("players", "t00p01", "cost").bytes.position(), 3067381 + 23 + 1);
    EXPECT_EQ(place_of_cell("players", "m001", "cost").bytes.position(), 3069513);
    EXPECT_EQ(place_of_cell("teams", "t04", "full").bytes, Pieces(Piece{2003621, 4}, Piece{2003929, 6}));
    EXPECT_EQ(place_of_cell("teams", "t05", "t2").bytes, Pieces(Piece{4823669, 4}, Piece{4823977, 3}));
    EXPECT_EQ(place_of_cell("formations", "t32", "y2").bytes.position(), 2304985);
    EXPECT_EQ(place_of_cell("formations", "t95", "role2").bytes.position(), 2306857);
    EXPECT_EQ(place_of_cell("bars", "t03", "defense").bytes.position(), 2328505);
    EXPECT_EQ(place_of_cell("numbers", "t00", "n1").bytes.position(), 404717);
    EXPECT_EQ(place_of_cell("numbers", "t63", "n23").bytes.position(), 2014529 + 22);
    EXPECT_EQ(place_of_cell("numbers", "t95", "n1").bytes.position(), 2014505);
    EXPECT_EQ(place_of_cell("set_pieces", "t63", "captain").bytes.position(), 2329057 + 63 * 6 + 5);
    EXPECT_EQ(place_of_cell("set_pieces", "t95", "captain").bytes.position(), 2329629 + 5);
    EXPECT_EQ(place_of_cell("links", "c06", "s15").bytes, Pieces(Piece{2013337, 2}));
    EXPECT_EQ(place_of_cell("links", "c06", "s14").bytes, Pieces(Piece{2013005 + 26, 2}));
}

TEST(Sheets, HaveEveryNameOfEveryTeam) {
    const Sheet& teams = *sheet_named("teams");
    for (int team = 0; team < 95; ++team) {
        const test::PrintedTeam& printed = test::printed_teams[static_cast<std::size_t>(team)];
        for (int table = 0; table < 6; ++table) {
            const int length = printed.lengths[static_cast<std::size_t>(table)];
            const auto place = teams.column_named("t" + std::to_string(table + 1))->place(team);
            ASSERT_EQ(place.has_value(), length > 0) << team << " t" << table + 1;
            if (!place) continue;
            EXPECT_EQ(place->bytes.bytes(), length);
            EXPECT_EQ(place->bytes.position(), test::table_position(team, table));
        }
        const auto full = teams.column_named("full")->place(team);
        ASSERT_TRUE(full) << team;
        EXPECT_EQ(full->bytes.bytes(), team == 4 ? 10 : printed.full_width_bytes);
        EXPECT_EQ(teams.column_named("short")->place(team)->bytes, Pieces(Piece{2005377 - 4 * (team + 1), 3}));
    }
}

TEST(Sheets, HaveACostForNationsAndPoolOnly) {
    const Sheet& players = *sheet_named("players");
    for (int row = 0; row < players.rows; ++row) {
        const bool has_cost = row < 54 * 23 || row >= 63 * 23;
        EXPECT_EQ(players.column_named("cost")->place(row).has_value(), has_cost) << players.id(row);
    }
}

TEST(Sheets, LieInFortyTwoSectors) {
    const auto sectors = sheet_sectors();
    EXPECT_EQ(sectors.size(), 42U);
    EXPECT_TRUE(std::is_sorted(sectors.begin(), sectors.end()));
    EXPECT_EQ(sectors.back(), 2403);
}

/// Every stored bit belongs to one field; the one record that two players share is the only exception.
TEST(Sheets, ShareNoBitButThoseOfOneRecord) {
    std::set<std::pair<ImagePos, int>> bits;
    std::set<std::string> doubles;
    for (const Sheet& sheet : sheets()) {
        for (int row = 0; row < sheet.rows; ++row) {
            for (const SheetColumn& column : sheet.columns) {
                const auto place = column.place(row);
                if (!place) continue;
                const int first = place->bits.first;
                const int count = place->bits.width > 0 ? place->bits.width : 8 * place->bytes.bytes();
                for (int bit = first; bit < first + count; ++bit) {
                    const int byte = bit / 8;
                    const bool second = place->bytes.split() && byte >= place->bytes[0].bytes;
                    const ImagePos position = second ? place->bytes[1].position + byte - place->bytes[0].bytes
                                                     : place->bytes.position() + byte;
                    if (!bits.emplace(position, bit % 8).second) doubles.insert(sheet.id(row));
                }
            }
        }
    }
    EXPECT_EQ(doubles, std::set<std::string>{"t32p01"});
}

}  // namespace
}  // namespace kalco

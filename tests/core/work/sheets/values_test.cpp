#include "work/sheets/values.h"

#include <gtest/gtest.h>

#include <functional>

#include <random>

#include "disc/codec/latin1.h"
#include "disc/numbers.h"
#include "disc/player_record.h"
#include "support/filled_disc.h"
#include "support/sheet_disc.h"
#include "work/sheets/ids.h"

namespace kalco {
namespace {

using test::cell;
using test::place_of_cell;

const SheetColumn& column(std::string_view sheet, std::string_view name) {
    return *sheet_named(sheet)->column_named(name);
}

/// The cell of a stored number or choice of the first row.
std::string shown(std::string_view sheet, std::string_view name, unsigned stored) {
    return cell_of(column(sheet, name), stored);
}

CellReading read(std::string_view sheet, std::string_view id, std::string_view name, std::string_view text) {
    return read_cell(column(sheet, name), test::place_of_cell(sheet, id, name), text);
}

std::string mistake(std::string_view sheet, std::string_view id, std::string_view name, std::string_view text) {
    return read(sheet, id, name, text).mistake;
}

unsigned taken(std::string_view sheet, std::string_view id, std::string_view name, std::string_view text) {
    const CellReading reading = read(sheet, id, name, text);
    EXPECT_EQ(reading.mistake, "") << text;
    return std::get<unsigned>(reading.value);
}

TEST(Values, AreThoseOfTheWindow) {
    EXPECT_EQ(shown("players", "role", 0), "Portiere");
    EXPECT_EQ(shown("players", "role", 1), "Difensore Centrale");
    EXPECT_EQ(shown("players", "role", 7), "Attaccante Laterale");
    EXPECT_EQ(shown("players", "out_of_role", 0), "No");
    EXPECT_EQ(shown("players", "out_of_role", 1), "Si");
    EXPECT_EQ(shown("players", "hair_style", 24), "K1");
    EXPECT_EQ(shown("players", "hair_colour", 7), "H");
    EXPECT_EQ(shown("players", "beard_style", 6), "G");
    EXPECT_EQ(shown("players", "skin", 1), "B - Giallo");
    EXPECT_EQ(shown("players", "build", 1), "B 60\xC3\xB7"
                                            "65 Kg");
    EXPECT_EQ(shown("players", "foot", 0), "Destro");
    EXPECT_EQ(shown("players", "foot", 2), "Ambi");
    EXPECT_EQ(shown("players", "height", 7), "155");
    EXPECT_EQ(shown("players", "height", 62), "210");
    EXPECT_EQ(shown("players", "number", 31), "32");
    EXPECT_EQ(shown("players", "age", 0), "15");
    EXPECT_EQ(shown("players", "age", 31), "46");
    EXPECT_EQ(shown("players", "speed", 0), "12");
    EXPECT_EQ(shown("players", "speed", 7), "19");
    EXPECT_EQ(shown("players", "cost", 250), "250");
    EXPECT_EQ(shown("formations", "role2", 2), "DC SX");
    EXPECT_EQ(shown("formations", "role2", 0x15), "AL DX");
    EXPECT_EQ(shown("formations", "x2", 255), "255");
    EXPECT_EQ(shown("bars", "power", 10), "10");
    EXPECT_EQ(shown("numbers", "n1", 98), "99");
    EXPECT_EQ(shown("set_pieces", "captain", 10), "11");
}

TEST(Values, OutsideTheWindowsAreTheStoredNumber) {
    EXPECT_EQ(shown("players", "height", 6), "#6");
    EXPECT_EQ(shown("players", "height", 63), "#63");
    EXPECT_EQ(shown("players", "beard_style", 7), "#7");
    EXPECT_EQ(shown("players", "beard_colour", 7), "#7");
    EXPECT_EQ(shown("players", "foot", 3), "#3");
    EXPECT_EQ(shown("players", "cost", 251), "#251");
    EXPECT_EQ(shown("formations", "role11", 0), "#0");
    EXPECT_EQ(shown("formations", "role11", 1), "#1");
    EXPECT_EQ(shown("formations", "role11", 0x16), "#22");
    EXPECT_EQ(shown("bars", "offense", 11), "#11");
    EXPECT_EQ(shown("numbers", "n1", 99), "#99");
    EXPECT_EQ(shown("numbers", "n1", 255), "#255");
    EXPECT_EQ(shown("set_pieces", "captain", 11), "#11");
}

TEST(Values, AreReadFromCells) {
    EXPECT_EQ(taken("players", "t00p01", "role", "Terzino"), 2U);
    EXPECT_EQ(taken("players", "t00p01", "build", "H > 90 Kg"), 7U);
    EXPECT_EQ(taken("players", "t00p01", "build",
                    "B 60\xC3\xB7"
                    "65 Kg"),
              1U);
    EXPECT_EQ(taken("players", "t00p01", "out_of_role", "Si"), 1U);
    EXPECT_EQ(taken("players", "t00p01", "height", "155"), 7U);
    EXPECT_EQ(taken("players", "t00p01", "height", "210"), 62U);
    EXPECT_EQ(taken("players", "t00p01", "height", "#3"), 3U);
    EXPECT_EQ(taken("players", "t00p01", "height", "#10"), 10U);
    EXPECT_EQ(taken("players", "t00p01", "foot", "#3"), 3U);
    EXPECT_EQ(taken("players", "t00p01", "foot", "#0"), 0U);
    EXPECT_EQ(taken("players", "m001", "cost", "0"), 0U);
    EXPECT_EQ(taken("players", "m001", "cost", "#255"), 255U);
    EXPECT_EQ(taken("formations", "t00", "role2", "CA SX"), 17U);
    EXPECT_EQ(taken("formations", "t00", "role2", "#200"), 200U);
    EXPECT_EQ(taken("formations", "t95", "y11", "255"), 255U);
    EXPECT_EQ(taken("numbers", "t00", "n1", "32"), 31U);
    EXPECT_EQ(taken("numbers", "t63", "n1", "99"), 98U);
    EXPECT_EQ(taken("numbers", "t63", "n1", "007"), 6U);
    EXPECT_EQ(taken("numbers", "t95", "n1", "#255"), 255U);
    EXPECT_EQ(taken("set_pieces", "t95", "penalty", "1"), 0U);
}

TEST(Values, OutOfRangeAreRefused) {
    EXPECT_EQ(mistake("players", "t00p01", "height", "154"), "out of range: 155 to 210");
    EXPECT_EQ(mistake("players", "t00p01", "height", "211"), "out of range: 155 to 210");
    EXPECT_EQ(mistake("players", "t00p01", "speed", "20"), "out of range: 12 to 19");
    EXPECT_EQ(mistake("players", "t00p01", "speed", "11"), "out of range: 12 to 19");
    EXPECT_EQ(mistake("players", "t00p01", "age", "47"), "out of range: 15 to 46");
    EXPECT_EQ(mistake("players", "t00p01", "number", "33"), "out of range: 1 to 32");
    EXPECT_EQ(mistake("players", "t00p01", "cost", "251"), "out of range: 0 to 250");
    EXPECT_EQ(mistake("formations", "t00", "x2", "256"), "out of range: 0 to 255");
    EXPECT_EQ(mistake("bars", "t00", "speed", "11"), "out of range: 0 to 10");
    EXPECT_EQ(mistake("numbers", "t53", "n23", "33"), "out of range: 1 to 32");
    EXPECT_EQ(mistake("numbers", "t53", "n23", "0"), "out of range: 1 to 32");
    EXPECT_EQ(mistake("numbers", "t63", "n23", "100"), "out of range: 1 to 99");
    EXPECT_EQ(mistake("set_pieces", "t00", "captain", "12"), "out of range: 1 to 11");
    EXPECT_EQ(mistake("players", "t00p01", "height", "#64"), "out of range: # 0 to 63");
    EXPECT_EQ(mistake("players", "t00p01", "foot", "#4"), "out of range: # 0 to 3");
    EXPECT_EQ(mistake("numbers", "t53", "n23", "#32"), "out of range: # 0 to 31");
    EXPECT_EQ(mistake("numbers", "t63", "n23", "#256"), "out of range: # 0 to 255");
}

TEST(Values, ThatAreNoneAreRefused) {
    for (const char* text : {"x", "1x", "15 ", " 15", "15.0", "15,0", "-1", "+15", "1e1", "#", "#x", "#-1", "# 1",
                             "\"\"", "99999999999999999999", "#99999999999999999999"}) {
        EXPECT_NE(mistake("players", "t00p01", "speed", text), "") << text;
    }
    for (const char* text : {"terzino", "Terzino ", "x", "2", "#8", "#", "\"\"", "\xC4\x80"}) {
        EXPECT_NE(mistake("players", "t00p01", "role", text), "") << text;
    }
    EXPECT_NE(mistake("formations", "t00", "role2", "???"), "");
}

TEST(Links, AreIdsOfPlayers) {
    const SheetColumn& link = column("links", "s1");
    EXPECT_EQ(cell_of(link, std::string("\x0A\x02")), "t10p03");
    EXPECT_EQ(cell_of(link, std::string("\x00\x00", 2)), "t00p01");
    EXPECT_EQ(cell_of(link, std::string("\x3E\x16")), "t62p23");
    EXPECT_EQ(cell_of(link, std::string("\x00\x17", 2)), "m001");
    EXPECT_EQ(cell_of(link, std::string("\x74\x18")), "m462");
    EXPECT_EQ(cell_of(link, std::string("\x25\x17")), "#2517");
    EXPECT_EQ(cell_of(link, std::string("\x3F\x00", 2)), "#3F00");
    EXPECT_EQ(cell_of(link, std::string("\xFF\xFF")), "#FFFF");
    const auto bytes = [](std::string_view text) {
        return std::get<std::string>(read("links", "c00", "s1", text).value);
    };
    EXPECT_EQ(bytes("t10p03"), "\x0A\x02");
    EXPECT_EQ(bytes("m462"), "\x74\x18");
    EXPECT_EQ(bytes("#2517"), "\x25\x17");
    EXPECT_EQ(bytes("#ffff"), "\xFF\xFF");
    for (const char* text : {"t63p01", "m463", "#251", "#25177", "#", "Vardal", "\"\"", "t10"}) {
        EXPECT_NE(mistake("links", "c00", "s1", text), "") << text;
    }
}

TEST(Links, ComeBackWhateverTheyAre) {
    const SheetColumn& link = column("links", "s1");
    int named = 0;
    for (int code = 0; code <= 0xFFFF; ++code) {
        const std::string bytes{static_cast<char>(code >> 8), static_cast<char>(code & 0xFF)};
        const std::string text = cell_of(link, bytes);
        named += text.front() != '#' ? 1 : 0;
        ASSERT_EQ(std::get<std::string>(read("links", "c00", "s1", text).value), bytes) << text;
    }
    EXPECT_EQ(named, player_rows);
}

/// Each cell of random images, read and stored again, is the same; and nothing but its field's bits are changed by
/// any value.
TEST(Values, ComeBackWhateverTheyAre) {
    const DiscBytes disc = test::sheets_of(test::random_image_bytes(11));
    for (const Sheet& sheet : sheets()) {
        for (int row = 0; row < sheet.rows; ++row) {
            for (const SheetColumn& each : sheet.columns) {
                const auto place = each.place(row);
                if (!place) {
                    ASSERT_TRUE(each.field->read_only() || cell_at(disc, each, row).empty());
                    continue;
                }
                const std::string text = cell_at(disc, each, row);
                if (text.empty()) continue;
                const CellReading reading = read_cell(each, *place, text);
                ASSERT_EQ(reading.mistake, "") << sheet.id(row) << ' ' << each.name << ' ' << text;
                ASSERT_EQ(reading.value, stored_value(disc, each, row)) << text;
            }
        }
    }
}

TEST(Values, ChangeTheirOwnBitsAlone) {
    DiscBytes disc = test::sheets_of(test::random_image_bytes(12));
    const DiscBytes other = test::sheets_of(test::random_image_bytes(13));
    const DiscBytes before = disc;
    for (const Sheet& sheet : sheets()) {
        for (int row = 0; row < sheet.rows; row += 31) {
            for (const SheetColumn& each : sheet.columns) {
                const auto place = each.place(row);
                if (!place) continue;
                const FieldValue old_value = stored_value(disc, each, row);
                const FieldValue new_value = stored_value(other, each, row);
                store_value(disc, each, row, new_value);
                ASSERT_EQ(stored_value(disc, each, row), new_value) << sheet.id(row) << ' ' << each.name;
                // Put back, nothing is left of it but the end of a text.
                store_value(disc, each, row, old_value);
                if (!std::holds_alternative<std::string>(old_value)) {
                    ASSERT_TRUE(differences(before, disc).empty()) << sheet.id(row) << ' ' << each.name;
                }
                disc = before;
            }
        }
    }
}

TEST(Values, OfTheRecordAreWhatTheEditorShows) {
    const DiscBytes disc = test::sheets_of(test::demo_image_bytes());
    const Sheet& players = *sheet_named("players");
    int compared = 0;
    for (int row = 0; row < players.rows; ++row) {
        const DecodedPlayer player = decode_player(words_of_record(disc.read(player_record_field(place_of_row(row)))));
        const auto expect = [&](const char* name, const std::optional<std::string>& text) {
            ASSERT_TRUE(text) << players.id(row) << ' ' << name;
            EXPECT_EQ(cell_at(disc, *players.column_named(name), row), utf8_of_latin1(*text))
                << players.id(row) << name;
            ++compared;
        };
        expect("role", player.role);
        expect("out_of_role", player.out_of_role);
        expect("hair_style", player.hair_style);
        expect("hair_colour", player.hair_colour);
        expect("beard_style", player.beard_style);
        expect("beard_colour", player.beard_colour);
        expect("height", player.height);
        expect("number", player.number);
        expect("skin", player.skin);
        expect("build", player.build);
        expect("age", player.age);
        expect("boots", player.boots);
        expect("foot", player.foot);
        for (std::size_t i = 0; i < skill_count; ++i) {
            expect(std::string(skill_bits[i].name).c_str(), player.skills[i]);
        }
    }
    EXPECT_EQ(compared, player_rows * (13 + 16));
}

TEST(Values, OfTheShirtNumbersAreWhatTheEditorShows) {
    const DiscBytes disc = test::sheets_of(test::demo_image_bytes());
    const Sheet& sheet = *sheet_named("numbers");
    for (const TeamRow row : every<TeamRow>()) {
        const std::string record = disc.read(number_field(row));
        const auto entries = is_nation(row) ? decode_national_numbers(record) : decode_club_numbers(record);
        for (std::size_t player = 0; player < 23; ++player) {
            EXPECT_EQ(std::stoi(cell_at(disc, sheet.columns[player], row.value())), std::stoi(entries[player]))
                << sheet.id(row.value()) << ' ' << player;
        }
    }
}

/// The places that the manual lists.
TEST(Values, DifferFromWhatTheEditorShowsInRareRecordsOnly) {
    DiscBytes disc = test::sheets_of(test::demo_image_bytes());
    const auto stored = [&](std::uint32_t first, std::uint32_t second, std::uint32_t third) {
        disc.write(player_record_field(place_of_row(0)), record_of_words({first, second, third}));
        return [&](const char* name) { return cell_at(disc, column("players", name), 0); };
    };
    const auto shown = [&] { return decode_player(words_of_record(disc.read(player_record_field(place_of_row(0))))); };

    std::function<std::string(const char*)> cell_of = stored((8U << 20) | (4U << 26) | (1U << 3) | 2, 0, 0);
    EXPECT_EQ(cell_of("role"), "Terzino");
    EXPECT_NE(shown().role, "Terzino");
    cell_of = stored((3U << 20) | (4U << 26) | (1U << 13) | 2, 0, 0);
    EXPECT_EQ(cell_of("height"), "#3");
    EXPECT_EQ(cell_of("number"), "5");
    EXPECT_EQ(shown().height, "215");
    EXPECT_EQ(shown().number, "4");
    cell_of = stored((7U << 20) | (1U << 26), 0, 0);
    EXPECT_EQ(cell_of("number"), "2");
    EXPECT_EQ(shown().number, "1");
    cell_of = stored((8U << 20) | (4U << 26), 0, 0);
    EXPECT_EQ(cell_of("height"), "156");
    EXPECT_EQ(shown().height, "155");
    for (const std::uint32_t beard : {1U << 13, 1U << 17}) {
        cell_of = stored((30U << 20) | (4U << 26) | beard, 0, 0);
        EXPECT_EQ(cell_of("role"), "Portiere");
        EXPECT_EQ(cell_of("beard_style") + cell_of("beard_colour"), beard == 1U << 13 ? "BA" : "AB");
        EXPECT_EQ(shown().beard_style + shown().beard_colour, "AA");
        EXPECT_EQ(shown().role, std::nullopt);
        EXPECT_EQ(shown().hair_style, std::nullopt);
    }
    // A first word that is read to its end, as the others would not be otherwise.
    const std::uint32_t plain = (8U << 20) | (4U << 26);
    cell_of = stored(plain, 0, 1U << 27);
    EXPECT_EQ(cell_of("boots"), "B");
    EXPECT_EQ(shown().boots, "A");
    cell_of = stored(plain, 0, (3U << 30) | (2U << 27));
    EXPECT_EQ(cell_of("foot"), "#3");
    EXPECT_EQ(cell_of("boots"), "C");
    EXPECT_EQ(shown().foot, "Ambi");
    EXPECT_EQ(shown().boots, "B");
}

TEST(Values, OfAFilledDiscAreWhatItHolds) {
    const DiscBytes disc = test::sheets_of(test::filled_image());
    for (int team = 0; team < 95; ++team) {
        const std::string id = team_id(Team(team));
        EXPECT_EQ(cell(disc, "teams", id, "short"), test::short_name(team));
        EXPECT_EQ(cell(disc, "teams", id, "full"), test::full_width_name(team));
        EXPECT_TRUE(test::table_name(team).starts_with(cell(disc, "teams", id, "t1"))) << id;
    }
    EXPECT_EQ(cell(disc, "players", "t10p03", "name"), test::player_name(10, 2));
    EXPECT_EQ(cell(disc, "players", "m462", "name"), test::player_name(95, 461));
    EXPECT_EQ(cell(disc, "players", "t10p03", "cost"), std::to_string(test::player_cost(10, 2)));
    EXPECT_EQ(cell(disc, "players", "m462", "cost"), std::to_string(test::player_cost(95, 461)));
    EXPECT_EQ(cell(disc, "players", "t54p01", "cost"), "");
    EXPECT_EQ(cell(disc, "players", "t10p03", "team"), "t10");
    EXPECT_EQ(cell(disc, "players", "m462", "team"), "t95");
}

TEST(Values, OfOneRecordStandInTwoRows) {
    DiscBytes disc = test::sheets_of(test::demo_image_bytes());
    store_value(disc, column("players", "speed"), *sheet_named("players")->row_of("t31p23"), 3U);
    EXPECT_EQ(cell(disc, "players", "t31p23", "speed"), "15");
    EXPECT_EQ(cell(disc, "players", "t32p01", "speed"), "15");
    store_value(disc, column("players", "speed"), *sheet_named("players")->row_of("t32p01"), 4U);
    EXPECT_EQ(cell(disc, "players", "t31p23", "speed"), "16");
    EXPECT_NE(place_of_cell("players", "t31p23", "name").bytes, place_of_cell("players", "t32p01", "name").bytes);
}

}  // namespace
}  // namespace kalco

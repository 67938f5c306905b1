#include "disc/formation.h"

#include <gtest/gtest.h>

#include <set>

#include "disc/codec/hextext.h"
#include "support/printed_rows.h"

namespace kalco {
namespace {

using test::places_of;
using test::printed_formation;

TEST(FormationField, LiesAtThePrintedPlaceForEveryRow) {
    for (int row = 0; row <= 86; ++row)
        EXPECT_EQ(places_of(formation_field(TeamRow(row))), printed_formation(row)) << row;
}

TEST(FormationField, MeetsThePrintedEnds) {
    EXPECT_EQ(formation_field(TeamRow(0)).position(), 2303701);
    EXPECT_EQ(formation_field(TeamRow(31)).position(), 2304631);
    EXPECT_EQ(formation_field(TeamRow(33)).position(), 2304995);
    EXPECT_EQ(formation_field(TeamRow(53)).position(), 2305595);
    EXPECT_EQ(formation_field(TeamRow(54)).position(), 2305895);
    EXPECT_EQ(formation_field(TeamRow(85)).position(), 2306825);
    EXPECT_EQ(formation_field(TeamRow(86)).position(), 2306857);
    // Nine records without a row lie before row 54, two bytes of nobody before row 86.
    EXPECT_EQ(formation_field(TeamRow(54)).position() - (formation_field(TeamRow(53)).position() + 30), 270);
    EXPECT_EQ(formation_field(TeamRow(86)).position() - (formation_field(TeamRow(85)).position() + 30), 2);
}

TEST(FormationField, NeverOverlapsAnother) {
    std::set<ImagePos> used;
    for (int row = 0; row <= 86; ++row) {
        for (const Piece& piece : formation_field(TeamRow(row))) {
            for (int i = 0; i < piece.bytes; ++i) EXPECT_TRUE(used.insert(piece.position + i).second) << row;
        }
    }
    EXPECT_EQ(used.size(), 87U * 30U);
}

TEST(RoleTable, PairsEveryCodeWithItsLabel) {
    const std::vector<std::pair<std::string, std::string>> printed{
        {"02", "DC SX"},  {"03", "DC"},     {"04", "SW"},    {"05", "LIB"},   {"06", "DC DX"},
        {"07", "TER SX"}, {"08", "TER DX"}, {"09", "CC SX"}, {"0A", "CC"},    {"0B", "CC DX"},
        {"0C", "CL SX"},  {"0D", "CL DX"},  {"0E", "CO SX"}, {"0F", "CO"},    {"10", "CO DX"},
        {"11", "CA SX"},  {"12", "CA"},     {"13", "CA DX"}, {"14", "AL SX"}, {"15", "AL DX"}};
    ASSERT_EQ(printed.size(), role_labels.size());
    for (std::size_t row = 0; row < printed.size(); ++row) {
        EXPECT_EQ(role_labels[row], printed[row].second);
        EXPECT_EQ(role_label(printed[row].first), printed[row].second);
        EXPECT_EQ(role_code(printed[row].second), printed[row].first);
    }
}

TEST(RoleTable, DecodesEveryOtherCodeToQuestionMarks) {
    for (int code = 0; code < 256; ++code) {
        if (code >= 0x02 && code <= 0x15) continue;
        const std::string digits = hex_digits(std::string(1, static_cast<char>(code)));
        EXPECT_EQ(role_label(digits), "???") << digits;
    }
    for (const char* text : {"", "2", "0a", "0A ", "002", "zz"}) EXPECT_EQ(role_label(text), "???") << text;
}

TEST(RoleTable, LabelsEveryStoredByteAsItsDigits) {
    for (int code = 0; code < 256; ++code) {
        const auto byte = static_cast<std::uint8_t>(code);
        EXPECT_EQ(role_label(byte), role_label(hex_number(code, 2))) << code;
    }
}

TEST(RoleTable, EncodesEveryOtherLabelToNothing) {
    for (const char* text : {"", "???", "dc", "DC ", " DC", "DC SX ", "GK"}) EXPECT_EQ(role_code(text), "") << text;
}

TEST(ScreenPlace, IsTheNearestUnitWithHalvesToEven) {
    for (int value = 0; value <= 255; ++value) {
        // Twice the distance to the exact place, in units of the denominators.
        const int left_error = 2 * (48 * screen_left(value) - 4920 * value);
        EXPECT_LE(std::abs(left_error), 48) << value;
        EXPECT_TRUE(std::abs(left_error) < 48 || screen_left(value) % 2 == 0) << value;
        const int top_error = 2 * (112 * screen_top(value) - 3480 * value);
        EXPECT_LE(std::abs(top_error), 112) << value;
        EXPECT_TRUE(std::abs(top_error) < 112 || screen_top(value) % 2 == 0) << value;
    }
}

TEST(ScreenPlace, MeetsKnownPlaces) {
    EXPECT_EQ(screen_left(0), 0);
    EXPECT_EQ(screen_left(1), 102);  // 102.5
    EXPECT_EQ(screen_left(2), 205);
    EXPECT_EQ(screen_left(3), 308);  // 307.5
    EXPECT_EQ(screen_left(48), 4920);
    EXPECT_EQ(screen_left(255), 26138);  // 26137.5
    EXPECT_EQ(screen_top(1), 31);
    EXPECT_EQ(screen_top(7), 218);   // 217.5
    EXPECT_EQ(screen_top(21), 652);  // 652.5
    EXPECT_EQ(screen_top(52), 1616);
    EXPECT_EQ(screen_top(109), 3387);
    EXPECT_EQ(screen_top(112), 3480);
}

TEST(Modules, AreSixteenInTheOrderOfTheList) {
    const std::vector<std::string_view> names{"4-5-1A", "4-5-1B", "4-4-2A", "4-4-2B", "4-3-3A", "4-3-3B",
                                              "3-6-1A", "3-6-1B", "3-5-2A", "3-5-2B", "3-4-3A", "3-4-3B",
                                              "5-4-1A", "5-4-1B", "5-3-2A", "5-3-2B"};
    ASSERT_EQ(names.size(), module_rows.size());
    for (std::size_t row = 0; row < names.size(); ++row) {
        EXPECT_EQ(module_rows[row].name, names[row]);
        EXPECT_EQ(module_named(names[row]), &module_rows[row]);
    }
    for (const char* text : {"", "4-4-2", "4-4-2a", "4-4-2A "}) EXPECT_EQ(module_named(text), nullptr) << text;
}

TEST(Modules, HoldTenPlayersWithKnownRolesOnThePitch) {
    for (const ModuleRow& module : module_rows) {
        for (const auto column : {module.roles, module.x, module.y}) ASSERT_EQ(column.size(), 20U) << module.name;
        std::set<std::string_view> roles;
        for (std::size_t i = 0; i < 20; i += 2) {
            EXPECT_NE(role_label(module.roles.substr(i, 2)), "???") << module.name;
            EXPECT_TRUE(roles.insert(module.roles.substr(i, 2)).second) << module.name;
            const int x = std::stoi(std::string(module.x.substr(i, 2)), nullptr, 16);
            const int y = std::stoi(std::string(module.y.substr(i, 2)), nullptr, 16);
            EXPECT_TRUE(x >= 9 && x <= 44) << module.name;
            EXPECT_TRUE(y >= 0x11 && y <= 0x57) << module.name;
        }
    }
}

TEST(Modules, DifferBetweenTheirVariantsByTheCentralMidfield) {
    for (std::size_t row = 0; row < module_rows.size(); row += 2) {
        const std::string_view a = module_rows[row].roles;
        const std::string_view b = module_rows[row + 1].roles;
        const auto has = [](std::string_view roles, std::string_view code) {
            for (std::size_t i = 0; i < roles.size(); i += 2) {
                if (roles.substr(i, 2) == code) return true;
            }
            return false;
        };
        EXPECT_TRUE(has(a, "0A") && !has(a, "09") && !has(a, "0B")) << module_rows[row].name;
        EXPECT_TRUE(!has(b, "0A") && has(b, "09") && has(b, "0B")) << module_rows[row + 1].name;
    }
}

}  // namespace
}  // namespace kalco

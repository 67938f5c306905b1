#include "editor/players/linked_names.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "core/editor/league/league_run.h"
#include "disc/player_codes.h"
#include "support/disc_tables.h"

namespace kalco {
namespace {

using namespace league_tests;
using test::player_name;

constexpr int linked_club = 6;
const std::string filler = "Giocatore ???";
const std::string nobody = "FFFF";
/// A player of no roster and no pool row whom two tabs know.
const std::string vardal = "2517";

std::string joined(const Texts& codes) {
    std::string digits;
    for (const std::string& code : codes) digits += code;
    return digits;
}

/// The club's 23 slots: some of them given by their number from 1 on, the others the players 0, 1, ... of team 0x0A.
Texts codes_with(const std::vector<std::pair<int, std::string>>& slots) {
    Texts codes;
    for (int i = 0; i < 23; ++i) codes.push_back(std::string("0A") + (i < 16 ? "0" : "1") + "0123456789ABCDEF"[i % 16]);
    for (const auto& [slot, code] : slots) codes[static_cast<std::size_t>(slot - 1)] = code;
    return codes;
}

Texts names_of_team(int team) {
    Texts names;
    for (int i = 0; i < 23; ++i) names.push_back(player_name(team, i));
    return names;
}

/// The same without the names of some slots, fillers behind them.
Texts names_without(const std::vector<int>& slots, std::size_t fillers) {
    Texts names = names_of_team(0x0A);
    for (auto slot = slots.rbegin(); slot != slots.rend(); ++slot) names.erase(names.begin() + (*slot - 1));
    names.insert(names.end(), fillers, filler);
    return names;
}

/// The editor on an image in which the club has the links; numbers and set pieces are ones that every tab takes.
class ClubRun : public test::EditorRun {
public:
    explicit ClubRun(const Texts& codes, const std::string& image = test::filled_image())
        : EditorRun(with_links(image, linked_club, joined(codes))) {}

    Texts on_players() {
        EXPECT_EQ(user::select_tab(form, tab::players), user::Outcome::done);
        choose_team(63 + linked_club);
        return form.listDat.items();
    }
    Texts on_numbers() {
        test::put_user_data(disc.bytes, 2014529, std::string(23 * 32, '\x10'));
        EXPECT_EQ(user::select_tab(form, tab::numbers), user::Outcome::done);
        EXPECT_EQ(user::pick(form, form.cboSQNum, 54 + linked_club), user::Outcome::done);
        return form.ListName.items();
    }
    Texts on_kickers() {
        EXPECT_EQ(user::select_tab(form, tab::kickers), user::Outcome::done);
        EXPECT_EQ(user::pick(form, form.cboSquadra, 54 + linked_club), user::Outcome::done);
        Texts names;
        for (int i = 1; i <= 11; ++i) names.push_back(form.txtNM(i).text());
        return names;
    }
    /// The names of the ten markers, the players 2 to 11.
    Texts on_formations() {
        EXPECT_EQ(user::select_tab(form, tab::formations), user::Outcome::done);
        EXPECT_EQ(user::pick(form, form.cboSeqSQ2, 54 + linked_club), user::Outcome::done);
        Texts names;
        for (int k = 2; k <= 11; ++k) {
            click(form.lblGioc(k));
            names.push_back(form.lblNameG.caption());
        }
        return names;
    }
};

Texts with_leading_blanks(const Texts& names, std::size_t first, std::size_t count) {
    Texts result;
    for (std::size_t i = first; i < first + count; ++i) result.push_back(' ' + names[i]);
    return result;
}

TEST(LinkedNames, AreFoundForEveryCode) {
    Texts codes = roster_codes();
    Texts names;
    for (int row = 0; row < 1449; ++row) names.push_back(player_name(row / 23, row % 23));
    const Texts pool = pool_codes();
    codes.insert(codes.end(), pool.begin(), pool.end());
    for (int row = 0; row < 462; ++row) names.push_back(player_name(95, row));
    ASSERT_EQ(codes.size(), names.size());
    ClubRun run(codes_with({}));
    for (std::size_t first = 0; first < codes.size(); first += 23) {
        const std::size_t start = std::min(first, codes.size() - 23);
        const auto begin = static_cast<std::ptrdiff_t>(start);
        run.disc.bytes =
            with_links(run.disc.bytes, linked_club, joined({codes.begin() + begin, codes.begin() + begin + 23}));
        EXPECT_EQ(run.on_players(), Texts(names.begin() + begin, names.begin() + begin + 23)) << codes[start];
    }
}

TEST(LinkedNames, OfEveryClubComeFromItsOwnTable) {
    std::string image = test::filled_image();
    const Texts codes = roster_codes();
    for (int club = 0; club < 32; ++club) {
        const auto team = codes.begin() + 23 * (club + 31);
        image = with_links(image, club, joined({team, team + 23}));
    }
    test::EditorRun run(image);
    for (int club = 0; club < 32; ++club) {
        run.choose_team(63 + club);
        EXPECT_EQ(run.form.listDat.items(), names_of_team(31 + club)) << club;
    }
}

TEST(LinkedNames, StandOnAllFourTabs) {
    const Texts names = names_of_team(0x0A);
    ClubRun run(codes_with({}));
    EXPECT_EQ(run.on_players(), names);
    EXPECT_EQ(run.on_numbers(), names);
    EXPECT_EQ(run.on_kickers(), with_leading_blanks(names, 0, 11));
    EXPECT_EQ(run.on_formations(), with_leading_blanks(names, 1, 10));
    EXPECT_EQ(run.on_players(), names) << "the list is cleared first";
}

TEST(LinkedNames, OfUnknownCodesLeaveTheirSlotsOutAndFillTheEnd) {
    // No team 0x3F, no row behind the last of a nation, no club, no pool nation 0x14.
    ClubRun run(codes_with({{1, "3F00"}, {5, "001B"}, {6, "5F16"}, {22, "1417"}}));
    EXPECT_EQ(run.on_players(), names_without({1, 5, 6, 22}, 4));
    EXPECT_EQ(run.on_numbers(), names_without({1, 5, 6, 22}, 4));
}

TEST(LinkedNames, OfUnknownCodesOnlyAreAllFillers) {
    ClubRun run(Texts(23, nobody));
    EXPECT_EQ(run.on_players(), Texts(23, filler));
    EXPECT_EQ(run.on_numbers(), Texts(23, filler));
    EXPECT_EQ(run.on_kickers(), Texts(11, ' ' + filler));
    EXPECT_EQ(run.on_formations(), Texts(10, ' ' + filler));
}

TEST(LinkedNames, OfTheKickersMoveUpOverAGap) {
    ClubRun run(codes_with({{3, nobody}, {11, nobody}}));
    Texts expected = with_leading_blanks(names_without({3}, 0), 0, 9);
    expected.push_back(' ' + filler);
    expected.push_back(' ' + filler);
    EXPECT_EQ(run.on_kickers(), expected);
}

TEST(LinkedNames, OfAMarkerKeepTheirPlaceBesideAGap) {
    ClubRun run(codes_with({{1, nobody}, {3, nobody}}));
    Texts expected = with_leading_blanks(names_of_team(0x0A), 1, 10);
    expected[1] = ' ' + filler;
    EXPECT_EQ(run.on_formations(), expected);
}

TEST(LinkedNames, KnowVardalWhereAllPlayersAreListed) {
    ClubRun run(codes_with({{2, vardal}}));
    Texts listed = names_of_team(0x0A);
    listed[1] = "Vardal";
    EXPECT_EQ(run.on_players(), listed);
    EXPECT_EQ(run.on_numbers(), listed);
    Texts kickers = with_leading_blanks(names_without({2}, 0), 0, 10);
    kickers.push_back(' ' + filler);
    EXPECT_EQ(run.on_kickers(), kickers);
    EXPECT_EQ(run.on_formations()[0], ' ' + filler);
}

TEST(LinkedNames, TakeNoNeighbourOfVardalForHim) {
    ClubRun run(codes_with({{2, "2518"}, {3, "2516"}, {4, "2617"}, {5, "1725"}}));
    Texts expected = names_without({2, 4, 5}, 3);
    expected[1] = player_name(0x25, 0x16);
    EXPECT_EQ(run.on_players(), expected);
}

class EmptyNames : public ::testing::TestWithParam<std::string> {};

/// The third player of team 0x0A and the first one of the pool have no name.
std::string image_without_names(const std::string& name) {
    std::string image = test::filled_image();
    test::put_user_data(image, test::position_behind(387793, 230 * 0x0A + 10 * 2), name);
    return with_pool_name(image, 0, name);
}

TEST_P(EmptyNames, CountAsGapsForTheFillerOnly) {
    ClubRun run(codes_with({{20, "0017"}}), image_without_names(GetParam()));
    Texts listed = names_of_team(0x0A);
    listed[2].clear();
    listed[19].clear();
    listed.insert(listed.end(), 2, filler);
    EXPECT_EQ(run.on_players(), listed);
    EXPECT_EQ(run.on_numbers(), listed);
    EXPECT_EQ(run.on_kickers()[2], " ");
    EXPECT_EQ(run.on_formations()[1], " ");
}

TEST_P(EmptyNames, AreCountedWhileTheFillersGrowTheList) {
    ClubRun one(codes_with({{8, nobody}}), image_without_names(GetParam()));
    Texts listed = names_without({8}, 1);
    listed[2].clear();
    EXPECT_EQ(one.on_players(), listed) << "the filler of the empty name stands in the last row";
    ClubRun two(codes_with({{8, nobody}, {9, nobody}}), image_without_names(GetParam()));
    listed = names_without({8, 9}, 2);
    listed[2].clear();
    EXPECT_EQ(two.on_numbers(), listed);
}

TEST(LinkedNames, CarryTheMarkOfTheirRow) {
    ClubRun run(codes_with({{4, "0019"}}));
    run.form.listNC.replace(2, "Changed *");
    Texts names = names_of_team(0x0A);
    names[3] = "Changed *";
    EXPECT_EQ(run.on_players(), names);
    EXPECT_EQ(run.on_numbers(), names);
    EXPECT_EQ(run.on_kickers(), with_leading_blanks(names, 0, 11));
    EXPECT_EQ(run.on_formations(), with_leading_blanks(names, 1, 10));
}

TEST(LinkedNames, NeverShowTheRowBehindTheCodes) {
    ClubRun run(codes_with({{1, "3F00"}}));
    run.form.listNameGiocNaz.replace(1449, "BEHIND");
    EXPECT_EQ(run.on_players(), names_without({1}, 1));
}

TEST(LinkedNames, StandBySlot) {
    ClubRun run(codes_with({{3, nobody}, {7, vardal}, {22, "0018"}}));
    run.form.listNC.replace(1, "Changed *");
    const LinkedNames names = NEW_NAME_ML(run.form, Club(linked_club));
    const Texts listed = names_of_team(0x0A);
    for (std::size_t slot = 0; slot < 23; ++slot) {
        if (slot == 2 || slot == 6) {
            EXPECT_FALSE(names[slot]) << slot;
        } else {
            EXPECT_EQ(names[slot], slot == 21 ? "Changed *" : listed[slot]) << slot;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Bytes, EmptyNames, ::testing::Values(std::string(10, ' '), std::string(10, '\0')));

}  // namespace
}  // namespace kalco

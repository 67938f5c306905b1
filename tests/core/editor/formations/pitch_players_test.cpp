#include "editor/formations/pitch.h"

#include <gtest/gtest.h>

#include "core/editor/formations/formation_tab.h"
#include "disc/codec/hextext.h"

namespace kalco {
namespace {

using namespace formation_tests;

std::string name_of(int team, int player) {
    std::string name = "P" + std::to_string(team) + "." + std::to_string(player);
    name.resize(10, player % 2 == 0 ? '\0' : ' ');
    return name;
}

TEST(PitchPlayers, OfNationsAreTheSecondToTheEleventhOfTheRoster) {
    std::string image = filled_image();
    for (int team = 0; team < 54; ++team) {
        for (int player = 0; player < 23; ++player) {
            const std::string name = name_of(team, player);
            for (int i = 0; i < 10; ++i) {
                put(image, user_byte_position(337912 + 230 * team + 10 * player + i),
                    std::string(1, name[static_cast<std::size_t>(i)]));
            }
        }
    }
    FormationTab tab(image);
    for (int team = 0; team < 54; ++team) {
        tab.choose(team);
        for (int k = first_marker; k <= last_marker; ++k) {
            tab.click(tab.form.lblGioc(k));
            // The one name in two pieces keeps its blank.
            const std::string blank = team == 53 && k == 11 ? " " : "";
            EXPECT_EQ(tab.form.lblNameG.caption(), blank + "P" + std::to_string(team) + "." + std::to_string(k - 1));
        }
    }
}

TEST(PitchPlayers, OfTheLastNationsLastMarkerAreJoined) {
    std::string image = filled_image();
    put(image, 401907, "  VIDU");
    put(image, 402217, "KA  ");
    FormationTab tab(image);
    tab.choose(53);
    tab.click(tab.form.lblGioc(11));
    EXPECT_EQ(tab.form.lblNameG.caption(), " VIDUKA");
}

TEST(PitchPlayers, OfTheDefaultTeamLieAtTheirPlacesInThePool) {
    const std::vector<ImagePos> printed{2009693, 2009793, 2007949, 2009833, 2009333,
                                        2007269, 2007959, 2006859, 2010483, 2007279};
    std::string image = filled_image();
    for (std::size_t i = 0; i < printed.size(); ++i) put(image, printed[i], " POOL " + std::to_string(i) + "   ");
    FormationTab tab(image);
    tab.choose(86);
    for (int k = first_marker; k <= last_marker; ++k) {
        tab.click(tab.form.lblGioc(k));
        EXPECT_EQ(tab.form.lblNameG.caption(), "POOL " + std::to_string(at(k)));
    }
}

TEST(PitchPlayers, OfClubsAreTheirLinks) {
    std::string image = filled_image();
    // Aston Villa's slots 2..11 point at the players 22, 21, ... of Australia; slot 11 at nobody.
    std::string links;
    for (int slot = 1; slot <= 23; ++slot) links += bytes_of_digits("35") + static_cast<char>(24 - slot);
    links.replace(20, 2, bytes_of_digits("FFFF"));
    put(image, Stretches{{2013005, 28}, {2013337, 18}}, links);
    for (int player = 0; player < 23; ++player) {
        const std::string name = name_of(53, player);
        for (int i = 0; i < 10; ++i) {
            put(image, user_byte_position(337912 + 230 * 53 + 10 * player + i),
                std::string(1, name[static_cast<std::size_t>(i)]));
        }
    }
    FormationTab tab(image);
    tab.choose(60);
    for (int k = first_marker; k < last_marker; ++k) {
        tab.click(tab.form.lblGioc(k));
        EXPECT_EQ(tab.form.lblNameG.caption(), " P53." + std::to_string(24 - k));
    }
    tab.click(tab.form.lblGioc(11));
    EXPECT_EQ(tab.form.lblNameG.caption(), " Giocatore ???");
}

}  // namespace
}  // namespace kalco

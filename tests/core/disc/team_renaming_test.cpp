#include "disc/team_renaming.h"

#include <gtest/gtest.h>

#include <random>

#include "disc/codec/latin1.h"
#include "disc/team_names.h"
#include "support/filled_disc.h"
#include "support/memory_storage.h"
#include "support/outcome.h"
#include "support/random_image.h"

namespace kalco {
namespace {

class TeamRenaming : public ::testing::Test {
protected:
    TeamRenaming() : disc_{.bytes = test::random_image(96)}, image_(test::opener_of(disc_)) { image_.open("disc.bin"); }

    std::string random_letters(std::size_t count) {
        std::string letters;
        while (letters.size() < count) letters += static_cast<char>((random_() % 2 == 0 ? 'A' : 'a') + random_() % 26);
        return letters;
    }
    void put(std::string& image, const Pieces& field, std::string bytes) {
        bytes.resize(static_cast<std::size_t>(field.bytes()), '\0');
        for (const Piece& piece : field) {
            test::put(image, piece.position, bytes.substr(0, static_cast<std::size_t>(piece.bytes)));
            bytes.erase(0, static_cast<std::size_t>(piece.bytes));
        }
    }
    /// The image with all names of a team as the disc keeps them. Behind the last club's long name stands a zero.
    std::string renamed(std::string image, Team team, const NewNames& names) {
        if (team == Team(94)) test::put(image, 2002317, test::zeroes(11));
        for (const NamePlace place : name_places) {
            const auto field = name_field(team, place);
            if (!field) continue;
            const auto bytes = static_cast<std::size_t>(field->bytes());
            std::string stored = test::in_capitals(std::string(names.table_name)).substr(0, bytes);
            if (place == NamePlace::short_name) stored = test::in_capitals(std::string(names.short_name));
            if (place == NamePlace::full_width) stored = test::letter_code(std::string(names.full_width));
            put(image, *field, stored);
        }
        return image;
    }

    std::mt19937 random_{96};
    LetterEncoder encoder_;
    test::Disc disc_;
    Image image_;
};

TEST_F(TeamRenaming, ReachesEveryPlaceOfEveryTeamAndNothingElse) {
    for (const Team team : every<Team>()) {
        const auto field = name_field(team, NamePlace::full_width);
        const std::size_t letters = field ? static_cast<std::size_t>(field->bytes()) / 2 : 0;
        // The longest, the shortest that the split field takes, and one between.
        for (const std::size_t length : {letters, std::size_t{2}, (letters + 2) / 2}) {
            const std::string short_name = random_letters(3);
            const std::string full_width = random_letters(letters == 0 ? 0 : length);
            const std::string table_name = random_letters(1 + random_() % 20);
            const NewNames names{short_name, full_width, table_name};
            std::string expected = renamed(disc_.bytes, team, names);
            if (field && field->bytes() % 2 != 0) {
                // No letter reaches the last byte.
                const ImagePos last = field->position() + field->bytes() - 1;
                test::put(expected, last, test::bytes_at(disc_.bytes, last, 1));
            }
            rename_team(image_, encoder_, team, names, std::string(letters, 'x'));
            image_.commit();
            EXPECT_TRUE(test::same_image(disc_.bytes, expected)) << team.value() << ", " << length;
            EXPECT_EQ(read_full_width_name(image_, team).substr(0, full_width.size()), full_width) << team.value();
        }
    }
}

TEST_F(TeamRenaming, ReachesEveryPlaceOfEveryClubAndNothingElse) {
    for (const Club club : every<Club>()) {
        const Team team = team_of(club);
        const auto letters = static_cast<std::size_t>(full_width_letters(team));
        const auto first_length = static_cast<std::size_t>(name_field(team, NamePlace::t1)->bytes());
        const std::string short_name = random_letters(3);
        const std::string full_width = random_letters(1 + random_() % 12);
        const std::string table_name = random_letters(1 + random_() % 20);
        const std::string expected =
            renamed(disc_.bytes, team, {short_name, full_width.substr(0, letters), table_name});
        rename_club(image_, encoder_, club, {short_name, full_width, table_name}, std::nullopt);
        image_.commit();
        EXPECT_TRUE(test::same_image(disc_.bytes, expected)) << club.value();
        EXPECT_EQ(trim(read_full_width_name(image_, team)), full_width.substr(0, letters)) << club.value();
        EXPECT_EQ(read_table_name(image_, team), upper(left(table_name, first_length))) << club.value();
    }
}

}  // namespace
}  // namespace kalco

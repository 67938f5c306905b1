#include "editor/formations/pitch.h"

#include <gtest/gtest.h>

#include "core/editor/formations/formation_tab.h"

namespace kalco {
namespace {

using namespace formation_tests;

using Texts = std::vector<std::string>;

TEST(PitchCoordinates, TakeAnyByteThereAndBack) {
    for (int base = 0; base < 256; base += 10) {
        for (const int row : {7, 32, 60, 86}) {
            Formation record = record_of_row(row);
            for (int i = 0; i < 10; ++i) {
                record.x[static_cast<std::size_t>(i)] = static_cast<std::uint8_t>(base + i);
                record.y[static_cast<std::size_t>(i)] = static_cast<std::uint8_t>(255 - (base + i) % 256);
            }
            const std::string image = image_with(row, record);
            FormationTab tab(image);
            tab.choose(row);
            expect_record_shown(tab, record);
            tab.click(tab.form.cmdModifica);
            EXPECT_TRUE(same_image(tab.disc.bytes, image)) << row << ' ' << base;
        }
    }
}

TEST(UnknownRoles, ShortenTheRecordThatIsWritten) {
    const std::vector<std::vector<int>> unknown_sets{{2},    {11},       {6},
                                                     {2, 3}, {4, 7, 11}, {2, 3, 4, 5, 6, 7, 8, 9, 10, 11}};
    for (const auto& unknown : unknown_sets) {
        for (const int row : {0, 5, 31, 32, 33, 85, 86}) {
            Formation record = record_of_row(row);
            int code = 0;
            for (const int k : unknown) record.roles[at(k)] = code++ % 2 == 0 ? 0x16 : 0x01;
            const std::string image = image_with(row, record);
            FormationTab tab(image);
            tab.choose(row);
            expect_record_shown(tab, record);
            tab.click(tab.form.cmdModifica);
            std::string text;
            for (const int role : record.roles) {
                if (role >= 0x02 && role <= 0x15) text += static_cast<char>(role);
            }
            text += pack_formation(record).substr(10);
            ASSERT_EQ(text.size(), 30 - unknown.size());
            EXPECT_TRUE(same_image(tab.disc.bytes, image_after(image, row, text))) << row << ' ' << unknown.size();
            EXPECT_EQ(tab.told(), Texts{saved});
        }
    }
}

TEST(UnknownRoles, OnTheSplitRowPutOneByteIntoBothPieces) {
    Formation record = record_of_row(32);
    record.roles[3] = 0x16;
    FormationTab tab(image_with(32, record));
    tab.choose(32);
    tab.click(tab.form.lblGioc(5));
    EXPECT_EQ(tab.form.cboRL.text(), "???");
    EXPECT_EQ(tab.form.cboRL.row(), -1);
    EXPECT_EQ(Invert_Mod(tab.form), "");
    tab.click(tab.form.cmdModifica);
    const std::string first = tab.disc.at(2304661, 20);
    const std::string second = tab.disc.at(2304985, 10);
    // Nine roles, ten X, and the first Y, which also begins the ten bytes of the second piece.
    EXPECT_EQ(first[19], static_cast<char>(record.y[0]));
    EXPECT_EQ(second[0], static_cast<char>(record.y[0]));
    EXPECT_EQ(second[9], static_cast<char>(record.y[9]));
}

TEST(UnknownRoles, CanBeGivenARole) {
    Formation record = record_of_row(5);
    record.roles[0] = 0xFF;
    FormationTab tab(image_with(5, record));
    tab.choose(5);
    tab.click(tab.form.lblGioc(2));
    tab.pick(tab.form.cboRL, 18);
    tab.click(tab.form.cmdModifica);
    record.roles[0] = 0x14;
    EXPECT_TRUE(same_image(tab.disc.bytes, image_with(5, record)));
}

}  // namespace
}  // namespace kalco

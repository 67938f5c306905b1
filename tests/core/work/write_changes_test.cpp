#include "work/write_changes.h"

#include <gtest/gtest.h>

#include "support/memory_storage.h"
#include "support/sheet_disc.h"

namespace kalco {
namespace {

class WriteChanges : public testing::Test {
protected:
    WriteChanges() {
        disc.bytes = test::demo_image_bytes();
        image.open("disc.bin");
    }
    DiscBytes now() const { return test::sheets_of(disc.bytes); }
    void write(const std::vector<FieldChange>& changes) {
        write_changes(image, changes);
        image.commit();
    }

    test::Disc disc;
    Image image{test::opener_of(disc)};
};

TEST_F(WriteChanges, MakesOneDiscOfAnother) {
    const DiscBytes other = test::sheets_of(test::random_image_bytes(7));
    const auto changes = changes_between(now(), other);
    ASSERT_GT(changes.size(), 10000U);
    write(changes);
    EXPECT_TRUE(changes_between(now(), other).empty());
}

TEST_F(WriteChanges, LeavesOutWhatIsNotAmongThem) {
    const DiscBytes before = now();
    const DiscBytes other = test::sheets_of(test::random_image_bytes(7));
    const auto all = changes_between(before, other);
    std::vector<FieldChange> some;
    for (std::size_t i = 0; i < all.size(); i += 1000) some.push_back(all[i]);
    write(some);
    const auto made = changes_between(before, now());
    // A record that stands in two rosters shows its change in both.
    EXPECT_GE(made.size(), some.size());
    for (const FieldChange& each : some) {
        EXPECT_EQ(stored_value(now(), *each.column, each.row), each.after) << line_of(each);
    }
}

TEST_F(WriteChanges, TouchesNoByteOutsideTheFields) {
    const std::string before = disc.bytes;
    const FieldChange* const none = nullptr;
    write_changes(image, {none, 0});
    EXPECT_TRUE(image.changes().empty());
    const Sheet& players = *sheet_named(players_sheet);
    const SheetColumn& speed = *players.column_named("speed");
    const auto old = stored_value(now(), speed, 240);
    const unsigned other = std::get<unsigned>(old) == 3 ? 4 : 3;
    write({FieldChange{&players, 240, &speed, old, other}});
    int different = 0;
    for (std::size_t i = 0; i < before.size(); ++i) different += before[i] != disc.bytes[i] ? 1 : 0;
    EXPECT_GE(different, 1);
    EXPECT_LE(different, 2);
}

}  // namespace
}  // namespace kalco

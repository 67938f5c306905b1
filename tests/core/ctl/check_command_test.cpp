#include "ctl/check_command.h"

#include <gtest/gtest.h>

#include "ctl/command.h"
#include "ctl/demo/demo_image.h"
#include "ctl/repair_command.h"
#include "disc/image/file_error.h"
#include "disc/image/image.h"
#include "support/temporary_home.h"

namespace kalco::ctl {
namespace {

constexpr auto all_fit = "42 sectors (0 Mode 1, 42 Mode 2 Form 1, 0 Form 2, 0 others), 0 bad\n";
constexpr auto one_is_bad = "sector 935 (00:14:35) at 2199121: EDC, P, Q\n"
                            "42 sectors (0 Mode 1, 42 Mode 2 Form 1, 0 Form 2, 0 others), 1 bad\n";

/// What a command has printed, and its status.
struct Printed {
    int status = 0;
    std::string out;
    std::string error;
};

template <typename Command>
Printed printed(Command command) {
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    Printed result;
    result.status = command();
    result.out = testing::internal::GetCapturedStdout();
    result.error = testing::internal::GetCapturedStderr();
    return result;
}

/// A demo image in a file.
class CheckCommand : public testing::Test {
protected:
    CheckCommand() {
        demo::write_image(demo::make_demo_disc(1), path, false, [](std::uint32_t) {});
        demo_bytes = home.read("disc.bin");
    }

    Printed check() const {
        return printed([this] { return run_check({path, false, false}); });
    }
    Printed repair(bool dry_run = false) const {
        return printed([&] { return run_repair({path, false, dry_run, false}); });
    }
    void edit() const {
        Image image;
        image.open(path);
        image.write(2200000, "????");
        image.commit();
    }
    /// A save of another sector that has come no further than its journal and half of its bytes.
    void interrupt_a_save() const {
        const std::string bytes = home.read("disc.bin");
        Save save;
        save.length_before = save.length_after = static_cast<std::int64_t>(bytes.size());
        SectorChange change{940, bytes.substr(940 * sector_bytes, sector_bytes), {}};
        change.after = change.before;
        change.after.replace(100, 8, "XXXXYYYY");
        save.sectors.push_back(change);
        const auto storage = open_to_write(path);
        ASSERT_TRUE(storage->keep_journal(save));
        storage->write(change.offset() + 100, "XXXX");
    }
    bool has_journal() const { return home.has("disc.bin.kalco-journal"); }

    test::TemporaryHome home;
    std::string path = home.path("disc.bin");
    std::string demo_bytes;
};

TEST_F(CheckCommand, TellsWhatIsBadAndRepairMendsIt) {
    EXPECT_EQ(check().out, all_fit);
    EXPECT_EQ(check().status, done);
    edit();
    EXPECT_EQ(check().out, one_is_bad);
    EXPECT_EQ(check().status, no);
    EXPECT_EQ(repair(true).out, one_is_bad);
    EXPECT_EQ(check().out, one_is_bad);
    const Printed repaired = repair();
    EXPECT_EQ(repaired.out, one_is_bad);
    EXPECT_EQ(repaired.error, "");
    EXPECT_EQ(repaired.status, done);
    EXPECT_EQ(check().out, all_fit);
    EXPECT_EQ(repair().out, all_fit);
}

TEST_F(CheckCommand, SeesTheImageBeforeAnInterruptedSaveAndLeavesIt) {
    interrupt_a_save();
    const std::string bytes = home.read("disc.bin");
    ASSERT_NE(bytes, demo_bytes);
    for (const Printed& seen : {check(), repair(true)}) {
        EXPECT_EQ(seen.out, all_fit);
        EXPECT_EQ(seen.error, "");
        EXPECT_EQ(seen.status, done);
    }
    EXPECT_EQ(home.read("disc.bin"), bytes);
    EXPECT_TRUE(has_journal());
}

TEST_F(CheckCommand, RepairTakesAnInterruptedSaveBackFirst) {
    edit();
    interrupt_a_save();
    const Printed repaired = repair();
    EXPECT_EQ(repaired.out, one_is_bad);
    EXPECT_EQ(repaired.error, "kalcoctl repair: " + path + ": a save that was interrupted has been taken back\n");
    EXPECT_FALSE(has_journal());
    EXPECT_EQ(check().out, all_fit);
    EXPECT_EQ(home.read("disc.bin").substr(940 * sector_bytes, sector_bytes),
              demo_bytes.substr(940 * sector_bytes, sector_bytes));
}

TEST_F(CheckCommand, RepairIsRefusedBesideAForeignJournal) {
    edit();
    const std::string bytes = home.read("disc.bin");
    home.write("disc.bin.kalco-journal", "this is mine");
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    EXPECT_THROW(run_repair({path, false, false, false}), FileError);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_NE(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(home.read("disc.bin"), bytes);
    EXPECT_EQ(home.read("disc.bin.kalco-journal"), "this is mine");
    // Without anything to save it is not in the way.
    home.write("disc.bin", demo_bytes);
    EXPECT_EQ(repair().out, all_fit);
}

}  // namespace
}  // namespace kalco::ctl

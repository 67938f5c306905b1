// Every save in the program with a fault at every single call of the file system.

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <map>

#include "disc/image/opening.h"
#include "disc/runtime_error.h"
#include "support/every_save.h"
#include "support/fake_files.h"
#include "support/filled_disc.h"
#include "support/image_names.h"

namespace kalco {
namespace {

using test::CallFault;
using test::Desk;
using test::EverySave;
using test::FakeFiles;
using test::image_name;
using test::journal_name;
using test::PagedBytes;

StorageOpener opener_on(FakeFiles& files) {
    return [&files](const std::string& path) { return open_for_saves(files, path, Failures::Kind::run_time); };
}

const test::TemporaryHome& home() {
    static const test::TemporaryHome directory;
    return directory;
}

/// How one save went.
struct Outcome {
    PagedBytes before;
    PagedBytes after;
    bool told_saved = false;
    bool killed = false;
    int error = 0;
    int calls = 0;
    std::vector<std::string> log;  ///< The system's calls of the save itself.
};

/// Starts the editor on a full image, prepares the save and makes it, with a fault at one of its calls.
Outcome run(FakeFiles& files, const EverySave& save, int call = 0, CallFault fault = {}) {
    static const PagedBytes image(test::filled_image());
    files.put(image_name, image);
    Outcome outcome;
    Desk desk(home(), opener_on(files), image_name);
    save.prepare(desk);
    outcome.before = files.contents(image_name);
    files.plan(call, fault);
    try {
        save.save(desk);
    } catch (const RuntimeError& failure) {
        outcome.error = failure.number();
    } catch (const test::Killed&) {
        outcome.killed = true;
    }
    outcome.log = files.log();
    outcome.calls = static_cast<int>(outcome.log.size());
    outcome.told_saved = desk.told_saved();
    if (!outcome.killed) {
        files.plan(0);
        desk.form.image.close();
    }
    outcome.after = files.contents(image_name);
    return outcome;
}

/// What the next opening finds.
PagedBytes next_image(FakeFiles& files) {
    files.end_process();
    Image image(opener_on(files));
    image.open(image_name);
    EXPECT_FALSE(files.has(journal_name));
    return files.contents(image_name);
}

class EverySaveOf : public ::testing::TestWithParam<std::size_t> {
protected:
    EverySaveOf() {
        FakeFiles files;
        whole = run(files, save);
        log = whole.log;
    }
    static void TearDownTestSuite() { tally.print("saves in memory"); }

    /// Reads behind the save itself are left out but for a few: the tab shows again what the image holds.
    bool is_worth_a_fault(int call) const {
        const auto removal = std::find(log.begin(), log.end(), std::string("remove ") + journal_name) - log.begin();
        return call <= removal + 6 || call % 97 == 0;
    }
    bool is_read(int call) const { return log[static_cast<std::size_t>(call) - 1] == "read disc.bin"; }
    std::string at(int call) const { return save.name + ", " + log[static_cast<std::size_t>(call) - 1]; }

    const EverySave& save = test::every_save()[GetParam()];
    Outcome whole;
    std::vector<std::string> log;
    inline static test::Tally tally;
};

INSTANTIATE_TEST_SUITE_P(Program, EverySaveOf, ::testing::Range<std::size_t>(0, test::every_save().size()));

TEST_P(EverySaveOf, ChangesTheImageWithAJournal) {
    EXPECT_FALSE(whole.before == whole.after);
    EXPECT_EQ(whole.error, 0);
    EXPECT_EQ(whole.told_saved, !save.stops && save.name != "undo" && save.name != "redo");
    EXPECT_EQ(std::count(log.begin(), log.end(), "sync disc.bin"), 1) << "one save";
    EXPECT_EQ(std::count(log.begin(), log.end(), std::string("create ") + journal_name), 1);
}

TEST_P(EverySaveOf, IsWholeOrNotAtAllAfterAnyFailure) {
    for (int call = 1; call <= whole.calls; ++call) {
        if (!is_worth_a_fault(call)) continue;
        ++tally.calls;
        for (const int code : {EIO, ENOSPC}) {
            // A read fails in one way only.
            if (code == ENOSPC && is_read(call)) continue;
            FakeFiles files;
            const Outcome outcome = run(files, save, call, {CallFault::Kind::fails, code});
            ASSERT_TRUE(outcome.after == whole.before || outcome.after == whole.after) << at(call);
            tally.count(outcome.after == whole.after);
            if (outcome.told_saved) {
                ASSERT_TRUE(outcome.after == whole.after) << at(call);
            } else {
                EXPECT_TRUE(outcome.error != 0 || save.fails_silently) << at(call);
            }
            ASSERT_TRUE(next_image(files) == outcome.after) << at(call);
        }
    }
}

TEST_P(EverySaveOf, IsWholeOrNotAtAllAfterAKillOrAStop) {
    std::mt19937 chance(static_cast<unsigned>(GetParam()));
    for (int call = 1; call <= whole.calls; ++call) {
        if (!is_worth_a_fault(call) || is_read(call)) continue;
        FakeFiles killed;
        run(killed, save, call, {CallFault::Kind::killed_after, 0});
        killed.end_process();
        for (int stops = 0; stops < 5; ++stops) {
            FakeFiles files = killed.copy();
            // The first time the machine goes on.
            if (stops > 0) files.stop_machine(&chance);
            const PagedBytes left = next_image(files);
            ASSERT_TRUE(left == whole.before || left == whole.after) << at(call);
            tally.count(left == whole.after);
        }
    }
}

}  // namespace
}  // namespace kalco

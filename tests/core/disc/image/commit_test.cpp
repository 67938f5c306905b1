#include "disc/image/commit.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <random>

#include "core/disc/image/saved_image.h"

namespace kalco {
namespace {

using test::CallFault;
using test::FakeFiles;
using test::image_name;
using test::journal_name;
using test::SaveCase;

/// How one save went.
struct Outcome {
    bool told_saved = false;
    int error = 0;
    bool killed = false;
};

/// Opens the image, makes the save and closes, with a fault at one of the calls from the save's first one on.
Outcome run(FakeFiles& files, const SaveCase& save, int call, CallFault fault) {
    Outcome outcome;
    try {
        Image image(test::opener_on(files));
        image.open(image_name);
        files.plan(call, fault);
        save.write(image);
        image.commit("save");
        outcome.told_saved = true;
        image.close();
    } catch (const RuntimeError& failure) {
        outcome.error = failure.number();
    } catch (const test::Killed&) {
        outcome.killed = true;
    }
    return outcome;
}

FakeFiles files_with(const SaveCase& save) {
    FakeFiles files;
    files.put(image_name, save.before);
    return files;
}

/// What a save has left whose process has ended since.
FakeFiles files_after(const SaveCase& save, int call, CallFault fault) {
    FakeFiles files = files_with(save);
    run(files, save, call, fault);
    files.end_process();
    return files;
}

int calls_of(const SaveCase& save) {
    FakeFiles files = files_with(save);
    EXPECT_TRUE(run(files, save, 0, {}).told_saved);
    EXPECT_EQ(files.bytes(image_name), save.after);
    EXPECT_FALSE(files.has(journal_name));
    return static_cast<int>(files.log().size());
}

/// The directory is opened and synced at the end.
constexpr int calls_behind_removal = 2;

class Commit : public ::testing::TestWithParam<std::size_t> {
protected:
    const SaveCase save = test::save_cases()[GetParam()];
    const int calls = calls_of(save);
};

INSTANTIATE_TEST_SUITE_P(Saves, Commit, ::testing::Range<std::size_t>(0, test::save_cases().size()));

TEST(CommitOrder, IsJournalImageJournal) {
    const SaveCase save = test::save_cases()[1];
    FakeFiles files = files_with(save);
    run(files, save, 0, {});
    std::vector<std::string> order;
    for (const std::string& call : files.log()) {
        const std::string verb = call.substr(0, call.find(' '));
        if (verb != "read" && verb != "about" && verb != "look" && verb != "open") order.push_back(call);
    }
    const std::string journal = journal_name;
    EXPECT_EQ(order, (std::vector<std::string>{"create " + journal, "write " + journal, "sync " + journal, "sync .",
                                               "write disc.bin", "write disc.bin", "write disc.bin", "write disc.bin",
                                               "sync disc.bin", "remove " + journal, "sync ."}));
}

TEST(CommitOrder, WritesSectorsInRisingOrder) {
    struct Noting final : Storage {
        std::string read(std::int64_t, std::size_t bytes) override { return std::string(bytes, '\0'); }
        void write(std::int64_t offset, std::string_view bytes) override {
            EXPECT_EQ(bytes.size(), 2352U);
            offsets.push_back(offset);
        }
        std::int64_t size() override { return 40000; }
        void truncate(std::int64_t) override { ADD_FAILURE(); }
        void flush() override {}
        std::vector<std::int64_t> offsets;
    };
    Noting* storage = nullptr;
    Image image([&storage](const std::string&) {
        auto made = std::make_unique<Noting>();
        storage = made.get();
        return made;
    });
    image.open("");
    for (const ImagePos position : {30000, 5, 12000, 7000, 12500}) image.write(position, "x");
    image.commit();
    EXPECT_EQ(storage->offsets, (std::vector<std::int64_t>{0, 2 * 2352, 5 * 2352, 12 * 2352}));
}

TEST_P(Commit, IsTheOldImageAfterAnyFailure) {
    for (int call = 1; call <= calls; ++call) {
        for (const int code : {EIO, ENOSPC, EACCES}) {
            FakeFiles files = files_with(save);
            const Outcome outcome = run(files, save, call, {CallFault::Kind::fails, code});
            const std::string at = save.name + ", call " + std::to_string(call) + " of " + std::to_string(calls) +
                                   ", errno " + std::to_string(code);
            // Closing a descriptor is no call, and a directory that refuses lets the save go without a journal.
            EXPECT_TRUE(outcome.told_saved || outcome.error != 0) << at;
            // Once the journal is gone the save stands, though it is not sure to be told.
            const bool stands = outcome.told_saved || call > calls - calls_behind_removal;
            const std::string& expected = stands ? save.after : save.before;
            EXPECT_EQ(files.bytes(image_name), expected) << at;
            if (outcome.told_saved) {
                EXPECT_EQ(code, EACCES) << at;
            } else {
                EXPECT_EQ(outcome.error, code == ENOSPC ? error::disk_full : error::device_io) << at;
            }
            EXPECT_EQ(test::after_next_opening(files), expected) << at;
        }
    }
}

TEST_P(Commit, GoesOnAfterSignalsAndHalfTransfers) {
    for (int call = 1; call <= calls; ++call) {
        for (const CallFault fault :
             {CallFault{CallFault::Kind::fails, EINTR}, CallFault{CallFault::Kind::goes_halfway, 0}}) {
            FakeFiles files = files_with(save);
            const bool told = run(files, save, call, fault).told_saved;
            EXPECT_TRUE(told) << save.name << ' ' << call;
            EXPECT_EQ(files.bytes(image_name), told ? save.after : save.before) << save.name << ' ' << call;
        }
    }
}

TEST_P(Commit, IsTheOldOrTheNewImageAfterAKill) {
    for (int call = 1; call <= calls; ++call) {
        for (const auto kind : {CallFault::Kind::killed_before, CallFault::Kind::killed_after}) {
            FakeFiles files = files_with(save);
            const Outcome outcome = run(files, save, call, {kind, 0});
            EXPECT_TRUE(outcome.killed);
            const std::string left = test::after_next_opening(files);
            EXPECT_TRUE(left == save.before || left == save.after) << save.name << ' ' << call;
        }
    }
}

TEST_P(Commit, IsTheOldOrTheNewImageWhateverAStopLoses) {
    std::mt19937 chance(static_cast<unsigned>(GetParam()));
    for (int call = 1; call <= calls; ++call) {
        const FakeFiles killed = files_after(save, call, {CallFault::Kind::killed_after, 0});
        for (int round = 0; round < 40; ++round) {
            FakeFiles files = killed.copy();
            files.stop_machine(round == 0 ? nullptr : &chance);
            const std::string left = test::after_next_opening(files);
            ASSERT_TRUE(left == save.before || left == save.after) << save.name << ' ' << call;
        }
    }
}

TEST_P(Commit, StandsOnceItWasTold) {
    std::mt19937 chance(7);
    for (int round = 0; round < 40; ++round) {
        FakeFiles files = files_with(save);
        EXPECT_TRUE(run(files, save, 0, {}).told_saved);
        files.stop_machine(round == 0 ? nullptr : &chance);
        EXPECT_EQ(test::after_next_opening(files), save.after);
    }
}

TEST_P(Commit, IsTheOldOrTheNewImageWhenAFailureIsFollowedByAStop) {
    std::mt19937 chance(static_cast<unsigned>(GetParam()) + 100);
    for (int call = 1; call <= calls; ++call) {
        const FakeFiles failed = files_after(save, call, {CallFault::Kind::fails, EIO});
        for (int round = 0; round < 20; ++round) {
            FakeFiles files = failed.copy();
            files.stop_machine(&chance);
            const std::string left = test::after_next_opening(files);
            ASSERT_TRUE(left == save.before || left == save.after) << save.name << ' ' << call;
        }
    }
}

TEST_P(Commit, SyncsNothingTwiceAfterAFailure) {
    for (int call = 1; call <= calls; ++call) {
        FakeFiles files = files_with(save);
        run(files, save, call, {CallFault::Kind::fails, EIO});
        const std::string failed = files.log()[static_cast<std::size_t>(call) - 1];
        if (!failed.starts_with("sync")) continue;
        EXPECT_EQ(std::count(files.log().begin() + call, files.log().end(), failed), 0) << failed;
    }
}

TEST_P(Commit, CanBeInterruptedWhileItIsTakenBack) {
    std::mt19937 chance(static_cast<unsigned>(GetParam()) + 200);
    for (int call = 1; call <= calls; ++call) {
        const FakeFiles killed = files_after(save, call, {CallFault::Kind::killed_after, 0});
        // The next opening is killed at each of its calls in turn, and the one after that is left alone.
        for (int next = 1;; ++next) {
            FakeFiles files = killed.copy();
            files.plan(next, {CallFault::Kind::killed_after, 0});
            bool through = false;
            try {
                Image image(test::opener_on(files));
                image.open(image_name);
                through = true;
            } catch (const test::Killed&) {
                if (next % 2 == 0) files.stop_machine(&chance);
            }
            const std::string left = test::after_next_opening(files);
            ASSERT_TRUE(left == save.before || left == save.after) << save.name << ' ' << call << ' ' << next;
            if (through) break;
        }
    }
}

TEST_P(Commit, TellsAFailureWhileAnotherIsTakenBack) {
    for (int call = 1; call <= calls; ++call) {
        FakeFiles files = files_with(save);
        run(files, save, call, {CallFault::Kind::killed_after, 0});
        files.end_process();
        int failures = 0;
        for (int next = 1;; ++next) {
            files.plan(next, {CallFault::Kind::fails, EIO});
            try {
                Image image(test::opener_on(files));
                image.open(image_name);
                if (files.log().size() < static_cast<std::size_t>(next)) break;
            } catch (const RuntimeError& failure) {
                EXPECT_TRUE(failure.number() == error::device_io || failure.number() == error::path_access ||
                            failure.number() == error::permission_denied);
                ++failures;
            }
            files.end_process();
        }
        EXPECT_GT(failures, 2);
        const std::string left = test::after_next_opening(files);
        EXPECT_TRUE(left == save.before || left == save.after) << save.name << ' ' << call;
    }
}

TEST_P(Commit, GoesWithoutAJournalWhereNoneCanBeMade) {
    FakeFiles files = files_with(save);
    files.protect_directory();
    EXPECT_TRUE(run(files, save, 0, {}).told_saved);
    EXPECT_EQ(files.bytes(image_name), save.after);
    const auto log = files.log();
    EXPECT_EQ(std::count(log.begin(), log.end(), "sync disc.bin"), 1);
    for (int call = 1; call <= static_cast<int>(log.size()); ++call) {
        FakeFiles failing = files_with(save);
        failing.protect_directory();
        const Outcome outcome = run(failing, save, call, {CallFault::Kind::fails, EIO});
        EXPECT_NE(outcome.error, 0);
        EXPECT_EQ(failing.bytes(image_name), save.before) << save.name << ' ' << call;
    }
}

}  // namespace
}  // namespace kalco

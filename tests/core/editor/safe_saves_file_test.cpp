// Every save in the program on a real file, with a fault at every call that changes anything.

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdlib>

#include "disc/image/opening.h"
#include "disc/runtime_error.h"
#include "support/every_save.h"
#include "support/faulty_files.h"
#include "support/filled_disc.h"

namespace kalco {
namespace {

using test::CallFault;
using test::Desk;
using test::EverySave;
using test::FaultyFiles;

struct Outcome {
    std::string before;
    std::string after;
    bool told_saved = false;
    std::vector<std::string> calls;
};

class RealSave : public ::testing::TestWithParam<std::size_t> {
protected:
    Outcome run(int call = 0, CallFault fault = {}) {
        Outcome outcome;
        home.write("disc.bin", test::filled_image());
        files.plan(0);
        Desk desk(home, opener(), home.path("disc.bin"));
        save.prepare(desk);
        outcome.before = home.read("disc.bin");
        files.plan(call, fault);
        try {
            save.save(desk);
        } catch (const RuntimeError&) {
        } catch (const test::Killed&) {
        }
        outcome.calls = files.log();
        outcome.told_saved = desk.told_saved();
        outcome.after = home.read("disc.bin");
        return outcome;
    }
    std::string next_image() {
        files.plan(0);
        Image image(opener());
        image.open(home.path("disc.bin"));
        EXPECT_FALSE(home.has("disc.bin.kalco-journal"));
        return home.read("disc.bin");
    }
    StorageOpener opener() {
        return [this](const std::string& path) { return open_for_saves(files, path, Failures::Kind::run_time); };
    }

    const EverySave& save = test::every_save()[GetParam()];
    test::TemporaryHome home;
    FaultyFiles files;
};

INSTANTIATE_TEST_SUITE_P(Program, RealSave, ::testing::Range<std::size_t>(0, test::every_save().size()));

/// One fault a call, in turn; all of them when KALCO_ALL_FAULTS is set.
std::vector<CallFault> faults_of(std::size_t call) {
    using Kind = CallFault::Kind;
    const std::vector<CallFault> all{{Kind::fails, EIO},       {Kind::killed_after, 0}, {Kind::fails, ENOSPC},
                                     {Kind::killed_before, 0}, {Kind::goes_halfway, 0}, {Kind::fails, EINTR}};
    if (std::getenv("KALCO_ALL_FAULTS") != nullptr) return all;
    return {all[call % all.size()]};
}

TEST_P(RealSave, IsWholeOrNotAtAll) {
    const Outcome whole = run();
    ASSERT_NE(whole.before, whole.after);
    EXPECT_FALSE(home.has("disc.bin.kalco-journal"));
    for (std::size_t k = 0; k < whole.calls.size(); ++k) {
        const std::string& call = whole.calls[k];
        if (call == "read" || call == "about" || call == "look") continue;
        for (const CallFault& fault : faults_of(k)) {
            const std::string at = save.name + ", call " + std::to_string(k + 1) + ", " + call + ", fault " +
                                   std::to_string(static_cast<int>(fault.kind)) + ' ' + std::to_string(fault.code);
            const bool told_saved = run(static_cast<int>(k) + 1, fault).told_saved;
            const std::string left = next_image();
            ASSERT_TRUE(left == whole.before || left == whole.after) << at;
            if (told_saved) {
                ASSERT_EQ(left, whole.after) << at;
            }
        }
    }
}

}  // namespace
}  // namespace kalco

// Every save in the program on a real file, with a fault at every call that changes anything.

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdlib>
#include <fstream>

#include "disc/image/opening.h"
#include "disc/runtime_error.h"
#include "support/every_save.h"
#include "support/faulty_files.h"
#include "support/filled_disc.h"
#include "support/image_names.h"

namespace kalco {
namespace {

using test::CallFault;
using test::Desk;
using test::EverySave;
using test::FaultyFiles;
using test::image_name;
using test::journal_name;

class RealSave : public ::testing::TestWithParam<std::size_t> {
protected:
    static void TearDownTestSuite() { tally.print("saves of a file"); }

    RealSave() { home.write(image_name, test::filled_image()); }

    /// What the save does on the filled image, with a fault at one of its calls.
    void run(int call = 0, CallFault fault = {}) {
        files.plan(0);
        Desk desk(home, opener(), home.path(image_name));
        save.prepare(desk);
        if (before.empty()) before = home.read(image_name);
        files.plan(call, fault);
        try {
            save.save(desk);
        } catch (const RuntimeError&) {
        } catch (const test::Killed&) {
        }
        calls = files.log();
        told_saved = desk.told_saved();
    }
    /// Makes the image the filled one again. Only what was changed is written: there are very many faults.
    void fill_again(const std::string& held) const {
        const std::string& filled = test::filled_image();
        if (held.size() != filled.size()) {
            home.write(image_name, filled);
            return;
        }
        std::fstream file(home.path(image_name), std::ios::binary | std::ios::in | std::ios::out);
        for (std::size_t place = 0; place < held.size(); place += sector_bytes) {
            const auto sector = std::string_view(filled).substr(place, sector_bytes);
            if (sector == std::string_view(held).substr(place, sector_bytes)) continue;
            file.seekp(static_cast<std::streamoff>(place)).write(sector.data(), sector_bytes);
        }
    }
    std::string next_image() {
        files.plan(0);
        Image image(opener());
        image.open(home.path(image_name));
        EXPECT_FALSE(home.has(journal_name));
        return home.read(image_name);
    }
    StorageOpener opener() {
        return [this](const std::string& path) { return open_for_saves(files, path, Failures::Kind::run_time); };
    }

    const EverySave& save = test::every_save()[GetParam()];
    test::TemporaryHome home;
    FaultyFiles files;
    std::string before;  ///< What the save finds.
    // Of the last run.
    std::vector<std::string> calls;
    bool told_saved = false;
    inline static test::Tally tally;
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
    run();
    const std::string after = home.read(image_name);
    const std::vector<std::string> whole = calls;
    ASSERT_NE(before, after);
    EXPECT_FALSE(home.has(journal_name));
    fill_again(after);
    for (std::size_t k = 0; k < whole.size(); ++k) {
        if (whole[k] == "read" || whole[k] == "about" || whole[k] == "look") continue;
        ++tally.calls;
        for (const CallFault& fault : faults_of(k)) {
            const std::string at = save.name + ", call " + std::to_string(k + 1) + ", " + whole[k] + ", fault " +
                                   std::to_string(static_cast<int>(fault.kind)) + ' ' + std::to_string(fault.code);
            run(static_cast<int>(k) + 1, fault);
            const std::string left = next_image();
            ASSERT_TRUE(left == before || left == after) << at;
            tally.count(left == after);
            if (told_saved) {
                ASSERT_EQ(left, after) << at;
            }
            fill_again(left);
        }
    }
}

}  // namespace
}  // namespace kalco

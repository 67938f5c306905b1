// Applying a patch and taking it back on a real file, with a fault at every call: the image is whole or untouched.

#include <gtest/gtest.h>

#include <cerrno>
#include <random>

#include "disc/image/file_error.h"
#include "disc/image/opening.h"
#include "disc/image/sector.h"
#include "support/faulty_files.h"
#include "support/sectors.h"
#include "support/temporary_home.h"
#include "work/edit.h"
#include "work/patch.h"
#include "work/patch_make.h"

namespace kalco::test {
namespace {

constexpr int disc_sectors = 24;

class PatchFaults : public ::testing::TestWithParam<PatchWay> {
protected:
    PatchFaults() {
        std::mt19937 random(3);
        for (int k = 0; k < disc_sectors; ++k) original += as_text(random_sector(SectorKind::form1, random));
        edited = original;
        for (const int sector : {17, 18, 21}) {
            edited.replace(static_cast<std::size_t>(sector * sector_bytes) + 100, 5, "Rossi");
            renew_checks(SectorBytes(reinterpret_cast<std::uint8_t*>(edited.data()) + sector * sector_bytes,
                                     static_cast<std::size_t>(sector_bytes)));
        }
        const std::string a = home.write("a.bin", original);
        const std::string b = home.write("b.bin", edited);
        Image before(open_to_read);
        Image after(open_to_read);
        before.open(a);
        after.open(b);
        make_patch(before, after, "test", [this](std::string_view bytes) { patch += bytes; });
    }

    /// The image of the start, and what the patch makes of it.
    const std::string& start() const { return GetParam() == PatchWay::apply ? original : edited; }
    const std::string& goal() const { return GetParam() == PatchWay::apply ? edited : original; }

    /// True when it was told to be done.
    bool run(int call = 0, CallFault fault = {}) {
        home.write("disc.bin", start());
        files.plan(call, fault);
        try {
            Edit edit(home.path("disc.bin"), false, opener());
            edit.image().open(edit.path());
            if (!write_patch(edit.image(), PpfPatch(patch), GetParam()).empty()) return false;
            edit.commit("Patch");
            return true;
        } catch (const FileError&) {
        } catch (const Killed&) {
        }
        return false;
    }
    /// What the next program finds.
    std::string next_image() {
        files.plan(0);
        {
            Image image(opener());
            image.open(home.path("disc.bin"));
        }
        EXPECT_FALSE(home.has("disc.bin.kalco-journal"));
        return home.read("disc.bin");
    }
    StorageOpener opener() {
        return [this](const std::string& path) { return open_for_saves(files, path, Failures::Kind::file); };
    }

    TemporaryHome home;
    FaultyFiles files;
    std::string original;
    std::string edited;
    std::string patch;
};

INSTANTIATE_TEST_SUITE_P(BothWays, PatchFaults, ::testing::Values(PatchWay::apply, PatchWay::take_back));

TEST_P(PatchFaults, LeaveTheImageWholeOrUntouched) {
    using Kind = CallFault::Kind;
    ASSERT_TRUE(run());
    ASSERT_EQ(home.read("disc.bin"), goal());
    const std::vector<std::string> calls = files.log();
    ASSERT_GT(calls.size(), 10U);
    int done = 0;
    int untouched = 0;
    for (std::size_t k = 0; k < calls.size(); ++k) {
        for (const CallFault& fault : {CallFault{Kind::fails, EIO}, CallFault{Kind::fails, ENOSPC},
                                       CallFault{Kind::killed_before, 0}, CallFault{Kind::killed_after, 0}}) {
            const bool told = run(static_cast<int>(k) + 1, fault);
            const std::string left = next_image();
            ASSERT_TRUE(left == start() || left == goal()) << "call " << k + 1 << ", " << calls[k];
            if (told) {
                ASSERT_EQ(left, goal()) << "call " << k + 1 << ", " << calls[k];
            }
            ++(left == goal() ? done : untouched);
        }
    }
    EXPECT_GT(done, 0);
    EXPECT_GT(untouched, 0);
}

}  // namespace
}  // namespace kalco::test

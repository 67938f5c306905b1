#include <gtest/gtest.h>

#include <cerrno>

#include "disc/image/storage.h"
#include "disc/runtime_error.h"
#include "support/outcome.h"
#include "support/system_faults.h"
#include "support/temporary_home.h"

namespace kalco {
namespace {

using test::error_of;
using test::SystemCall;
using test::SystemFaults;

class FaultyFile : public ::testing::Test {
protected:
    test::TemporaryHome home;
    std::string path = home.write("disc.bin", "abcdefgh");
};

TEST_F(FaultyFile, IsOpenedAgainAfterASignal) {
    const SystemFaults faults(SystemCall::open, {{.error = EINTR}, {.error = EINTR}});
    EXPECT_EQ(open_file(path)->read(0, 8), "abcdefgh");
    EXPECT_EQ(faults.left(), 0U);
}

TEST_F(FaultyFile, IsReadOnAfterASignalAndInPieces) {
    const auto file = open_file(path);
    const SystemFaults faults(SystemCall::read, {{.error = EINTR}, {.at_most = 3}, {.error = EINTR}, {.at_most = 1}});
    EXPECT_EQ(file->read(1, 6), "bcdefg");
    EXPECT_EQ(faults.left(), 0U);
}

TEST_F(FaultyFile, IsWrittenOnAfterASignalAndInPieces) {
    const auto file = open_file(path);
    const SystemFaults faults(SystemCall::write, {{.error = EINTR}, {.at_most = 2}, {.error = EINTR}, {.at_most = 1}});
    file->write(1, "BCDEFG");
    EXPECT_EQ(faults.left(), 0U);
    EXPECT_EQ(home.read("disc.bin"), "aBCDEFGh");
}

TEST_F(FaultyFile, IsBroughtToTheDiskAgainAfterASignal) {
    const auto file = open_file(path);
    const SystemFaults faults(SystemCall::sync, {{.error = EINTR}, {.error = EINTR}});
    EXPECT_EQ(error_of([&] { file->flush(); }), 0);
    EXPECT_EQ(faults.left(), 0U);
}

TEST_F(FaultyFile, FailsWhenAWriteWritesNothing) {
    const auto file = open_file(path);
    const SystemFaults faults(SystemCall::write, {{.at_most = 4}, {.at_most = 0}});
    EXPECT_EQ(error_of([&] { file->write(0, "ABCDEFGH"); }), error::device_io);
    EXPECT_EQ(faults.left(), 0U);
}

TEST_F(FaultyFile, TellsARefusalByItsKind) {
    const auto file = open_file(path);
    for (const int full : {ENOSPC, EDQUOT, EFBIG}) {
        const SystemFaults write_fault(SystemCall::write, {{.error = full}});
        EXPECT_EQ(error_of([&] { file->write(0, "A"); }), error::disk_full);
        const SystemFaults sync_fault(SystemCall::sync, {{.error = full}});
        EXPECT_EQ(error_of([&] { file->flush(); }), error::disk_full);
    }
    for (const int broken : {EIO, ENXIO, EROFS}) {
        const SystemFaults write_fault(SystemCall::write, {{.error = broken}});
        EXPECT_EQ(error_of([&] { file->write(0, "A"); }), error::device_io);
        const SystemFaults sync_fault(SystemCall::sync, {{.error = broken}});
        EXPECT_EQ(error_of([&] { file->flush(); }), error::device_io);
    }
    const SystemFaults read_fault(SystemCall::read, {{.error = EIO}});
    EXPECT_EQ(error_of([&] { file->read(0, 1); }), error::device_io);
}

}  // namespace
}  // namespace kalco

#include "ctl/progress.h"

#include <gtest/gtest.h>

#include <sstream>

namespace kalco::ctl {
namespace {

using namespace std::chrono_literals;

class ProgressTest : public testing::Test {
protected:
    Progress::Clock::time_point time;
    std::ostringstream terminal;
    Progress::Now now = [this] { return time; };
};

TEST_F(ProgressTest, SaysNothingInTheFirstSecond) {
    {
        Progress progress("check", 10, &terminal, now);
        for (int k = 1; k <= 9; ++k) {
            time += 100ms;
            progress(k);
        }
    }
    EXPECT_EQ(terminal.str(), "");
}

TEST_F(ProgressTest, WritesItsLineOverAgainAndTakesItAway) {
    {
        Progress progress("check", 200, &terminal, now);
        time += 1s;
        progress(51);
        progress(52);
        time += 100ms;
        progress(53);
        time += 100ms;
        progress(100);
    }
    EXPECT_EQ(terminal.str(), "\rkalcoctl check: 25 %\rkalcoctl check: 50 %\r\x1b[K");
}

TEST_F(ProgressTest, HidesForOtherOutput) {
    Progress progress("check", 4, &terminal, now);
    progress.hide();
    EXPECT_EQ(terminal.str(), "");
    time += 1s;
    progress(1);
    progress.hide();
    progress.hide();
    EXPECT_EQ(terminal.str(), "\rkalcoctl check: 25 %\r\x1b[K");
}

TEST_F(ProgressTest, SaysNothingWithoutATerminal) {
    Progress progress("check", 4, nullptr, now);
    time += 10s;
    progress(1);
    progress.hide();
}

TEST_F(ProgressTest, TakesWorkOfNoSteps) {
    Progress progress("check", 0, &terminal, now);
    time += 1s;
    progress(0);
    EXPECT_EQ(terminal.str(), "\rkalcoctl check: 0 %");
}

}  // namespace
}  // namespace kalco::ctl

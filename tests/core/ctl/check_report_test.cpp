#include "ctl/check_report.h"

#include <gtest/gtest.h>

namespace kalco::ctl {
namespace {

TEST(CheckReport, ALineForABadSector) {
    const check::BadSector all{1234, {true, true, true}};
    EXPECT_EQ(line_of(all, false), "sector 1234 (00:18:34) at 2902369: EDC, P, Q");
    EXPECT_EQ(line_of(all, true), R"({"sector":1234,"position":2902369,"bad":["edc","p","q"]})");
    EXPECT_EQ(line_of({0, {false, true, false}}, false), "sector 0 (00:02:00) at 1: P");
    EXPECT_EQ(line_of({0, {true, false, true}}, false), "sector 0 (00:02:00) at 1: EDC, Q");
    EXPECT_EQ(line_of({2200000, {false, false, true}}, true),
              R"({"sector":2200000,"position":5174400001,"bad":["q"]})");
}

TEST(CheckReport, ALineAtTheEnd) {
    const check::Summary summary{50, 3, {1, 42, 5, 2}};
    EXPECT_EQ(line_of(summary, false), "50 sectors (1 Mode 1, 42 Mode 2 Form 1, 5 Form 2, 2 others), 3 bad");
    EXPECT_EQ(line_of(summary, true), R"({"sectors":50,"bad":3,"mode1":1,"form1":42,"form2":5,"other":2})");
}

}  // namespace
}  // namespace kalco::ctl

#include "work/container.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace kalco::test {
namespace {

using namespace std::string_literals;

constexpr std::int64_t raw_size = 2404 * 2352;
const std::string sync_mark = "\0\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\0"s;

/// A file of zeroes with some texts in it.
ContainerReport look(std::int64_t size, const std::map<std::int64_t, std::string>& texts,
                     std::int64_t least_sectors = least_disc_sectors) {
    const FileBytes bytes = [&texts](std::int64_t offset, std::size_t count) {
        std::string result(count, '\0');
        for (const auto& [start, text] : texts) {
            for (std::size_t i = 0; i < text.size(); ++i) {
                const std::int64_t place = start + static_cast<std::int64_t>(i) - offset;
                if (place >= 0 && place < static_cast<std::int64_t>(count))
                    result[static_cast<std::size_t>(place)] = text[i];
            }
        }
        return result;
    };
    return look_at_container(size, bytes, least_sectors);
}

bool tells(const ContainerReport& report, const std::string& words) {
    return report.refusal.find(words) != std::string::npos;
}

TEST(Container, TakesARawImage) {
    const ContainerReport report = look(raw_size, {{0, sync_mark}, {2352, sync_mark}, {0x9319, "CD001"}});
    EXPECT_EQ(report.refusal, "");
    EXPECT_TRUE(report.volume_descriptor);
}

TEST(Container, TakesARawImageWithoutAVolumeDescriptor) {
    for (const auto& start : {""s, sync_mark, "garbage"s}) {
        const ContainerReport report = look(raw_size, {{0, start}});
        EXPECT_EQ(report.refusal, "");
        EXPECT_FALSE(report.volume_descriptor);
    }
}

TEST(Container, LooksAtTheVolumeDescriptorBeforeAnythingElse) {
    for (const auto& start : {"MComprHD"s, "ECM\0"s, "\0PBP"s, "PK\3\4"s, "7z\xBC\xAF\x27\x1C"s, sync_mark}) {
        EXPECT_EQ(look(raw_size, {{0, start}, {2448, sync_mark}, {0x9319, "CD001"}, {0x8001, "CD001"}}).refusal, "");
    }
}

TEST(Container, TellsWhatAFileIsAndHowToUnpackIt) {
    EXPECT_TRUE(tells(look(raw_size, {{0x8001, "CD001"}}), "ISO"));
    EXPECT_TRUE(tells(look(raw_size, {{0, "MComprHD"}}), "chdman"));
    EXPECT_TRUE(tells(look(raw_size, {{0, "ECM\0"s}}), "unecm"));
    EXPECT_TRUE(tells(look(raw_size, {{0, "\0PBP"s}}), "PBP"));
    EXPECT_TRUE(tells(look(raw_size, {{0, "PK\3\4"}}), "unzip"));
    EXPECT_TRUE(tells(look(raw_size, {{0, "7z\xBC\xAF\x27\x1C"}}), "7z x"));
}

TEST(Container, TellsAPackedFileOfAnySize) {
    EXPECT_TRUE(tells(look(1000, {{0, "PK\3\4"}}), "unzip"));
    EXPECT_TRUE(tells(look(40001, {{0x8001, "CD001"}}), "ISO"));
}

TEST(Container, FindsSubchannels) {
    EXPECT_TRUE(tells(look(raw_size, {{0, sync_mark}, {2448, sync_mark}}), "2448"));
    EXPECT_TRUE(tells(look(2448 * 3000, {{0, sync_mark}}), "2448"));
    // Of a length that both kinds of sectors divide.
    EXPECT_EQ(look(2448 * 2352, {{0, sync_mark}, {2352, sync_mark}}).refusal, "");
    EXPECT_FALSE(tells(look(2448 * 3000, {}), "2448 bytes a sector"));
}

TEST(Container, RefusesAnOddSize) {
    for (const std::int64_t size : {raw_size - 1, raw_size + 1, raw_size + 2351}) {
        EXPECT_TRUE(tells(look(size, {{0x9319, "CD001"}}), "no multiple of 2352"));
        EXPECT_TRUE(tells(look(size, {}, 0), "no multiple of 2352"));
    }
}

TEST(Container, RefusesAShortImageUnlessItMayBe) {
    EXPECT_TRUE(tells(look(raw_size - 2352, {{0x9319, "CD001"}}), "too short"));
    EXPECT_TRUE(tells(look(0, {}), "too short"));
    EXPECT_EQ(look(raw_size - 2352, {}, 0).refusal, "");
    EXPECT_EQ(look(2352, {}, 0).refusal, "");
}

}  // namespace
}  // namespace kalco::test

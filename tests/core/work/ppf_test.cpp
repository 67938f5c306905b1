#include "work/ppf.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "work/ppf_writer.h"

namespace kalco::test {
namespace {

std::string number(std::uint64_t value, int bytes) {
    std::string text;
    for (int i = 0; i < bytes; ++i) text += static_cast<char>((value >> (8 * i)) & 0xFF);
    return text;
}

std::string described(std::string text) {
    text.resize(ppf_description_bytes, ' ');
    return text;
}

const std::string block(ppf_block_bytes, 'b');

struct Record {
    std::uint64_t offset;
    std::string new_bytes;
    std::string old_bytes = {};
};

std::string records(const std::vector<Record>& list, int offset_bytes) {
    std::string text;
    for (const Record& record : list) {
        text += number(record.offset, offset_bytes) + static_cast<char>(record.new_bytes.size());
        text += record.new_bytes + record.old_bytes;
    }
    return text;
}

std::string head3(bool check, bool undo, char image = 0) {
    return "PPF30\x02" + described("Rossi") + image + static_cast<char>(check) + static_cast<char>(undo) + '\0' +
           (check ? block : "");
}

std::string ppf1(const std::vector<Record>& list) {
    return std::string("PPF10\0", 6) + described("one") + records(list, 4);
}

std::string ppf2(const std::vector<Record>& list) {
    return "PPF20\x01" + described("two") + number(123456, 4) + block + records(list, 4);
}

std::string trailer(const std::string& text, int length_bytes) {
    return "@BEGIN_FILE_ID.DIZ" + text + "@END_FILE_ID.DIZ" + number(text.size(), length_bytes);
}

std::string reason_of(const std::string& file) {
    try {
        PpfPatch patch(file);
        return {};
    } catch (const PpfError& failure) {
        return failure.what();
    }
}

const std::vector<Record> two{{100, "abc"}, {5000, std::string(255, 'x')}};
const std::vector<Record> two_with_undo{{100, "abc", "ABC"}, {5000, std::string(255, 'x'), std::string(255, 'y')}};

void expect_records(const PpfPatch& patch, const std::vector<Record>& list) {
    ASSERT_EQ(patch.records().size(), list.size());
    std::uint64_t bytes = 0;
    for (std::size_t i = 0; i < list.size(); ++i) {
        EXPECT_EQ(patch.records()[i].offset, list[i].offset);
        EXPECT_EQ(patch.records()[i].new_bytes, list[i].new_bytes);
        EXPECT_EQ(patch.records()[i].old_bytes, list[i].old_bytes);
        bytes += list[i].new_bytes.size();
    }
    EXPECT_EQ(patch.bytes(), bytes);
}

TEST(PpfPatch, ReadsTheFirstVersion) {
    const PpfPatch patch(ppf1(two));
    EXPECT_EQ(patch.version(), 1);
    EXPECT_EQ(patch.description(), "one");
    EXPECT_FALSE(patch.has_undo());
    EXPECT_FALSE(patch.block());
    EXPECT_FALSE(patch.source_length());
    expect_records(patch, two);
}

TEST(PpfPatch, ReadsTheSecondVersion) {
    const PpfPatch patch(ppf2(two));
    EXPECT_EQ(patch.version(), 2);
    EXPECT_EQ(patch.description(), "two");
    EXPECT_EQ(patch.source_length(), 123456U);
    EXPECT_EQ(patch.block(), block);
    EXPECT_EQ(patch.image(), PpfImage::bin);
    expect_records(patch, two);
}

TEST(PpfPatch, ReadsTheThirdVersionInEveryForm) {
    for (const bool check : {false, true}) {
        for (const bool undo : {false, true}) {
            for (const char image : {'\0', '\1'}) {
                const auto& list = undo ? two_with_undo : two;
                const PpfPatch patch(head3(check, undo, image) + records(list, 8));
                EXPECT_EQ(patch.version(), 3);
                EXPECT_EQ(patch.description(), "Rossi");
                EXPECT_EQ(patch.has_undo(), undo);
                EXPECT_EQ(patch.image() == PpfImage::gi, image == '\1');
                EXPECT_EQ(patch.block().has_value(), check);
                expect_records(patch, list);
            }
        }
    }
}

TEST(PpfPatch, ReadsATrailerWithALengthOfAnySize) {
    for (const int length_bytes : {0, 2, 4}) {
        const PpfPatch third(head3(false, false) + records(two, 8) + trailer("a text", length_bytes));
        EXPECT_EQ(third.file_id(), "a text");
        expect_records(third, two);
        const PpfPatch second(ppf2(two) + trailer("a text", length_bytes));
        EXPECT_EQ(second.file_id(), "a text");
        expect_records(second, two);
    }
}

TEST(PpfPatch, DoesNotTrustTheLengthOfATrailer) {
    const std::string text = "@BEGIN_FILE_ID.DIZshort@END_FILE_ID.DIZ\xFF\xFF";
    const PpfPatch patch(head3(false, false) + records(two, 8) + text);
    EXPECT_EQ(patch.file_id(), "short");
}

TEST(PpfPatch, KeepsMarksInsideARecord) {
    const std::vector<Record> list{{100, trailer("inside", 2)}, {400, "@END_FILE_ID.DIZ"}};
    expect_records(PpfPatch(head3(false, false) + records(list, 8)), list);
}

TEST(PpfPatch, RefusesWhatIsNoPatch) {
    EXPECT_EQ(reason_of(""), "no PPF patch");
    EXPECT_EQ(reason_of("PPF30"), "no PPF patch");
    EXPECT_EQ(reason_of("PPF40\3" + described("") + records(two, 8)), "no PPF patch");
    EXPECT_EQ(reason_of("PPF30\1" + described("") + records(two, 8)), "a patch of an unknown method");
    std::string odd = head3(false, false) + records(two, 8);
    odd[56] = 2;
    EXPECT_EQ(reason_of(odd), "an unknown image type");
    odd[56] = 0;
    odd[57] = 7;
    EXPECT_EQ(reason_of(odd), "an unknown block check");
    odd[57] = 0;
    odd[58] = 7;
    EXPECT_EQ(reason_of(odd), "an unknown kind of undo data");
}

TEST(PpfPatch, RefusesAPatchWithoutRecords) {
    EXPECT_EQ(reason_of(head3(true, true)), "a patch without records");
    EXPECT_EQ(reason_of(head3(false, false) + trailer("text", 2)), "a patch without records");
}

TEST(PpfPatch, RefusesAnEmptyRecord) {
    EXPECT_EQ(reason_of(head3(false, false) + records({{100, ""}}, 8)), "an empty record at byte 60");
}

TEST(PpfPatch, RefusesAnOffsetBeyondAnyFile) {
    EXPECT_EQ(reason_of(head3(false, false) + records({{~std::uint64_t{0}, "a"}}, 8)),
              "a record beyond any file at byte 60");
    EXPECT_EQ(reason_of(head3(false, false) + records({{0x7FFFFFFFFFFFFFFE, "ab"}}, 8)),
              "a record beyond any file at byte 60");
    EXPECT_EQ(reason_of(head3(false, false) + records({{0x7FFFFFFFFFFFFFFE, "a"}}, 8)), "");
}

// A patch that ends behind a record is whole: the format counts nothing. Everywhere else the cut shows.
TEST(PpfPatch, RefusesAPatchCutAnywhereButBehindARecord) {
    const std::string start = head3(true, true);
    const std::string first = records({two_with_undo[0]}, 8);
    const std::string whole = start + first + records({two_with_undo[1]}, 8) + trailer("text", 2);
    const std::size_t first_end = start.size() + first.size();
    const std::size_t records_end = whole.size() - trailer("text", 2).size();
    const std::size_t marks_end = whole.size() - 2;
    for (std::size_t size = 0; size < whole.size(); ++size) {
        const bool readable = size == first_end || size == records_end || size >= marks_end;
        EXPECT_EQ(reason_of(whole.substr(0, size)).empty(), readable) << size;
    }
}

std::string written(std::string_view description, const std::string& before, const std::string& after,
                    std::uint64_t offset = 0) {
    std::string file;
    PpfWriter writer(
        description, [&file](std::string_view bytes) { file += bytes; }, block);
    writer.add(offset, before, after);
    return file;
}

TEST(PpfWriter, WritesNothingWithoutADifference) {
    EXPECT_EQ(written("", std::string(5000, 'a'), std::string(5000, 'a')), "");
}

TEST(PpfWriter, WritesHeadAndRecord) {
    std::string before(3000, 'a');
    std::string after = before;
    after.replace(10, 3, "xyz");
    EXPECT_EQ(written("Rossi", before, after, 2352), head3(true, true) + number(2362, 8) + std::string("\3xyzaaa"));
}

TEST(PpfWriter, CutsTheDescription) {
    const PpfPatch patch(written(std::string(60, 'd'), "a", "b"));
    EXPECT_EQ(patch.description(), std::string(50, 'd'));
}

TEST(PpfWriter, CutsTheDescriptionInFrontOfACharacter) {
    const std::string start(48, 'd');
    EXPECT_EQ(PpfPatch(written(start + "\u00E9", "a", "b")).description(), start + "\u00E9");
    EXPECT_EQ(PpfPatch(written(start + "d\u00E9", "a", "b")).description(), start + "d");
    EXPECT_EQ(PpfPatch(written(start + "\u20ACd", "a", "b")).description(), start);
    EXPECT_EQ(PpfPatch(written(start + "\xE9\xE9\xE9", "a", "b")).description(), start);
    EXPECT_EQ(PpfPatch(written("\xE9 Latin-1", "a", "b")).description(), "\xE9 Latin-1");
}

TEST(PpfWriter, LeavesEqualBytesOutOfTheRecords) {
    const PpfPatch patch(written("", "aaaaa", "bbabb"));
    expect_records(patch, {{0, "bb", "aa"}, {3, "bb", "aa"}});
}

TEST(PpfWriter, CutsAt255BytesAndAtEverySectorEnd) {
    const std::string before(6000, 'a');
    const std::string after(6000, 'b');
    const PpfPatch patch(written("", before, after, 1000));
    std::uint64_t next = 1000;
    for (const PpfRecord& record : patch.records()) {
        EXPECT_EQ(record.offset, next);
        EXPECT_EQ(record.offset / 2352, (record.end() - 1) / 2352);
        EXPECT_TRUE(record.new_bytes.size() == 255 || record.end() % 2352 == 0 || record.end() == 7000);
        next = record.end();
    }
    EXPECT_EQ(next, 7000U);
    EXPECT_EQ(patch.bytes(), 6000U);
}

TEST(PpfWriter, FindsSingleBytesEverywhere) {
    const std::string before(1200, 'a');
    for (std::size_t place = 0; place < before.size(); ++place) {
        std::string after = before;
        after[place] = 'b';
        const PpfPatch patch(written("", before, after));
        expect_records(patch, {{place, "b", "a"}});
    }
}

TEST(PpfWriter, RefusesStretchesOfTwoLengths) {
    EXPECT_THROW(written("", "ab", "abc"), std::invalid_argument);
    EXPECT_THROW(PpfWriter(
                     "", [](std::string_view) {}, "short"),
                 std::invalid_argument);
}

}  // namespace
}  // namespace kalco::test

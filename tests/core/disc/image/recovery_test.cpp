// What an opening makes of a file that lies where the journal would.

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>

#include "core/disc/image/saved_image.h"
#include "disc/image/file_error.h"
#include "disc/image/stored_file.h"

namespace kalco {
namespace {

using test::CallFault;
using test::FakeFiles;
using test::image_name;
using test::journal_name;
using test::SaveCase;

/// Files as a save leaves them that was killed after its first sector.
FakeFiles interrupted(const SaveCase& save) {
    FakeFiles files;
    files.put(image_name, save.before);
    try {
        Image image(test::opener_on(files));
        image.open(image_name);
        save.write(image);
        // About the image twice, the journal is made, written and synced, the directory opened and synced, a sector.
        files.plan(8, {CallFault::Kind::killed_after, 0});
        image.commit("save");
    } catch (const test::Killed&) {
    }
    files.end_process();
    return files;
}

class Recovery : public ::testing::Test {
protected:
    SaveCase save = test::save_cases()[1];
    FakeFiles files = interrupted(save);

    int opening_error() {
        try {
            Image image(test::opener_on(files));
            image.open(image_name);
            found = image.found();
            return 0;
        } catch (const RuntimeError& failure) {
            return failure.number();
        }
    }
    int save_error() {
        try {
            Image image(test::opener_on(files));
            image.open(image_name);
            image.write(1, "!");
            image.commit("another");
            return 0;
        } catch (const RuntimeError& failure) {
            return failure.number();
        }
    }

    Beside found = Beside::nothing;
};

TEST_F(Recovery, TakesTheSaveBackAndTells) {
    ASSERT_TRUE(files.has(journal_name));
    ASSERT_NE(files.bytes(image_name), save.before);
    ASSERT_NE(files.bytes(image_name), save.after);
    EXPECT_EQ(opening_error(), 0);
    EXPECT_EQ(found, Beside::interrupted_save);
    EXPECT_EQ(files.bytes(image_name), save.before);
    EXPECT_FALSE(files.has(journal_name));
    EXPECT_EQ(opening_error(), 0);
    EXPECT_EQ(found, Beside::nothing);
}

TEST_F(Recovery, IsSyncedBeforeTheJournalGoes) {
    files.plan(0);
    EXPECT_EQ(opening_error(), 0);
    std::vector<std::string> order;
    for (const std::string& call : files.log()) {
        if (call.starts_with("sync") || call.starts_with("remove") || call.starts_with("lock")) order.push_back(call);
    }
    EXPECT_EQ(order, (std::vector<std::string>{"lock disc.bin", "sync disc.bin", std::string("remove ") + journal_name,
                                               "sync ."}));
}

TEST_F(Recovery, SurvivesARenameOfBoth) {
    files.rename(image_name, "other.bin");
    files.rename(journal_name, "other.bin.kalco-journal");
    Image image(test::opener_on(files));
    image.open("other.bin");
    EXPECT_EQ(image.found(), Beside::interrupted_save);
    EXPECT_EQ(files.bytes("other.bin"), save.before);
    EXPECT_EQ(files.count(), 1U);
}

TEST_F(Recovery, RemovesAJournalThatWasNeverFinished) {
    const std::string journal = files.bytes(journal_name);
    const std::string image = files.bytes(image_name);
    for (const std::size_t length : {std::size_t{0}, std::size_t{1}, std::size_t{512}, journal.size() - 1}) {
        files.put(journal_name, journal.substr(0, length));
        EXPECT_EQ(opening_error(), 0);
        EXPECT_EQ(found, Beside::nothing) << "there is nothing to tell";
        EXPECT_FALSE(files.has(journal_name));
        EXPECT_EQ(files.bytes(image_name), image) << "the image was never touched";
    }
}

TEST_F(Recovery, LeavesWhatIsNoJournalAloneAndRefusesSaves) {
    const std::string image = files.bytes(image_name);
    std::string damaged = files.bytes(journal_name);
    damaged[700] = static_cast<char>(damaged[700] ^ 1);
    for (const std::string& content : {std::string("a text\n"), damaged}) {
        files.put(journal_name, content);
        EXPECT_EQ(opening_error(), 0);
        EXPECT_EQ(found, Beside::foreign_file);
        EXPECT_EQ(save_error(), error::path_access);
        EXPECT_EQ(files.bytes(journal_name), content);
        EXPECT_EQ(files.bytes(image_name), image);
    }
}

TEST_F(Recovery, RefusesTheJournalOfAnotherImage) {
    const std::string journal = files.bytes(journal_name);
    std::string longer = files.bytes(image_name) + 'x';
    std::string shorter = files.bytes(image_name);
    shorter.pop_back();
    std::string other = files.bytes(image_name);
    other[5] = static_cast<char>(other[5] ^ 1);
    for (const std::string& image : {longer, shorter, other}) {
        files.put(image_name, image);
        EXPECT_EQ(opening_error(), error::path_access);
        Image opened(test::opener_on(files));
        EXPECT_THROW(opened.open(image_name), JournalOfAnotherImage);
        EXPECT_EQ(files.bytes(image_name), image);
        EXPECT_EQ(files.bytes(journal_name), journal);
        EXPECT_FALSE(files.holds_descriptors());
    }
}

TEST_F(Recovery, KnowsTheImageByItsSavedSectorsAlone) {
    std::string elsewhere = files.bytes(image_name);
    elsewhere[2 * 2352 + 5] = '#';
    files.put(image_name, elsewhere);
    EXPECT_EQ(opening_error(), 0);
    EXPECT_EQ(found, Beside::interrupted_save);
    EXPECT_EQ(files.bytes(image_name)[2 * 2352 + 5], '#');
}

TEST_F(Recovery, TakesEachByteForOldOrNew) {
    // A stop may leave any part of a sector written.
    std::string mixed = save.before;
    for (std::size_t place = 0; place < mixed.size(); place += 3) mixed[place] = save.after[place];
    files.put(image_name, mixed);
    EXPECT_EQ(opening_error(), 0);
    EXPECT_EQ(files.bytes(image_name), save.before);
}

TEST_F(Recovery, ThatCannotRemoveTheJournalRefusesSaves) {
    files.protect_directory();
    EXPECT_EQ(opening_error(), 0);
    EXPECT_EQ(found, Beside::foreign_file);
    EXPECT_EQ(files.bytes(image_name), save.before);
    EXPECT_EQ(save_error(), error::path_access);
    EXPECT_EQ(files.bytes(image_name), save.before);
}

TEST_F(Recovery, CutsAnImageThatHadGrown) {
    for (const std::size_t which : {3U, 4U}) {
        const SaveCase grown = test::save_cases()[which];
        for (int call = 1; call < 30; ++call) {
            FakeFiles grown_files;
            grown_files.put(image_name, grown.before);
            try {
                Image image(test::opener_on(grown_files));
                image.open(image_name);
                grown.write(image);
                grown_files.plan(call, {CallFault::Kind::killed_after, 0});
                image.commit("save");
            } catch (const test::Killed&) {
            }
            const std::string left = test::after_next_opening(grown_files);
            EXPECT_TRUE(left == grown.before || left == grown.after) << grown.name << ' ' << call;
        }
    }
}

TEST_F(Recovery, TellsCommandsWithPathAndReason) {
    const auto message_of = [this] {
        try {
            Image image(test::opener_on(files, Failures::Kind::file));
            image.open(image_name);
            image.write(1, "!");
            image.commit();
            return std::string();
        } catch (const FileError& failure) {
            return std::string(failure.what());
        }
    };
    std::string other = files.bytes(image_name);
    other[5] = static_cast<char>(other[5] ^ 1);
    files.put(image_name, other);
    EXPECT_EQ(message_of(),
              std::string(journal_name) + ": this is the journal of another image's save; nothing was touched");
    files.put(journal_name, "a text");
    EXPECT_EQ(message_of(),
              std::string(journal_name) + ": this is no journal of a save; nothing can be saved while it lies there");
    files.erase(image_name);
    EXPECT_EQ(message_of(), "disc.bin: No such file or directory");
}

TEST_F(Recovery, IsNotNeededToRead) {
    files.plan(0);
    Image image([this](const std::string& path) { return open_for_reading(files, path); });
    image.open(image_name);
    EXPECT_EQ(image.length(), static_cast<std::int64_t>(save.before.size()));
    EXPECT_EQ(image.read(1, static_cast<int>(save.before.size())), save.before);
    EXPECT_TRUE(files.has(journal_name));
    for (const std::string& call : files.log()) {
        const std::string verb = call.substr(0, call.find(' '));
        EXPECT_TRUE(verb == "open" || verb == "read" || verb == "about" || verb == "look") << call;
    }
}

TEST_F(Recovery, ShowsReadersTheImageBeforeTheSaveAtEveryMoment) {
    for (const SaveCase& other : test::save_cases()) {
        for (int call = 1; call < 24; ++call) {
            FakeFiles left;
            left.put(image_name, other.before);
            try {
                Image image(test::opener_on(left));
                image.open(image_name);
                other.write(image);
                left.plan(call, {CallFault::Kind::killed_after, 0});
                image.commit("save");
            } catch (const test::Killed&) {
            }
            left.end_process();
            const bool journal = left.has(journal_name);
            Image image([&left](const std::string& path) { return open_for_reading(left, path); });
            image.open(image_name);
            const std::string seen = image.read(1, static_cast<int>(image.length()));
            EXPECT_TRUE(seen == other.before || (!journal && seen == other.after)) << other.name << ' ' << call;
            EXPECT_EQ(image.read(image.length() + 1, 5000), std::string(5000, '\0'));
        }
    }
}

TEST_F(Recovery, LetsReadersPassByOtherFiles) {
    std::string other = files.bytes(image_name);
    other[5] = static_cast<char>(other[5] ^ 1);
    const std::string journal = files.bytes(journal_name);
    const auto seen = [this] {
        Image image([this](const std::string& path) { return open_for_reading(files, path); });
        image.open(image_name);
        return image.read(1, static_cast<int>(image.length()));
    };
    files.put(image_name, other);
    EXPECT_EQ(seen(), other);
    files.put(journal_name, "a text");
    EXPECT_EQ(seen(), other);
    files.put(journal_name, journal.substr(0, 1000));
    EXPECT_EQ(seen(), other);
}

TEST_F(Recovery, RefusesACommitOfWhatWasOpenedToBeRead) {
    files.erase(journal_name);
    Image image([this](const std::string& path) { return open_for_reading(files, path); });
    image.open(image_name);
    image.write(1, "x");
    EXPECT_EQ(image.changes().size(), 1U) << "what a save would change can be told";
    EXPECT_THROW(image.commit(), FileError);
    EXPECT_NE(files.bytes(image_name)[0], 'x');
}

}  // namespace
}  // namespace kalco

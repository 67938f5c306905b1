#include "disc/image/history.h"

#include <gtest/gtest.h>

#include <random>

#include "core/disc/image/saved_image.h"
#include "support/memory_storage.h"

namespace kalco {
namespace {

using Text = std::optional<std::string>;

class Past : public ::testing::Test {
protected:
    Past() {
        disc.bytes = test::pattern(30 * 2352 + 77);
        image.open("disc.bin");
    }
    void save(ImagePos position, const std::string& bytes, const std::string& what) {
        image.write(position, bytes);
        image.commit(what);
    }

    test::Disc disc;
    Image image{test::opener_of(disc)};
    History history{image};
};

TEST_F(Past, TakesSavesBackOneByOneAndMakesThemAgain) {
    const std::string start = disc.bytes;
    EXPECT_EQ(history.undo(), std::nullopt);
    save(5, "first", "one");
    const std::string first = disc.bytes;
    save(5, "second", "two");
    const std::string second = disc.bytes;
    EXPECT_EQ(*history.undo_text(), "two");
    EXPECT_EQ(history.redo_text(), nullptr);
    EXPECT_EQ(history.undo(), Text("two"));
    EXPECT_EQ(disc.bytes, first);
    EXPECT_EQ(*history.undo_text(), "one");
    EXPECT_EQ(*history.redo_text(), "two");
    EXPECT_EQ(history.undo(), Text("one"));
    EXPECT_EQ(disc.bytes, start);
    EXPECT_EQ(history.undo(), std::nullopt);
    EXPECT_EQ(history.redo(), Text("one"));
    EXPECT_EQ(disc.bytes, first);
    EXPECT_EQ(history.redo(), Text("two"));
    EXPECT_EQ(disc.bytes, second);
    EXPECT_EQ(history.redo(), std::nullopt);
}

TEST_F(Past, ListsItsSaves) {
    EXPECT_EQ(history.size(), 0U);
    save(5, "first", "one");
    save(5, "second", "two");
    save(5, "third", "three");
    history.undo();
    EXPECT_EQ(history.texts(), (std::vector<std::string>{"one", "two", "three"}));
    EXPECT_EQ(history.size(), 3U);
    EXPECT_EQ(history.standing(), 2U);
    history.forget();
    EXPECT_TRUE(history.texts().empty());
    EXPECT_EQ(history.standing(), 0U);
}

/// A disk that fails once a save stands: the journal is gone, and only that is not on the disk.
class LateFailure final : public Storage {
public:
    LateFailure(test::Disc& disc, const bool& fails) : below_(disc), fails_(fails) {}

    std::string read(std::int64_t offset, std::size_t bytes) override { return below_.read(offset, bytes); }
    void write(std::int64_t offset, std::string_view bytes) override { below_.write(offset, bytes); }
    std::int64_t size() override { return below_.size(); }
    void truncate(std::int64_t size) override { below_.truncate(size); }
    void flush() override { below_.flush(); }
    bool keep_journal(const Save& /*save*/) override { return true; }
    void sync_directory() override {
        if (fails_) throw RuntimeError(error::device_io);
    }

private:
    test::MemoryStorage below_;
    const bool& fails_;
};

TEST(LatePast, CountsAStepThatStandsAlthoughItFailed) {
    test::Disc disc;
    disc.bytes = test::pattern(30 * 2352);
    bool fails = false;
    Image image([&](const std::string&) { return std::make_unique<LateFailure>(disc, fails); });
    History history(image);
    image.open("disc.bin");
    const std::string start = disc.bytes;
    fails = true;
    image.write(5, "first");
    EXPECT_THROW(image.commit("one"), RuntimeError);
    EXPECT_EQ(history.standing(), 1U);
    const std::string saved = disc.bytes;
    EXPECT_THROW(history.undo(), RuntimeError);
    EXPECT_EQ(disc.bytes, start);
    EXPECT_EQ(history.standing(), 0U);
    EXPECT_THROW(history.redo(), RuntimeError);
    EXPECT_EQ(disc.bytes, saved);
    fails = false;
    EXPECT_EQ(history.undo(), Text("one"));
    EXPECT_EQ(disc.bytes, start);
}

TEST_F(Past, ForgetsWhatWasTakenBackAtTheNextSave) {
    save(5, "first", "one");
    save(5, "second", "two");
    history.undo();
    save(9, "third", "three");
    EXPECT_EQ(history.redo(), std::nullopt);
    EXPECT_EQ(history.undo(), Text("three"));
    EXPECT_EQ(history.undo(), Text("one"));
    EXPECT_EQ(history.undo(), std::nullopt);
}

TEST_F(Past, CutsAnImageThatHasGrownAndLetsItGrowAgain) {
    const std::string start = disc.bytes;
    save(200000, "far away", "far");
    save(199000, "between", "near");
    const std::string grown = disc.bytes;
    history.undo();
    history.undo();
    EXPECT_EQ(disc.bytes, start);
    history.redo();
    history.redo();
    EXPECT_EQ(disc.bytes, grown);
}

TEST_F(Past, IsASaveOfItsOwn) {
    struct Noting final : ImageObserver {
        void committed(const Save& save) override { texts.push_back(save.what); }
        std::vector<std::string> texts;
    };
    Noting noting;
    image.add_observer(noting);
    save(5, "first", "one");
    history.undo();
    history.redo();
    EXPECT_EQ(noting.texts, (std::vector<std::string>{"one", "Annullato: one", "Ripetuto: one"}));
    EXPECT_EQ(disc.flushes, 3);
}

TEST_F(Past, StaysAsItWasWhenTheDiskFails) {
    save(5, "first", "one");
    const std::string saved = disc.bytes;
    disc.failing_write = disc.writes + 1;
    EXPECT_THROW(history.undo(), RuntimeError);
    EXPECT_EQ(disc.bytes, saved);
    EXPECT_EQ(history.undo(), Text("one"));
    disc.failing_write = disc.writes + 1;
    EXPECT_THROW(history.redo(), RuntimeError);
    EXPECT_EQ(history.redo(), Text("one"));
    EXPECT_EQ(disc.bytes, saved);
}

TEST_F(Past, IsVoidOnceAnotherProgramHasChangedTheSectors) {
    save(5, "first", "one");
    save(9000, "second", "two");
    disc.put(9100, "#");
    const std::string changed = disc.bytes;
    EXPECT_EQ(history.undo(), std::nullopt);
    EXPECT_EQ(disc.bytes, changed);
    EXPECT_EQ(history.undo_text(), nullptr);
    save(5, "third", "three");
    disc.bytes += "longer";
    EXPECT_EQ(history.undo(), std::nullopt);
}

TEST_F(Past, ForgetsTheOldestSavesBeyondItsLimit) {
    History small(image, 3 * 2 * 2352 + 1000);
    for (int k = 0; k < 10; ++k) save(5 + 2352 * k, "abcde", std::to_string(k));
    for (const char* what : {"9", "8", "7"}) EXPECT_EQ(small.undo(), Text(what));
    EXPECT_EQ(small.undo(), std::nullopt);
    EXPECT_EQ(*small.redo_text(), "7");
}

TEST_F(Past, HoldsNoSaveThatIsTooLarge) {
    History small(image, 2 * 2352 + 500);
    save(5, "first", "one");
    save(5, std::string(3 * 2352, 'x'), "large");
    EXPECT_EQ(small.undo(), std::nullopt) << "the one before can't be taken back past it";
}

TEST_F(Past, TellsOfEveryChange) {
    int changes = 0;
    history.changed = [&changes] { ++changes; };
    save(5, "first", "one");
    history.undo();
    history.redo();
    history.forget();
    EXPECT_EQ(changes, 4);
}

TEST_F(Past, LeadsBackToTheStartAndForthToTheEnd) {
    std::mt19937 random(3);
    for (int round = 0; round < 50; ++round) {
        std::vector<std::string> states{disc.bytes};
        history.forget();
        for (int step = 0; step < 20; ++step) {
            for (std::uint32_t writes = random() % 4; writes > 0; --writes) {
                const auto position = static_cast<ImagePos>(1 + random() % (40 * 2352));
                image.write(position, std::string(random() % 3000, static_cast<char>(random())));
            }
            image.commit(std::to_string(step));
            if (disc.bytes != states.back()) states.push_back(disc.bytes);
        }
        for (std::size_t k = states.size() - 1; k > 0; --k) {
            ASSERT_NE(history.undo(), std::nullopt);
            ASSERT_EQ(disc.bytes, states[k - 1]);
        }
        EXPECT_EQ(history.undo(), std::nullopt);
        for (std::size_t k = 1; k < states.size(); ++k) {
            ASSERT_NE(history.redo(), std::nullopt);
            ASSERT_EQ(disc.bytes, states[k]);
        }
        disc.bytes = test::pattern(random() % (30 * 2352));
    }
}

}  // namespace
}  // namespace kalco

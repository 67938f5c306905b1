#include "support/editor_run.h"

#include <algorithm>
#include <utility>

namespace kalco::test {
namespace {

/// Fails at the flush when the run says so.
class FailingFlush final : public Storage {
public:
    FailingFlush(std::unique_ptr<Storage> below, EditorRun& run) : below_(std::move(below)), run_(run) {}

    std::string read(std::int64_t offset, std::size_t bytes) override { return below_->read(offset, bytes); }
    void write(std::int64_t offset, std::string_view bytes) override { below_->write(offset, bytes); }
    std::int64_t size() override { return below_->size(); }
    void truncate(std::int64_t size) override { below_->truncate(size); }
    void flush() override {
        if (run_.flush_failure != 0) throw RuntimeError(run_.flush_failure);
        below_->flush();
    }

private:
    std::unique_ptr<Storage> below_;
    EditorRun& run_;
};

void count_runs(Event& slot, int& count) {
    slot = [routine = std::move(slot), &count] {
        ++count;
        if (routine) routine();
    };
}

}  // namespace

EditorRun::EditorRun(const std::string& image)
    : editor(platform, [this](const std::string& path) -> std::unique_ptr<Storage> {
          return std::make_unique<FailingFlush>(opener_of(disc)(path), *this);
      }) {
    form.image.add_observer(*this);
    disc.bytes = image;
    platform.home = home.path();
    platform.choices.push_back("disc.bin");
    count_runs(form.slots.NAMES_GIOC_NAZ, NAMES_GIOC_NAZ);
    count_runs(form.slots.NAME_NO_CONTACT, NAME_NO_CONTACT);
    count_runs(form.slots.CONTR_NAME_NC, CONTR_NAME_NC);
    user::start(form);
    NAMES_GIOC_NAZ = NAME_NO_CONTACT = CONTR_NAME_NC = 0;
    disc.flushes = 0;
}

void EditorRun::written(ImagePos position, std::string_view bytes) {
    if (!bytes.empty()) log.push_back({position, std::string(bytes)});
}

void EditorRun::pick_text(ComboBox& combo, const std::string& text) {
    const auto found = std::find(combo.items().begin(), combo.items().end(), text);
    ASSERT_NE(found, combo.items().end()) << combo.name() << " has no " << text;
    EXPECT_EQ(user::pick(form, combo, static_cast<int>(found - combo.items().begin())), user::Outcome::done);
}

void EditorRun::import(CommandButton& button, const std::string& contents) {
    platform.choices.push_back(home.write("import.DAT", contents));
    click(button);
}

std::vector<std::string> EditorRun::told() {
    std::vector<std::string> texts;
    for (const FakePlatform::Message& message : platform.messages) texts.push_back(message.text);
    platform.messages.clear();
    return texts;
}

void expect_every_failing_write_to_stop(const std::function<void(EditorRun&)>& prepare,
                                        const std::function<void(EditorRun&)>& save, std::size_t least_writes) {
    EditorRun whole;
    prepare(whole);
    const std::string before = whole.disc.bytes;
    const std::size_t earlier = whole.log.size();
    const int earlier_sectors = whole.disc.writes;
    save(whole);
    EXPECT_GE(whole.log.size() - earlier, least_writes);
    const int sectors = whole.disc.writes - earlier_sectors;
    EXPECT_GE(sectors, 1);
    std::string expected = before;
    for (std::size_t n = earlier; n < whole.log.size(); ++n) put(expected, whole.log[n].position, whole.log[n].bytes);
    EXPECT_TRUE(same_image(whole.disc.bytes, expected));
    for (int n = 1; n <= sectors; ++n) {
        EditorRun run;
        prepare(run);
        run.told();
        run.disc.failing_write = run.disc.writes + n;
        run.disc.failure = n % 2 == 0 ? error::disk_full : error::device_io;
        EXPECT_EQ(error_of([&] { save(run); }), run.disc.failure) << "sector " << n;
        EXPECT_TRUE(same_image(run.disc.bytes, before)) << "sector " << n;
        EXPECT_TRUE(run.told().empty()) << "sector " << n;
    }
}

}  // namespace kalco::test

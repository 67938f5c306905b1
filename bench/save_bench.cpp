// Saves with all that makes them safe, each beside a bare loop of the same transfers and the same number of syncs. The
// loop keeps its files open; what the saves do more is to make the journal, to remove it, and their own work.

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <stdexcept>

#include "bench/bench_desk.h"
#include "disc/image/opening.h"
#include "disc/roster.h"

namespace {

using namespace kalco;

enum class Place { image, journal, directory };

/// One call that moves bytes or brings them to the disk.
struct Call {
    enum class Kind { read, write, sync };
    Kind kind = Kind::sync;
    Place place = Place::image;
    std::int64_t offset = 0;
    std::string bytes;  ///< What is written, or as many bytes as are read.
};

/// The real file system; notes the calls while it is asked to.
class NotingFiles final : public FileSystem {
public:
    std::vector<Call>* notes = nullptr;

    int open(const std::string& path, Access access) override {
        const int fd = below_.open(path, access);
        places_[static_cast<std::size_t>(std::max(fd, 0))] =
            access == Access::directory ? Place::directory : Place::image;
        return fd;
    }
    int create(const std::string& path, unsigned permissions) override {
        const int fd = below_.create(path, permissions);
        places_[static_cast<std::size_t>(std::max(fd, 0))] = Place::journal;
        return fd;
    }
    void close(int fd) override { below_.close(fd); }
    int about(int fd, About& about) override { return below_.about(fd, about); }
    int about_path(const std::string& path, About& about) override { return below_.about_path(path, about); }
    int lock(int fd) override { return below_.lock(fd); }
    std::int64_t read(int fd, char* to, std::size_t bytes, std::int64_t offset) override {
        note({Call::Kind::read, place(fd), offset, std::string(bytes, '\0')});
        return below_.read(fd, to, bytes, offset);
    }
    std::int64_t write(int fd, const char* from, std::size_t bytes, std::int64_t offset) override {
        note({Call::Kind::write, place(fd), offset, std::string(from, bytes)});
        return below_.write(fd, from, bytes, offset);
    }
    int truncate(int fd, std::int64_t size) override { return below_.truncate(fd, size); }
    int sync(int fd) override {
        note({Call::Kind::sync, place(fd), 0, {}});
        return below_.sync(fd);
    }
    int remove(const std::string& path) override { return below_.remove(path); }
    std::string resolved(const std::string& path) override { return below_.resolved(path); }

private:
    void note(Call call) const {
        if (notes != nullptr) notes->push_back(std::move(call));
    }
    Place place(int fd) const { return places_.at(static_cast<std::size_t>(fd)); }

    FileSystem& below_ = system_files();
    std::array<Place, 1024> places_{};
};

/// The same calls with nothing around them.
class BareLoop {
public:
    explicit BareLoop(const test::TemporaryHome& home)
        : fds_{opened(home.path("disc.bin"), O_RDWR), opened(home.path("bare.journal"), O_RDWR | O_CREAT),
               opened(home.path(), O_RDONLY | O_DIRECTORY)} {}
    BareLoop(const BareLoop&) = delete;
    BareLoop& operator=(const BareLoop&) = delete;
    ~BareLoop() {
        for (const int fd : fds_) ::close(fd);
    }

    void run(const std::vector<Call>& calls) {
        for (const Call& call : calls) {
            if (run(call)) continue;
            throw std::runtime_error("a call of the bare loop fails");
        }
    }

private:
    static int opened(const std::string& path, int flags) {
        const int fd = ::open(path.c_str(), flags | O_CLOEXEC, 0600);
        if (fd < 0) throw std::runtime_error(path + " can't be opened");
        return fd;
    }
    bool run(const Call& call) {
        const int fd = fds_[static_cast<std::size_t>(call.place)];
        if (call.kind == Call::Kind::sync) return ::fsync(fd) == 0;
        if (call.kind == Call::Kind::write) {
            return ::pwrite(fd, call.bytes.data(), call.bytes.size(), call.offset) >= 0;
        }
        read_.resize(call.bytes.size());
        return ::pread(fd, read_.data(), read_.size(), call.offset) >= 0;
    }

    std::array<int, 3> fds_;
    std::string read_;
};

/// An editor on a demo image in a file of its own, on the noting file system.
class SavingDesk {
public:
    SavingDesk()
        : editor(platform,
                 [this](const std::string& path) { return open_for_saves(files, path, Failures::Kind::run_time); }) {
        platform.home = home.path();
        demo::write_image(demo::make_demo_disc(1), home.path("disc.bin"), false, [](std::uint32_t) {});
        platform.choices.push_back(home.path("disc.bin"));
        user::start(form);
    }

    /// Times `save`, or the bare loop of the same calls, by the benchmark's argument (0 or 1).
    void compare(benchmark::State& state, const std::function<void()>& save) {
        std::vector<Call> calls;
        files.notes = &calls;
        save();
        files.notes = nullptr;
        const auto count = [&calls](Call::Kind kind) {
            return static_cast<double>(
                std::count_if(calls.begin(), calls.end(), [kind](const Call& call) { return call.kind == kind; }));
        };
        state.counters["writes"] = count(Call::Kind::write);
        state.counters["syncs"] = count(Call::Kind::sync);
        if (state.range(0) == 0) {
            state.SetLabel("the editor");
            for (auto _ : state) {
                save();
                platform.messages.clear();
            }
            return;
        }
        state.SetLabel("bare loop of its " + std::to_string(calls.size()) + " calls");
        form.image.close();
        BareLoop loop(home);
        for (auto _ : state) loop.run(calls);
    }

    test::TemporaryHome home;
    test::FakePlatform platform;
    NotingFiles files;
    Editor editor;
    frmKalco& form = editor.form;
};

// Each save changes what the one before it has written: one without a change does nothing.

void safe_save_of_a_player(benchmark::State& state) {
    SavingDesk desk;
    user::pick(desk.form, desk.form.cboSeqSQ, 10);
    int round = 0;
    desk.compare(state, [&desk, &round] {
        user::pick(desk.form, desk.form.listDat, 7);
        user::pick(desk.form, desk.form.cboVel, ++round % 8);
        user::click(desk.form, desk.form.cmdSaveCar);
    });
}

/// Files of two teams, as the editor exports them.
std::array<std::string, 2> two_team_files(SavingDesk& desk) {
    std::array<std::string, 2> paths;
    for (std::size_t k = 0; k < paths.size(); ++k) {
        user::pick(desk.form, desk.form.cboSeqSQ, 12 + static_cast<int>(k));
        user::click(desk.form, desk.form.cmdExp);
        const std::filesystem::directory_iterator exported(desk.home.path("Export"));
        paths[k] = desk.home.path(std::to_string(k) + ".DAT");
        std::filesystem::rename(exported->path(), paths[k]);
    }
    return paths;
}

void safe_save_of_a_team(benchmark::State& state) {
    SavingDesk desk;
    const auto teams = two_team_files(desk);
    std::size_t round = 0;
    user::pick(desk.form, desk.form.cboSeqSQ, 10);
    desk.compare(state, [&] {
        desk.platform.choices.push_back(teams[++round % 2]);
        user::click(desk.form, desk.form.cmdImp);
        user::click(desk.form, desk.form.cmdSaveCar);
    });
}

void safe_save_of_23_of_the_pool(benchmark::State& state) {
    SavingDesk desk;
    frmKalco& form = desk.form;
    const auto teams = two_team_files(desk);
    std::size_t round = 0;
    user::select_tab(form, tab::league);
    desk.compare(state, [&] {
        user::pick(form, form.cboSqNC, 6);
        for (int row = 20; form.listAppNameNC.count() < roster_players; ++row) {
            user::double_click(form, form.listNC, row);
        }
        desk.platform.choices.push_back(teams[++round % 2]);
        user::click(form, form.cmdImpNC);
        user::click(form, form.cmdSaveNC);
    });
}

BENCHMARK(safe_save_of_a_player)->Arg(0)->Arg(1)->UseRealTime();
BENCHMARK(safe_save_of_a_team)->Arg(0)->Arg(1)->UseRealTime();
BENCHMARK(safe_save_of_23_of_the_pool)->Arg(0)->Arg(1)->UseRealTime();

}  // namespace

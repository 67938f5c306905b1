// The window's own work with real widgets on the offscreen platform: each action with everything it redraws. A frame of
// the screen is 16 ms.

#include <benchmark/benchmark.h>

#include <QApplication>

#include "app/support/test_window.h"
#include "editor/window/user.h"

namespace {

using namespace kalco;

void perform(benchmark::State& state, test::TestWindow& t, const std::function<void()>& action) {
    for (auto _ : state) {
        t.binder().act(action);
        t.window.repaint();
        QApplication::processEvents();
        t.platform.messages.clear();
    }
}

void choose_a_team(benchmark::State& state) {
    const test::DemoHome home;
    test::TestWindow t(home);
    int team = 0;
    perform(state, t, [&] { user::pick(t.form(), t.form().cboSeqSQ, ++team % 54); });
}

void choose_the_list_of_462(benchmark::State& state) {
    const test::DemoHome home;
    test::TestWindow t(home);
    perform(state, t, [&] { user::pick(t.form(), t.form().cboSeqSQ, 95); });
}

void choose_a_player(benchmark::State& state) {
    const test::DemoHome home;
    test::TestWindow t(home);
    t.binder().act([&] { user::pick(t.form(), t.form().cboSeqSQ, 10); });
    int player = 0;
    perform(state, t, [&] { user::pick(t.form(), t.form().listDat, ++player % 23); });
}

/// Faces that were hardly ever drawn before: 462 players with the looks of as many.
void choose_a_player_of_462(benchmark::State& state) {
    const test::DemoHome home;
    test::TestWindow t(home);
    t.binder().act([&] { user::pick(t.form(), t.form().cboSeqSQ, 95); });
    int player = 0;
    perform(state, t, [&] { user::pick(t.form(), t.form().listDat, ++player % 462); });
}

void type_a_letter(benchmark::State& state) {
    const test::DemoHome home;
    test::TestWindow t(home);
    t.binder().act([&] { user::pick(t.form(), t.form().cboSeqSQ, 10); });
    int round = 0;
    perform(state, t, [&] { user::type(t.form(), t.form().txtName, ++round % 2 == 0 ? "Rossi" : "Rosso"); });
}

void move_a_marker(benchmark::State& state) {
    const test::DemoHome home;
    test::TestWindow t(home);
    t.binder().act([&] {
        user::select_tab(t.form(), tab::formations);
        user::pick(t.form(), t.form().cboSeqSQ2, 10);
        user::click(t.form(), t.form().lblGioc(8));
    });
    int round = 0;
    perform(state, t, [&] { user::click(t.form(), ++round % 2 == 0 ? t.form().cmdUp : t.form().cmdDown); });
}

void change_a_number(benchmark::State& state) {
    const test::DemoHome home;
    test::TestWindow t(home);
    t.binder().act([&] {
        user::select_tab(t.form(), tab::numbers);
        user::pick(t.form(), t.form().cboSQNum, 10);
        user::pick(t.form(), t.form().ListName, 4);
    });
    int round = 0;
    perform(state, t, [&] {
        user::type(t.form(), t.form().txtNumMod, ++round % 2 == 0 ? "31" : "32");
        user::click(t.form(), t.form().cmdModNum);
    });
}

void save_a_player(benchmark::State& state) {
    const test::DemoHome home;
    test::TestWindow t(home);
    t.binder().act([&] { user::pick(t.form(), t.form().cboSeqSQ, 10); });
    int round = 0;
    perform(state, t, [&] {
        user::pick(t.form(), t.form().cboVel, ++round % 8);
        user::click(t.form(), t.form().cmdSaveCar);
    });
}

void change_the_tab(benchmark::State& state) {
    const test::DemoHome home;
    test::TestWindow t(home);
    int tab = 0;
    perform(state, t, [&] { user::select_tab(t.form(), ++tab % 6); });
}

BENCHMARK(choose_a_team)->Unit(benchmark::kMillisecond);
BENCHMARK(choose_the_list_of_462)->Unit(benchmark::kMillisecond);
BENCHMARK(choose_a_player)->Unit(benchmark::kMillisecond);
BENCHMARK(choose_a_player_of_462)->Unit(benchmark::kMillisecond);
BENCHMARK(type_a_letter)->Unit(benchmark::kMillisecond);
BENCHMARK(move_a_marker)->Unit(benchmark::kMillisecond);
BENCHMARK(change_a_number)->Unit(benchmark::kMillisecond);
BENCHMARK(save_a_player)->Unit(benchmark::kMillisecond);
BENCHMARK(change_the_tab)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    test::prepare_application();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}

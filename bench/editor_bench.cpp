// The editor's operations, each beside a bare loop of the same reads and writes with no other work.

#include "bench/bench_desk.h"
#include "disc/codec/hextext.h"
#include "disc/player_record.h"
#include "disc/roster.h"
#include "editor/players/linked_names.h"
#include "editor/window/shell.h"

namespace {

using namespace kalco;
using bench::Desk;

void start_up_lists(benchmark::State& state) {
    Desk desk;
    desk.compare(state, [&desk] {
        desk.form.slots.NAMES_GIOC_NAZ();
        desk.form.slots.NAME_NO_CONTACT();
        desk.form.slots.CONTR_NAME_NC();
    });
}

void choose_a_team(benchmark::State& state) {
    Desk desk;
    desk.compare(state, [&desk] { user::pick(desk.form, desk.form.cboSeqSQ, 10); });
}

void choose_the_list_of_462(benchmark::State& state) {
    Desk desk;
    desk.compare(state, [&desk] { user::pick(desk.form, desk.form.cboSeqSQ, default_list.value()); });
}

void show_a_player(benchmark::State& state) {
    Desk desk;
    user::pick(desk.form, desk.form.cboSeqSQ, 10);
    desk.compare(state, [&desk] { user::pick(desk.form, desk.form.listDat, 7); });
}

void save_a_player(benchmark::State& state) {
    Desk desk;
    user::pick(desk.form, desk.form.cboSeqSQ, 10);
    int round = 0;
    desk.compare(state, [&desk, &round] {
        user::pick(desk.form, desk.form.listDat, 7);
        user::pick(desk.form, desk.form.cboVel, ++round % 8);
        user::click(desk.form, desk.form.cmdSaveCar);
    });
}

constexpr Club club{6};

void choose_a_club(benchmark::State& state) {
    Desk desk;
    desk.compare(state, [&desk] { user::pick(desk.form, desk.form.cboSeqSQ, team_of(club).value()); });
}

void resolve_the_links_of_a_club(benchmark::State& state) {
    Desk desk;
    user::pick(desk.form, desk.form.cboSeqSQ, team_of(club).value());
    desk.compare(state, [&desk] { benchmark::DoNotOptimize(NEW_NAME_ML(desk.form, club)); });
}

void choose_a_team_for_its_formation(benchmark::State& state) {
    Desk desk;
    user::select_tab(desk.form, tab::formations);
    desk.compare(state, [&desk] { user::pick(desk.form, desk.form.cboSeqSQ2, 10); });
}

void choose_a_team_for_its_numbers(benchmark::State& state) {
    Desk desk;
    user::select_tab(desk.form, tab::numbers);
    desk.compare(state, [&desk] { user::pick(desk.form, desk.form.cboSQNum, 10); });
}

void choose_a_team_for_its_kickers(benchmark::State& state) {
    Desk desk;
    user::select_tab(desk.form, tab::kickers);
    desk.compare(state, [&desk] { user::pick(desk.form, desk.form.cboSquadra, 10); });
}

void import_numbers(benchmark::State& state) {
    Desk desk;
    user::select_tab(desk.form, tab::numbers);
    user::pick(desk.form, desk.form.cboSQNum, 10);
    const std::string path = desk.home.write("rising.num", "0102030405060708091011121314151617181920212223\r\n");
    desk.compare(state, [&desk, &path] {
        desk.platform.choices.push_back(path);
        user::click(desk.form, desk.form.cmdImpNum);
    });
}

void save_23_of_the_pool(benchmark::State& state) {
    Desk desk;
    user::pick(desk.form, desk.form.cboSeqSQ, 10);
    user::select_tab(desk.form, tab::league);
    const std::vector<std::string> names = desk.form.listDat.items();
    const std::vector<std::string> records = desk.form.listApp.items();
    desk.compare(state, [&desk, &names, &records] {
        frmKalco& form = desk.form;
        // The save before has emptied them.
        form.listDat.assign(names);
        form.listApp.assign(records);
        user::pick(form, form.cboSqNC, 6);
        for (int row = 20; form.listAppNameNC.count() < roster_players; ++row) {
            user::double_click(form, form.listNC, row);
        }
        form.cmdSaveNC.set_enabled(true);
        user::click(form, form.cmdSaveNC);
    });
}

/// Argument 0: decode; 1: pack.
void record(benchmark::State& state) {
    const std::string entry = "56 24 E6 25 8D 85 C6 D2 70 57 65 54";
    if (state.range(0) == 0) {
        state.SetLabel("decode");
        for (auto _ : state) {
            const auto groups = groups_of_entry(entry);
            benchmark::DoNotOptimize(
                decode_player({word_of_group(groups[0]), word_of_group(groups[1]), word_of_group(groups[2])}));
        }
        return;
    }
    state.SetLabel("pack");
    PlayerValues values;
    values.height = 178;
    for (auto _ : state) {
        benchmark::DoNotOptimize(values);
        std::string digits;
        for (const std::int64_t word : pack_player(values)) digits += file_order_digits(word);
        benchmark::DoNotOptimize(digits);
    }
}

BENCHMARK(start_up_lists)->Arg(0)->Arg(1);
BENCHMARK(choose_a_team)->Arg(0)->Arg(1);
BENCHMARK(choose_the_list_of_462)->Arg(0)->Arg(1);
BENCHMARK(show_a_player)->Arg(0)->Arg(1);
BENCHMARK(save_a_player)->Arg(0)->Arg(1);
BENCHMARK(choose_a_club)->Arg(0)->Arg(1);
BENCHMARK(resolve_the_links_of_a_club)->Arg(0)->Arg(1);
BENCHMARK(choose_a_team_for_its_formation)->Arg(0)->Arg(1);
BENCHMARK(choose_a_team_for_its_numbers)->Arg(0)->Arg(1);
BENCHMARK(choose_a_team_for_its_kickers)->Arg(0)->Arg(1);
BENCHMARK(import_numbers)->Arg(0)->Arg(1);
BENCHMARK(save_23_of_the_pool)->Arg(0)->Arg(1);
BENCHMARK(record)->Arg(0)->Arg(1);

}  // namespace

// The sheets' operations on a demo image, each beside a bare read of the sectors that it needs. With fsyncs left out.

#include <benchmark/benchmark.h>

#include <filesystem>
#include <stdexcept>

#include "bench/bench_desk.h"
#include "bench/unsynced_files.h"
#include "ctl/fods/fods_reader.h"
#include "ctl/fods/fods_writer.h"
#include "ctl/table_json.h"
#include "work/csv.h"
#include "work/edit.h"
#include "work/find.h"
#include "work/import_plan.h"
#include "work/report/page.h"
#include "work/report/report.h"
#include "work/sheet_tables.h"
#include "work/sheets/ids.h"

namespace {

using namespace kalco;

const std::string& image_path() {
    static const test::TemporaryHome home;
    static const std::string path = [] {
        demo::write_image(demo::make_demo_disc(1), home.path("disc.bin"), false, [](std::uint32_t) {});
        return home.path("disc.bin");
    }();
    return path;
}

/// Times an operation that opens the image itself, or the bare read of its sheets, by the benchmark's argument.
template <typename Operation>
void compare(benchmark::State& state, Operation operation) {
    const std::string path = image_path();
    state.SetLabel(state.range(0) == 0 ? "the command's work" : "bare read of the sectors");
    for (auto _ : state) {
        Image image(open_to_read);
        image.open(path);
        if (state.range(0) == 0) {
            operation(image);
        } else {
            for (const int sector : sheet_sectors()) {
                benchmark::DoNotOptimize(image.read(ImagePos{sector} * sector_bytes + 1, sector_bytes));
            }
        }
    }
}

Tables all_tables(const DiscBytes& disc) {
    Tables tables;
    for (const Sheet& sheet : sheets()) tables.push_back(table_of(sheet, disc));
    return tables;
}

void export_everything_as_csv(benchmark::State& state) {
    compare(state, [](const Image& image) {
        for (const Table& table : all_tables(read_sheets(image))) benchmark::DoNotOptimize(csv_of_table(table));
    });
}

void export_everything_as_json(benchmark::State& state) {
    compare(state,
            [](const Image& image) { benchmark::DoNotOptimize(ctl::json_of_tables(all_tables(read_sheets(image)))); });
}

void export_everything_as_fods(benchmark::State& state) {
    compare(state,
            [](const Image& image) { benchmark::DoNotOptimize(ctl::fods_of_tables(all_tables(read_sheets(image)))); });
}

void write_the_report(benchmark::State& state) {
    compare(state, [](const Image& image) {
        benchmark::DoNotOptimize(report_page(read_report(read_sheets(image)), "disc.bin"));
    });
}

/// All sheets with another speed for each player.
Tables changed_players() {
    Image image(open_to_read);
    image.open(image_path());
    Tables tables = all_tables(read_sheets(image));
    const Sheet& sheet = *sheet_named(players_sheet);
    const auto column = static_cast<std::size_t>(sheet.column_named("speed") - sheet.columns.data()) + 1;
    for (TableRow& row : tables.front().rows) row.cells[column] = row.cells[column] == "12" ? "13" : "12";
    return tables;
}

/// What an import does behind the reading of its file, into a copy of the image that is the old one each time. The
/// disk's own time is left out.
template <typename Read>
void import(benchmark::State& state, Read read) {
    bench::UnsyncedFiles files;
    const test::TemporaryHome home;
    const std::string path = home.path("disc.bin");
    std::filesystem::copy_file(image_path(), path);
    compare(state, [&](const Image&) {
        Edit edit(path, false,
                  [&files](const std::string& name) { return open_for_saves(files, name, Failures::Kind::file); });
        edit.image().open(path);
        const DiscBytes before = read_sheets(edit.image());
        const ImportPlan plan = plan_import(before, read());
        if (plan.changes.size() < std::size_t{player_rows}) throw std::runtime_error("the import changes too little");
        for (const DiscBytes::Run& run : differences(before, plan.after)) edit.image().write(run.position, run.bytes);
        edit.commit("test");
        for (const FieldChange& change : plan.changes) benchmark::DoNotOptimize(line_of(change));
        state.PauseTiming();
        edit.image().close();
        std::filesystem::copy_file(image_path(), path, std::filesystem::copy_options::overwrite_existing);
        state.ResumeTiming();
    });
}

void import_1911_changed_rows_as_csv(benchmark::State& state) {
    const std::string csv = csv_of_table(changed_players().front());
    import(state, [&csv] { return Tables{table_of_csv(csv)};
});
}  // namespace

/// With all other sheets in the workbook.
void import_1911_changed_rows_as_fods(benchmark::State& state) {
    Tables tables = changed_players();
    const std::string fods = ctl::fods_of_tables(tables);
    import(state, [&fods] { return ctl::tables_of_fods(fods);
});
}

void compare_two_images(benchmark::State& state) {
    compare(state, [](const Image& image) {
        const DiscBytes before = read_sheets(image);
        benchmark::DoNotOptimize(changes_between(before, read_sheets(image)));
    });
}

void find_players_by_name_and_fields(benchmark::State& state) {
    compare(state, [](const Image& image) {
        const FindOptions options{"a", "role = Terzino and speed >= 15 and age < 24", "age"};
        benchmark::DoNotOptimize(find_players(read_sheets(image), options));
    });
}

BENCHMARK(export_everything_as_csv)->DenseRange(0, 1)->Unit(benchmark::kMillisecond);
BENCHMARK(export_everything_as_json)->DenseRange(0, 1)->Unit(benchmark::kMillisecond);
BENCHMARK(export_everything_as_fods)->DenseRange(0, 1)->Unit(benchmark::kMillisecond);
BENCHMARK(import_1911_changed_rows_as_csv)->DenseRange(0, 1)->Unit(benchmark::kMillisecond);
BENCHMARK(import_1911_changed_rows_as_fods)->DenseRange(0, 1)->Unit(benchmark::kMillisecond);
BENCHMARK(write_the_report)->DenseRange(0, 1)->Unit(benchmark::kMillisecond);
BENCHMARK(compare_two_images)->DenseRange(0, 1)->Unit(benchmark::kMillisecond);
BENCHMARK(find_players_by_name_and_fields)->DenseRange(0, 1)->Unit(benchmark::kMillisecond);

}  // namespace

// The sheets' operations on a demo image, each beside a bare read of the sectors that it needs. With fsyncs left out.

#include <benchmark/benchmark.h>

#include "bench/bench_desk.h"
#include "ctl/table_json.h"
#include "work/csv.h"
#include "work/find.h"
#include "work/import_plan.h"
#include "work/sheet_tables.h"

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

/// The players with another speed each, as a CSV.
std::string changed_players() {
    Image image(open_to_read);
    image.open(image_path());
    const DiscBytes disc = read_sheets(image);
    const Sheet& sheet = *sheet_named(players_sheet);
    Table table = table_of(sheet, disc);
    const auto column = static_cast<std::size_t>(sheet.column_named("speed") - sheet.columns.data()) + 1;
    for (TableRow& row : table.rows) row.cells[column] = row.cells[column] == "12" ? "13" : "12";
    return csv_of_table(table);
}

void plan_an_import_of_1911_changed_rows(benchmark::State& state) {
    const std::string csv = changed_players();
    compare(state, [&csv](const Image& image) {
        const ImportPlan plan = plan_import(read_sheets(image), {table_of_csv(csv)});
        for (const FieldChange& change : plan.changes) benchmark::DoNotOptimize(line_of(change));
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
BENCHMARK(plan_an_import_of_1911_changed_rows)->DenseRange(0, 1)->Unit(benchmark::kMillisecond);
BENCHMARK(compare_two_images)->DenseRange(0, 1)->Unit(benchmark::kMillisecond);
BENCHMARK(find_players_by_name_and_fields)->DenseRange(0, 1)->Unit(benchmark::kMillisecond);

}  // namespace

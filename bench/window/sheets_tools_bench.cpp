// The preview of an import that changes all 1,911 players, as the window shows it; with the repaint.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QLineEdit>
#include <stdexcept>

#include "app/support/test_window.h"
#include "app/tools/changes/changes_view.h"
#include "app/tools/sheets/import_dialog.h"
#include "ctl/table_formats.h"
#include "work/sheet_tables.h"

namespace {

using namespace kalco;

/// An image that is only looked at.
class LookingDesk : public app::Desk {
public:
    explicit LookingDesk(const std::string& path) : image_(open_to_read) { image_.open(path); }

    const Image* image() const override { return &image_; }
    QString path() const override { return {}; }
    Saved save(QWidget* /*parent*/, const QString& /*what*/, const Steps& /*steps*/) override { return {}; }
    void show_player(const PlayerPlace& /*place*/) override {}
    void tell(const QString& /*text*/) override {}

private:
    Image image_;
};

/// The sheet of the players with another speed for each.
std::string changed_players(const Image& image, ctl::TableFormat format) {
    const Sheet& sheet = *sheet_named(players_sheet);
    Table table = table_of(sheet, read_sheets(image));
    const auto column = static_cast<std::size_t>(sheet.column_named("speed") - sheet.columns.data()) + 1;
    for (TableRow& row : table.rows) row.cells[column] = row.cells[column] == "12" ? "13" : "12";
    return ctl::file_of_tables({table}, format);
}

void show(QWidget& dialog) {
    dialog.show();
    dialog.repaint();
    QApplication::processEvents();
}

void check(app::ImportDialog& dialog) {
    const auto& changes = dialog.findChild<app::ChangesView*>()->model().changes();
    if (changes.size() < std::size_t{1911}) throw std::runtime_error("the import changes too little");
}

/// From the tables of a file that was read to the rows on the screen, in a dialog that is made anew each time.
void open_the_preview(benchmark::State& state) {
    const test::DemoHome home;
    LookingDesk desk(home.image());
    const Tables tables = ctl::tables_of_file(changed_players(*desk.image(), ctl::TableFormat::csv));
    for (auto _ : state) {
        app::ImportDialog dialog(desk, {QStringLiteral("players.csv"), tables, {}});
        show(dialog);
        state.PauseTiming();
        check(dialog);
        dialog.hide();
        state.ResumeTiming();
    }
}

/// The same in the open dialog, as it follows the image.
void plan_anew(benchmark::State& state) {
    const test::DemoHome home;
    LookingDesk desk(home.image());
    app::ImportDialog dialog(desk, {QStringLiteral("players.csv"),
                                    ctl::tables_of_file(changed_players(*desk.image(), ctl::TableFormat::csv)),
                                    {}});
    show(dialog);
    for (auto _ : state) {
        Q_EMIT desk.image_changed();
        dialog.repaint();
        QApplication::processEvents();
    }
    check(dialog);
}

/// What comes before: the reading of the file's bytes.
void read_the_file(benchmark::State& state) {
    const test::DemoHome home;
    const LookingDesk desk(home.image());
    const auto format = state.range(0) == 0 ? ctl::TableFormat::csv : ctl::TableFormat::fods;
    state.SetLabel(state.range(0) == 0 ? "CSV" : "FODS");
    const std::string bytes = changed_players(*desk.image(), format);
    for (auto _ : state) benchmark::DoNotOptimize(ctl::tables_of_file(bytes));
}

/// One more letter in the filter over the 1,911 rows.
void filter_the_preview(benchmark::State& state) {
    const test::DemoHome home;
    LookingDesk desk(home.image());
    app::ImportDialog dialog(desk, {QStringLiteral("players.csv"),
                                    ctl::tables_of_file(changed_players(*desk.image(), ctl::TableFormat::csv)),
                                    {}});
    show(dialog);
    auto& filter = *dialog.findChild<QLineEdit*>(QStringLiteral("editFilter"));
    int round = 0;
    for (auto _ : state) {
        filter.setText(++round % 2 == 0 ? QStringLiteral("a") : QStringLiteral("ar"));
        dialog.repaint();
        QApplication::processEvents();
    }
}

BENCHMARK(open_the_preview)->Unit(benchmark::kMillisecond);
BENCHMARK(plan_anew)->Unit(benchmark::kMillisecond);
BENCHMARK(read_the_file)->DenseRange(0, 1)->Unit(benchmark::kMillisecond);
BENCHMARK(filter_the_preview)->Unit(benchmark::kMillisecond);

}  // namespace

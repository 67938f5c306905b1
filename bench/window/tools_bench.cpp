// What the tools' windows cost beside the editor's, with everything they redraw: cpu is the processor's time, all
// threads together, which other work on the machine disturbs little.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QPixmapCache>
#include <QtTest/qtestkeyboard.h>
#include <algorithm>
#include <array>

#include "app/support/search.h"
#include "bench/best.h"

namespace {

using namespace kalco;

/// The first opening: no portrait has been drawn.
void open_the_search(benchmark::State& state) {
    const test::DemoHome home;
    bench::Best best;
    for (auto _ : state) {
        state.PauseTiming();
        test::TestWindow t(home);
        QPixmapCache::clear();
        state.ResumeTiming();
        best.measure([&] {
            const test::Search search(t);
            search.window().repaint();
            QApplication::processEvents();
        });
        state.PauseTiming();
        t.window.close();
        state.ResumeTiming();
    }
    state.counters["cpu_ms"] = best.work() * 1000 / CLOCKS_PER_SEC;
}

/// A letter more or less in the filter, up to the frame that shows it, in a search that has just been opened: the rows
/// that come have portraits that were not drawn before.
void type_in_the_search(benchmark::State& state) {
    const test::DemoHome home;
    constexpr std::array keys{Qt::Key_A, Qt::Key_R, Qt::Key_I, Qt::Key_Backspace, Qt::Key_Backspace, Qt::Key_Backspace};
    std::array<bench::Best, keys.size()> letters;
    for (auto _ : state) {
        state.PauseTiming();
        QPixmapCache::clear();
        {
            test::TestWindow t(home);
            const test::Search search(t);
            auto& name = search.field<QLineEdit>("fieldName");
            for (std::size_t i = 0; i < keys.size(); ++i) {
                QApplication::processEvents();
                state.ResumeTiming();
                letters[i].measure([&] {
                    QTest::keyClick(&name, keys[i]);
                    search.window().repaint();
                });
                state.PauseTiming();
            }
        }
        state.ResumeTiming();
    }
    double most = 0;
    for (const bench::Best& letter : letters) most = std::max(most, letter.work() * 1000 / CLOCKS_PER_SEC);
    state.SetLabel("six letters");
    state.counters["dearest_letter_cpu_ms"] = most;
}

BENCHMARK(open_the_search)->Unit(benchmark::kMillisecond)->Iterations(10);
BENCHMARK(type_in_the_search)->Unit(benchmark::kMillisecond)->Iterations(10);

}  // namespace

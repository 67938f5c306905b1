#include <QApplication>
#include <QtTest>
#include <algorithm>

#include "app/support/search.h"
#include "app/support/test_list.h"
#include "work/sheets/ids.h"

using namespace kalco;

/// The players with a tick side by side.
class TestToolsSearchCompares : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { test::prepare_application(); }

    void two_and_three_stand_side_by_side() {
        test::TestWindow t(home_);
        const test::Search search(t);
        const auto& model = dynamic_cast<const app::PlayersModel&>(*search.table().model());
        search.tick(5);
        QVERIFY(!search.comparison().isVisible());
        search.type_name(QStringLiteral("ar"));
        search.tick(search.players().at(10));
        QVERIFY(search.comparison().isVisible());
        check_comparison(search, model);
        search.press("buttonReset");
        search.tick(1700);
        QCOMPARE(search.comparison().model()->columnCount(), 3);
        check_comparison(search, model);
        search.tick(6);
        QCOMPARE(search.comparison().model()->columnCount(), 3);
        QCOMPARE(search.told(), QStringLiteral("Si confrontano al più 3 giocatori: togline prima uno."));
        search.tick(5);
        QCOMPARE(model.ticked().size(), 2U);
        check_comparison(search, model);
        search.comparison().setFocus();
        search.comparison().setCurrentIndex(search.comparison().model()->index(4, 1));
        search.key(search.comparison(), Qt::Key_Return);
        QCOMPARE(t.form().listDat.row(), 1700 - roster_rows);
        search.window().activateWindow();
        QApplication::processEvents();
        search.key(search.comparison(), Qt::Key_Delete);
        QVERIFY(!search.comparison().isVisible());
        search.tick(1700);
        search.press("buttonEmpty");
        QVERIFY(model.ticked().empty() && !search.comparison().isVisible());
    }

    void a_click_on_the_tick_is_one() {
        test::TestWindow t(home_);
        const test::Search search(t);
        const auto& model = dynamic_cast<const app::PlayersModel&>(*search.table().model());
        for (const std::size_t ticked : {1U, 0U}) {
            const QRect cell = search.table().visualRect(model.index(2, 0));
            QTest::mouseClick(search.table().viewport(), Qt::LeftButton, {},
                              QPoint(cell.left() + 9, cell.center().y()));
            QCOMPARE(model.ticked().size(), ticked);
        }
    }

private:
    /// Every value of the ticked ones, with a star at the best where there is a worse one.
    static void check_comparison(const test::Search& search, const app::PlayersModel& model) {
        using enum app::player_column::Column;
        const QAbstractItemModel& shown = *search.comparison().model();
        QCOMPARE(shown.rowCount(), static_cast<int>(count));
        int stars = 0;
        for (int row = team; row < count; ++row) {
            QList<int> numbers;
            for (const int player : model.ticked()) {
                const QString text = app::text_of(model.report(), model.player(player), row);
                if (!text.isEmpty()) numbers << text.toInt();
            }
            const bool less = row == age || row == cost;
            const bool ranked = app::player_column::is_skill(row) || row == height || less;
            const bool differ =
                !numbers.isEmpty() && *std::ranges::max_element(numbers) != *std::ranges::min_element(numbers);
            const int best = numbers.isEmpty() ? 0
                             : less            ? *std::ranges::min_element(numbers)
                                               : *std::ranges::max_element(numbers);
            for (int place = 0; place < shown.columnCount(); ++place) {
                const ReportPlayer& player = model.player(model.ticked().at(static_cast<std::size_t>(place)));
                const QString value =
                    row == role ? QString::fromStdString(player.role) : app::text_of(model.report(), player, row);
                const bool star = ranked && differ && !value.isEmpty() && value.toInt() == best;
                const QModelIndex cell = shown.index(row, place);
                QCOMPARE(cell.data().toString(), star ? QStringLiteral("★ ") + value : value);
                QCOMPARE(cell.data(Qt::FontRole).value<QFont>().bold(), star);
                stars += star ? 1 : 0;
            }
        }
        QVERIFY(stars > 5);
    }

    test::DemoHome home_;
};

KALCO_WINDOW_TEST(TestToolsSearchCompares)
#include "test_tools_search_compares.moc"

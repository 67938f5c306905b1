#include <QScrollBar>
#include <QtTest>
#include <algorithm>

#include "app/support/dialogs.h"
#include "app/support/search.h"
#include "app/support/test_list.h"
#include "app/text.h"
#include "app/tools/search/player_delegate.h"
#include "app/widgets/portrait_view.h"
#include "editor/window/user.h"
#include "work/sheets/ids.h"

using namespace kalco;

/// The search for players follows the editor's saves and images, and its own rows with their portraits.
class TestToolsSearchFollows : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { test::prepare_application(); }
    void init() { home_ = std::make_unique<test::DemoHome>(); }

    void it_follows_a_save_and_its_undo() {
        test::TestWindow t(*home_);
        const test::Search search(t);
        search.pick("comboTeam", 1 + 10);
        search.sort_by(app::player_column::first_skill);
        search.type_name(QStringLiteral("a"));
        const std::vector<int> players = search.players();
        const int player = players.at(3);
        search.choose(player, 2);
        const std::string was = rename(t, player, "Zabaz");
        QCOMPARE(search.chosen(), player);
        QCOMPARE(search.table().currentIndex().column(), 2);
        QCOMPARE(search.players(), players);
        QCOMPARE(search.column(0)[3], QStringLiteral("Zabaz"));
        rename(t, player, "Zobez");
        QVERIFY(std::ranges::count(search.players(), player) == 0);
        QCOMPARE(search.chosen(), -1);
        for (int i = 0; i < 2; ++i) test::choose_menu(t.window, QStringLiteral("Modifica"), QStringLiteral("Annulla"));
        QCOMPARE(search.players(), players);
        QCOMPARE(search.column(0)[3], app::qt_text(was));
        QVERIFY(!t.failure);
    }

    void the_comparison_follows_a_save() {
        test::TestWindow t(*home_);
        const test::Search search(t);
        for (const int player : {240, 250}) search.tick(player);
        rename(t, 250, "Zabaz");
        const QAbstractItemModel& shown = *search.comparison().model();
        QVERIFY(search.comparison().isVisible());
        QCOMPARE(shown.headerData(0, Qt::Horizontal).toString(), search.column(0)[240]);
        QCOMPARE(shown.headerData(1, Qt::Horizontal).toString(), QStringLiteral("Zabaz"));
    }

    void every_row_in_view_gets_its_portrait() {
        test::TestWindow t(*home_);
        const test::Search search(t);
        const auto& model = dynamic_cast<const app::PlayersModel&>(*search.table().model());
        for (const char* text : {"", "ar", "o"}) {
            search.type_name(QString::fromLatin1(text));
            const int last = search.table().rowAt(search.table().viewport()->height() - 20);
            QVERIFY(last > 10);
            for (int row = 0; row < last; ++row) {
                const Looks& looks = model.player(model.player_in(row)).looks;
                QTRY_VERIFY2(shows(search.table(), row, looks), text);
            }
        }
    }

    void it_stays_scrolled_as_it_was() {
        test::TestWindow t(*home_);
        const test::Search search(t);
        search.choose(40);
        search.table().verticalScrollBar()->setValue(700);
        rename(t, 900, "Zabaz");
        QCOMPARE(search.table().verticalScrollBar()->value(), 700);
        QCOMPARE(search.chosen(), 40);
    }

    void it_follows_a_sheet_sorted_by_what_changes() {
        test::TestWindow t(*home_);
        const test::Search search(t);
        search.sort_by(app::player_column::name);
        const int player = search.players().back();
        search.choose(player);
        rename(t, player, "Aaaaaa");
        QCOMPARE(search.players().front(), player);
        QCOMPARE(search.chosen(), player);
    }

    void an_image_that_goes_leaves_nothing() {
        test::TestWindow t(*home_);
        const test::Search search(t);
        search.type_name(QStringLiteral("ar"));
        search.pick("comboTeam", 4);
        const std::vector<int> players = search.players();
        open_image(t, home_->path() + "/none.bin");
        QVERIFY(search.players().empty());
        QCOMPARE(search.told(), QStringLiteral("Nessuna immagine è aperta."));
        QVERIFY(!search.field<QAbstractButton>("buttonGo").isEnabled());
        search.key(search.table(), Qt::Key_Return);
        search.key(search.table(), Qt::Key_Space);
        search.type_name(QStringLiteral("ar"));
        open_image(t, home_->image());
        QCOMPARE(search.players(), players);
        QVERIFY(!t.failure);
    }

private:
    /// Whether the middle of a portrait stands in the name's cell.
    static bool shows(QTableView& table, int row, const Looks& looks) {
        constexpr int side = app::PlayerDelegate::portrait_side;
        constexpr QRect middle(side / 2 - 5, side / 2 - 5, 10, 10);
        const auto format = QImage::Format_RGB32;
        const QImage face = app::portrait_picture(looks, side, 1).toImage().copy(middle).convertToFormat(format);
        const QRect cell = table.visualRect(table.model()->index(row, app::player_column::name));
        const QImage shown = table.viewport()->grab(cell).toImage().convertToFormat(format);
        const int top = (cell.height() - side) / 2 + middle.top();
        for (int left = 0; left < cell.width() / 2; ++left) {
            for (const int y : {top - 1, top, top + 1}) {
                if (shown.copy(QRect(QPoint(left, y), middle.size())) == face) return true;
            }
        }
        return false;
    }

    /// Saves another name on the first tab; gives the one before.
    static std::string rename(test::TestWindow& t, int player, const std::string& name) {
        const auto place = std::get<RosterPlace>(place_of_row(player));
        frmKalco& form = t.form();
        std::string was;
        t.binder().act([&] {
            user::select_tab(form, tab::players);
            user::pick(form, form.cboSeqSQ, place.team.value());
            user::pick(form, form.listDat, place.player);
            was = form.txtName.text();
            user::type(form, form.txtName, name);
        });
        t.click(form.cmdSaveCar);
        return was;
    }

    static void open_image(test::TestWindow& t, const std::string& path) {
        t.platform.choices.push_back(path);
        t.click(t.form().cmdOpen);
    }

    std::unique_ptr<test::DemoHome> home_;
};

KALCO_WINDOW_TEST(TestToolsSearchFollows)
#include "test_tools_search_follows.moc"

#include <QtTest>
#include <algorithm>
#include <numeric>

#include "app/support/search.h"
#include "app/support/test_list.h"
#include "work/find.h"
#include "work/report/report.h"
#include "work/sheets/ids.h"
#include "work/sheets/sheets.h"

using namespace kalco;

/// The search for players: what it shows, and in which order.
class TestToolsSearch : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { test::prepare_application(); }
    void init() { home_ = std::make_unique<test::DemoHome>(); }

    void it_shows_every_player() {
        test::TestWindow t(*home_);
        const test::Search search(t);
        QCOMPARE(search.told(), QStringLiteral("1911 di 1911 giocatori"));
        std::vector<int> all(static_cast<std::size_t>(player_rows));
        std::iota(all.begin(), all.end(), 0);
        QCOMPARE(search.players(), all);
        QCOMPARE(search.table().model()->columnCount(), 7 + 16);
        const Report report = read_report(read_sheets(t.form().image));
        const int player = row_of_place(RosterPlace{Team(10), 9});
        const ReportPlayer& expected = report.players[static_cast<std::size_t>(player)];
        QStringList texts;
        for (int column = 0; column < 23; ++column) texts << search.column(column)[player];
        QStringList wanted{QString::fromStdString(expected.name), QString::fromStdString(report.teams[10].title)};
        wanted << texts[app::player_column::role] << QString::fromStdString(expected.age)
               << QString::fromStdString(expected.height) << QString::fromStdString(expected.foot);
        for (const int skill : expected.skills) wanted << QString::number(skill);
        wanted << QString::fromStdString(expected.cost);
        QCOMPARE(texts, wanted);
        const QModelIndex role = search.table().model()->index(player, app::player_column::role);
        QCOMPARE(role.data(Qt::AccessibleTextRole).toString().section(u',', 0, 0),
                 QString::fromStdString(expected.role));
        QCOMPARE(search.column(app::player_column::team).back(), QStringLiteral("No-Contact"));
    }

    void a_part_of_the_name_filters() {
        test::TestWindow t(*home_);
        const DiscBytes disc = read_sheets(t.form().image);
        const test::Search search(t);
        for (const char* text : {"ar", "AR", "quarin", "SOLQUARÍN", "o'", "zzzz", " ar ", ""}) {
            search.type_name(QString::fromUtf8(text));
            const QString part = QString::fromUtf8(text).trimmed();
            const std::vector<int> expected = find_players(disc, {part.toStdString(), "", ""});
            QVERIFY2(search.players() == expected, text);
            QCOMPARE(search.told(), QStringLiteral("%1 di 1911 giocatori").arg(expected.size()));
        }
    }

    void every_team_filters() {
        test::TestWindow t(*home_);
        const Report report = read_report(read_sheets(t.form().image));
        const test::Search search(t);
        auto& combo = search.field<QComboBox>("comboTeam");
        QCOMPARE(combo.count(), 1 + Team::count);
        for (const Team team : every<Team>()) {
            combo.setFocus();
            QTest::keyClick(&combo, Qt::Key_Down);
            QVERIFY2(search.players() == players_of(report, team), qPrintable(combo.currentText()));
        }
        QCOMPARE(search.players().size(), std::size_t{PoolRow::count});
    }

    void every_role_filters() {
        test::TestWindow t(*home_);
        const DiscBytes disc = read_sheets(t.form().image);
        const test::Search search(t);
        auto& combo = search.field<QComboBox>("comboRole");
        std::size_t all = 0;
        for (int row = 1; row < combo.count(); ++row) {
            search.pick("comboRole", row);
            const std::string where = "role = \"" + combo.currentText().toStdString() + '"';
            QVERIFY2(search.players() == find_players(disc, {"", where, ""}), where.c_str());
            all += search.players().size();
        }
        QCOMPARE(combo.count(), 9);
        QCOMPARE(all, std::size_t{player_rows});
    }

    void least_skills_filter() {
        test::TestWindow t(*home_);
        const DiscBytes disc = read_sheets(t.form().image);
        const test::Search search(t);
        for (std::size_t skill = 0; skill < skill_count; ++skill) {
            search.pick("comboSkill_1", static_cast<int>(skill) + 1);
            for (const int row : {4, 7}) {
                search.pick("comboLeast_1", row);
                const std::string where = std::string(skill_bits[skill].name) + " >= " + std::to_string(12 + row);
                QVERIFY2(search.players() == find_players(disc, {"", where, ""}), where.c_str());
            }
        }
        // Several at once, and the strictest of two about the same skill.
        search.pick("comboSkill_1", 5);
        search.pick("comboLeast_1", 4);
        search.pick("comboSkill_2", 6);
        search.pick("comboLeast_2", 3);
        search.pick("comboSkill_3", 5);
        search.pick("comboLeast_3", 2);
        search.pick("comboSkill_4", 13);
        QCOMPARE(search.players(),
                 find_players(disc, {"", "speed >= 16 and acceleration >= 15 and dribbling >= 16", ""}));
        search.pick("comboRole", 8);
        search.type_name(QStringLiteral("a"));
        QCOMPARE(search.players(),
                 find_players(
                     disc, {"a", "speed >= 16 and acceleration >= 15 and dribbling >= 16 and role = Centravanti", ""}));
        search.press("buttonReset");
        QCOMPARE(search.told(), QStringLiteral("1911 di 1911 giocatori"));
        QVERIFY(!search.field<QComboBox>("comboLeast_1").isEnabled());
        QVERIFY(search.field<QLineEdit>("fieldName").hasFocus());
    }

    void every_column_sorts_both_ways() {
        test::TestWindow t(*home_);
        const test::Search search(t);
        const std::vector<int> disc_order = search.players();
        for (int column = 0; column < app::player_column::count; ++column) {
            const QString caption = app::caption_of(column);
            search.sort_by(column);
            const QStringList once = search.column(column);
            QVERIFY2(is_stable(search, column), qPrintable(caption));
            search.sort_by(column);
            const QStringList twice = search.column(column);
            QVERIFY2(is_stable(search, column), qPrintable(caption));
            const bool up = rises(once, column) && rises(reversed(twice), column);
            const bool down = rises(reversed(once), column) && rises(twice, column);
            QVERIFY2(up != down, qPrintable(caption));
            // What one looks for is high.
            QCOMPARE(down, app::player_column::is_skill(column) || caption == u"Altezza" || caption == u"Costo");
            search.sort_by(column);
            QVERIFY2(search.players() == disc_order, qPrintable(caption));
        }
    }

    void a_missing_cost_comes_last() {
        test::TestWindow t(*home_);
        const test::Search search(t);
        for (int i = 0; i < 2; ++i) {
            search.sort_by(app::player_column::cost);
            const QStringList costs = search.column(app::player_column::cost);
            QCOMPARE(costs.count(QString()), 9 * 23);
            QCOMPARE(costs.indexOf(QString()), 1911 - 9 * 23);
        }
    }

    void equals_keep_the_order_of_the_column_before() {
        test::TestWindow t(*home_);
        const test::Search search(t);
        search.sort_by(app::player_column::name);
        search.sort_by(app::player_column::foot);
        const QStringList feet = search.column(app::player_column::foot);
        const QStringList names = search.column(app::player_column::name);
        int equals = 0;
        for (int row = 1; row < feet.size(); ++row) {
            if (feet[row] != feet[row - 1]) continue;
            ++equals;
            QVERIFY(folded(names[row - 1].toStdString()) <= folded(names[row].toStdString()));
        }
        QVERIFY(equals > 1800);
    }

private:
    static std::vector<int> players_of(const Report& report, Team team) {
        std::vector<int> players;
        for (int player = 0; player < player_rows; ++player) {
            const auto& linked = report.teams[team.place()].players;
            const bool plays = std::ranges::find(linked, std::optional(player)) != linked.end();
            if (team == default_list ? player >= roster_rows : plays) players.push_back(player);
        }
        return players;
    }

    static QStringList reversed(QStringList texts) {
        // Without those that come last both ways.
        texts.removeAll(QString());
        std::ranges::reverse(texts);
        return texts;
    }

    /// The column's texts: numbers by value, roles as the first tab lists them, others by their letters.
    static bool rises(QStringList texts, int column) {
        using enum app::player_column::Column;
        static const QStringList roles{"P", "TER", "DC", "CC", "CL", "CO", "AL", "CA"};
        static const QStringList feet{"Destro", "Sinistro", "Ambi"};
        texts.removeAll(QString());
        return std::ranges::is_sorted(texts, [column](const QString& a, const QString& b) {
            if (column == role) return roles.indexOf(a) < roles.indexOf(b);
            if (column == foot) return feet.indexOf(a) < feet.indexOf(b);
            if (column > team) return a.toInt() < b.toInt();
            const bool pool = a == u"No-Contact" || b == u"No-Contact";
            if (column == team && pool) return a != u"No-Contact" && b == u"No-Contact";
            return folded(a.toStdString()) < folded(b.toStdString());
        });
    }

    /// Equals stand in the disc's order.
    static bool is_stable(const test::Search& search, int column) {
        const QStringList texts = search.column(column);
        const std::vector<int> players = search.players();
        for (int row = 1; row < texts.size(); ++row) {
            const auto place = static_cast<std::size_t>(row);
            if (texts[row] == texts[row - 1] && players[place] < players[place - 1]) return false;
        }
        return true;
    }

    std::unique_ptr<test::DemoHome> home_;
};

KALCO_WINDOW_TEST(TestToolsSearch)
#include "test_tools_search.moc"

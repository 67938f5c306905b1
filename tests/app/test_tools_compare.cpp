#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QTreeView>
#include <QtTest>

#include "app/support/test_list.h"
#include "app/support/tool_desk.h"
#include "app/tools/changes/changes_view.h"
#include "app/tools/compare/compare_dialog.h"
#include "ctl/table_formats.h"
#include "ctl/table_json.h"
#include "disc/image/opening.h"
#include "support/faulty_files.h"
#include "work/sheet_tables.h"

using namespace kalco;

namespace {

using test::bytes_of;
using test::child;
using test::rows_of;

struct CompareDesk : test::ToolDesk {
    using ToolDesk::ToolDesk;

    app::CompareDialog* dialog() { return t.window.findChild<app::CompareDialog*>(); }
    app::CompareDialog& compare(const QString& other) {
        answers.choose(other);
        choose("Confronta con un'altra immagine");
        if (dialog() == nullptr) throw std::logic_error("the comparison did not open");
        return *dialog();
    }
    app::ChangesModel& changes() { return dialog()->findChild<app::ChangesView*>()->model(); }
    QString label(const char* name) { return child<QLabel>(*dialog(), name).text(); }
    QPushButton& button(const char* name) { return child<QPushButton>(*dialog(), name); }

    /// Two bars of Italy, a name of a club, and a byte of nobody's.
    QString other_image() {
        return copy_with(
            "altra.bin",
            {{"bars", "t10", "offense", "\xC8"}, {"bars", "t10", "speed", "\xC9"}, {"teams", "t70", "short", "XYZ"}},
            "?!");
    }
};

}  // namespace

/// The comparison with another image, as from the menu.
class TestToolsCompare : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { test::prepare_application(); }

    void differences_are_shown_by_team() {
        CompareDesk desk;
        const QString other = desk.other_image();
        const QByteArray before = bytes_of(other);
        desk.compare(other);
        const QStringList rows = rows_of(desk.changes());
        QCOMPARE(rows.size(), 3);
        QVERIFY(rows[0].startsWith(QStringLiteral("Italy|Barre|Attacco|")) &&
                rows[0].endsWith(QStringLiteral("|#200")));
        QVERIFY(rows[1].startsWith(QStringLiteral("Italy|Barre|Velocità|")));
        QVERIFY(rows[2].endsWith(QStringLiteral("|Nomi delle squadre|Sigla|%1|XYZ")
                                     .arg(QString::fromStdString(desk.cell("t70", "short", "teams")))));
        QCOMPARE(desk.label("labelOthers"),
                 QStringLiteral("Fuori dai campi: diversi in un posto, che non si può prendere."));
        QCOMPARE(desk.label("labelResult"), QStringLiteral("Diversi: 3 campi. Metti il segno a quelli da prendere."));
        QVERIFY(!desk.button("buttonTake").isEnabled());
        QVERIFY(bytes_of(other) == before);
        QVERIFY(!QFile::exists(other + QStringLiteral(".kalco-journal")));
    }

    void chosen_fields_are_taken_over_as_one_save() {
        CompareDesk desk;
        const std::string before = desk.home.image_bytes();
        const QString other = desk.other_image();
        const QByteArray other_before = bytes_of(other);
        desk.compare(other);
        app::ChangesModel& model = desk.changes();
        model.toggle(model.index(1, 0, model.index(0, 0)));
        QTest::mouseClick(&desk.button("buttonTake"), Qt::LeftButton);
        QTRY_COMPARE(rows_of(model).size(), 2);
        QCOMPARE(desk.told(), QStringLiteral("Presi da altra.bin: 1 campo"));
        QCOMPARE(desk.saves(), std::vector<std::string>{"Presi da: altra.bin"});
        QCOMPARE(desk.cell("t10", "speed", "bars"), std::string("#201"));
        QVERIFY(desk.cell("t10", "offense", "bars") != "#200");
        QVERIFY(desk.cell("t70", "short", "teams") != "XYZ");
        // What is outside the fields was not touched: the count stands.
        QVERIFY(!desk.button("buttonCount").isVisible());
        desk.undo();
        QVERIFY(desk.home.image_bytes() == before);
        QTRY_COMPARE(rows_of(model).size(), 3);
        QVERIFY(bytes_of(other) == other_before);
    }

    void the_two_rows_of_one_record_go_together() {
        CompareDesk desk;
        const DiscBytes disc = test::sheets_of(desk.home.image_bytes());
        const FieldPlace place = test::place_of_cell("players", "t31p23", "speed");
        DiscBytes changed = disc;
        changed.set_bits(place.bytes, place.bits, disc.bits(place.bytes, place.bits) ^ 1U);
        test::write_file(desk.path("altra.bin"),
                         QByteArray::fromStdString(test::with_sheets(desk.home.image_bytes(), changed)));
        desk.compare(desk.path("altra.bin"));
        app::ChangesModel& model = desk.changes();
        QCOMPARE(rows_of(model).size(), 2);
        model.toggle(model.index(0, 0, model.index(0, 0)));
        QCOMPARE(model.chosen_count(), 2);
        model.toggle(model.index(0, 0, model.index(1, 0)));
        QCOMPARE(model.chosen_count(), 0);
        QVERIFY(!desk.button("buttonTake").isEnabled());
    }

    void the_list_is_written_as_the_command_writes_it() {
        CompareDesk desk;
        const QString other = desk.other_image();
        desk.compare(other);
        const auto changes =
            changes_between(test::sheets_of(desk.home.image_bytes()), test::sheets_of(bytes_of(other).toStdString()));
        std::string json;
        for (const FieldChange& change : changes) json += ctl::json_of_change(change).dump() + '\n';
        const auto write = [&](const char* sheet, const char* name) {
            desk.answers.then<QDialog>([sheet](QDialog& dialog) {
                child<QComboBox>(dialog, "comboSheet").setCurrentText(QString::fromUtf8(sheet));
                child<QComboBox>(dialog, "comboSeparator").setCurrentText(QStringLiteral("Virgola"));
                QTest::mouseClick(&child<QPushButton>(dialog, "buttonFile"), Qt::LeftButton);
            });
            desk.answers.choose(desk.path(name));
            QTest::mouseClick(&desk.button("buttonExport"), Qt::LeftButton);
            return bytes_of(desk.path(name));
        };
        QCOMPARE(write("Tutti i fogli", "d.json").toStdString(), json);
        QCOMPARE(write("Barre", "d.csv").toStdString(),
                 "\xEF\xBB\xBFid,offense,defense,power,speed,technique\r\nt10,#200,,,#201,\r\n");
        QCOMPARE(write("Tutti i fogli", "d.fods").count("<table:table table:name="), 7);
        QCOMPARE(desk.told(), QStringLiteral("Esportato: ") + QDir::toNativeSeparators(desk.path("d.fods")));
    }

    void images_that_are_refused_are_told_in_italian() {
        CompareDesk desk;
        const auto refused = [&](const QString& path) {
            desk.answers.choose(path);
            desk.answers.press(QStringLiteral("OK"));
            desk.choose("Confronta con un'altra immagine");
            return desk.dialog() == nullptr && desk.answers.all_given() ? desk.answers.told().last() : QString();
        };
        test::write_file(desk.path("zip.bin"), QByteArray("PK\3\4") + QByteArray(5'654'208, ' '));
        QVERIFY(refused(desk.path("zip.bin"))
                    .startsWith(QStringLiteral("«zip.bin» non si può leggere: è un archivio zip")));
        test::write_file(desk.path("short.bin"), QByteArray(2352, ' '));
        QVERIFY(refused(desk.path("short.bin")).contains(QStringLiteral("è troppo corta: ha 1 settori")));
        QCOMPARE(refused(desk.path("demo.bin")),
                 QStringLiteral("«demo.bin» è l'immagine già aperta: scegline un'altra."));
    }

    void every_way_out_changes_nothing() {
        CompareDesk desk;
        const std::string before = desk.home.image_bytes();
        const QString other = desk.other_image();
        desk.answers.cancel_file_dialog();
        desk.choose("Confronta con un'altra immagine");
        QVERIFY(desk.dialog() == nullptr);
        for (const int way : {0, 1, 2, 3}) {
            app::CompareDialog& dialog = desk.compare(other);
            desk.changes().tick_shown(true);
            if (way == 0) QTest::keyClick(&dialog, Qt::Key_Escape);
            if (way == 1) QTest::mouseClick(&desk.button("buttonClose"), Qt::LeftButton);
            if (way == 2) dialog.close();
            if (way == 3) QTest::keyClick(&dialog, Qt::Key_Return);
            QTRY_VERIFY(desk.dialog() == nullptr);
        }
        QVERIFY(desk.home.image_bytes() == before);
        QVERIFY(desk.saves().empty());
    }

    void the_keyboard_alone_takes_fields_over() {
        CompareDesk desk;
        app::CompareDialog& dialog = desk.compare(desk.other_image());
        QVERIFY(test::bring_to_front(dialog));
        auto& rows = child<QTreeView>(dialog, "listChanges");
        rows.setFocus();
        QTest::keyClick(&rows, Qt::Key_Home);
        QTest::keyClick(&rows, Qt::Key_Space);
        QCOMPARE(desk.changes().chosen_count(), 2);
        QTest::keyClick(&dialog, Qt::Key_P, Qt::AltModifier);
        QTRY_COMPARE(rows_of(desk.changes()).size(), 1);
        QCOMPARE(desk.cell("t10", "offense", "bars"), std::string("#200"));
    }

    void a_fault_while_writing_is_told_and_nothing_changes() {
        test::FaultyFiles files;
        CompareDesk desk(
            [&files](const std::string& path) { return open_for_saves(files, path, Failures::Kind::run_time); });
        const std::string before = desk.home.image_bytes();
        desk.compare(desk.other_image());
        desk.changes().tick_shown(true);
        files.plan(0);
        QTest::mouseClick(&desk.button("buttonTake"), Qt::LeftButton);
        QTRY_COMPARE(rows_of(desk.changes()).size(), 0);
        const std::vector<std::string> calls = files.log();
        desk.undo();
        QTRY_COMPARE(rows_of(desk.changes()).size(), 3);
        int faults = 0;
        for (std::size_t call = 0; call < calls.size(); ++call) {
            if (calls[call] != "write" && calls[call] != "create") continue;
            ++faults;
            desk.changes().tick_shown(true);
            files.plan(static_cast<int>(call) + 1, {test::CallFault::Kind::fails, EIO});
            desk.answers.press(QStringLiteral("OK"));
            QTest::mouseClick(&desk.button("buttonTake"), Qt::LeftButton);
            files.plan(0);
            QVERIFY(desk.answers.all_given());
            QVERIFY(desk.answers.told().last().startsWith(QStringLiteral("Niente è stato preso: ")));
            QVERIFY(desk.home.image_bytes() == before);
        }
        QVERIFY(faults >= 2);
    }

    void bytes_outside_the_fields_are_counted_again_when_the_image_changed() {
        CompareDesk desk;
        desk.compare(desk.copy_with("altra.bin", {}, "?!"));
        QCOMPARE(desk.label("labelResult"), QStringLiteral("Nessun campo è diverso."));
        QVERIFY(!desk.button("buttonExport").isEnabled());
        desk.t.binder().act([&] {
            desk.t.form().image.write(ImagePos{1000} * sector_bytes + 101, "?!");
            desk.t.form().image.commit("altro");
        });
        QTRY_COMPARE(desk.label("labelOthers"), QStringLiteral("Fuori dai campi: non confrontati."));
        QTest::mouseClick(&desk.button("buttonCount"), Qt::LeftButton);
        QTRY_COMPARE(desk.label("labelOthers"), QStringLiteral("Fuori dai campi: tutto uguale."));
    }
};

KALCO_WINDOW_TEST(TestToolsCompare)
#include "test_tools_compare.moc"

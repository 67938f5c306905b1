#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QTableView>
#include <QTreeView>
#include <QtTest>

#include "app/support/test_list.h"
#include "app/support/tool_desk.h"
#include "app/tools/changes/changes_view.h"
#include "app/tools/sheets/import_dialog.h"
#include "disc/image/opening.h"
#include "support/faulty_files.h"
#include "work/csv.h"
#include "work/sheet_tables.h"

using namespace kalco;

namespace {

using test::bytes_of;
using test::child;
using test::rows_of;

/// The desk with the import's dialog.
struct SheetDesk : test::ToolDesk {
    using ToolDesk::ToolDesk;

    app::ImportDialog* import_dialog() { return t.window.findChild<app::ImportDialog*>(); }

    /// Writes a file and opens the import on it.
    app::ImportDialog& import(const char* name, const QByteArray& bytes) {
        test::write_file(path(name), bytes);
        answers.choose(path(name));
        choose("Importa foglio");
        if (import_dialog() == nullptr) throw std::logic_error("the import did not open");
        return *import_dialog();
    }
    app::ChangesModel& changes() { return import_dialog()->findChild<app::ChangesView*>()->model(); }
    QPushButton& apply() { return child<QPushButton>(*import_dialog(), "buttonApply"); }
};

QByteArray csv_of(const std::string& text) {
    return QByteArray::fromStdString(text);
}

}  // namespace

/// The export and the import of sheets, as from the menu.
class TestToolsSheets : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { test::prepare_application(); }

    void one_sheet_is_exported_as_csv() {
        SheetDesk desk;
        desk.answers.then<QDialog>([](QDialog& dialog) {
            child<QComboBox>(dialog, "comboSheet").setCurrentText(QStringLiteral("Barre"));
            child<QComboBox>(dialog, "comboSeparator").setCurrentText(QStringLiteral("Virgola"));
            child<QCheckBox>(dialog, "checkMark").setChecked(false);
            QTest::keyClick(&dialog, Qt::Key_Return);
        });
        desk.answers.choose(desk.path("b.csv"));
        desk.choose("Esporta foglio");
        QVERIFY(desk.answers.all_given());
        const DiscBytes disc = test::sheets_of(desk.home.image_bytes());
        QCOMPARE(bytes_of(desk.path("b.csv")), csv_of(csv_of_table(table_of(*sheet_named("bars"), disc))));
        QCOMPARE(desk.told(), QStringLiteral("Esportato: ") + QDir::toNativeSeparators(desk.path("b.csv")));
    }

    void the_separator_and_the_mark_are_those_that_were_chosen() {
        SheetDesk desk;
        desk.answers.then<QDialog>([](QDialog& dialog) {
            child<QComboBox>(dialog, "comboSheet").setCurrentText(QStringLiteral("Nomi delle squadre"));
            QTest::keyClick(&dialog, Qt::Key_Return);
        });
        desk.answers.choose(desk.path("n.csv"));
        desk.choose("Esporta foglio");
        QVERIFY(bytes_of(desk.path("n.csv")).startsWith("\xEF\xBB\xBFid;short;full;t1;"));
    }

    void all_sheets_go_into_one_workbook_and_no_csv() {
        SheetDesk desk;
        const auto press = [](QDialog& dialog) {
            QVERIFY(!child<QComboBox>(dialog, "comboSeparator").isEnabled());
            QTest::mouseClick(&child<QPushButton>(dialog, "buttonFile"), Qt::LeftButton);
        };
        desk.answers.then<QDialog>(press);
        desk.answers.choose(desk.path("all.csv"));
        desk.answers.press(QStringLiteral("OK"));
        desk.answers.then<QDialog>(press);
        desk.answers.choose(desk.path("all.fods"));
        desk.choose("Esporta foglio");
        QVERIFY(desk.answers.all_given());
        QCOMPARE(desk.answers.told(), QStringList{QStringLiteral("Un file CSV tiene un foglio solo.")});
        QVERIFY(!QFile::exists(desk.path("all.csv")));
        QCOMPARE(bytes_of(desk.path("all.fods")).count("<table:table table:name="), 7);
    }

    void an_export_that_is_cancelled_writes_nothing() {
        SheetDesk desk;
        const QStringList before = QDir(desk.path("")).entryList();
        desk.answers.then<QDialog>([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
        desk.choose("Esporta foglio");
        desk.answers.then<QDialog>(
            [](QDialog& dialog) { QTest::mouseClick(&child<QPushButton>(dialog, "buttonFile"), Qt::LeftButton); });
        desk.answers.cancel_file_dialog();
        desk.answers.then<QDialog>(
            [](QDialog& dialog) { QTest::mouseClick(&child<QPushButton>(dialog, "buttonCancel"), Qt::LeftButton); });
        desk.choose("Esporta foglio");
        QVERIFY(desk.answers.all_given());
        QCOMPARE(QDir(desk.path("")).entryList(), before);
    }

    void an_export_never_replaces_the_image() {
        SheetDesk desk;
        const std::string before = desk.home.image_bytes();
        desk.answers.then<QDialog>([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); });
        desk.answers.choose(desk.path("demo.bin"));
        desk.answers.press(QStringLiteral("Sostituisci"));
        desk.answers.press(QStringLiteral("OK"));
        desk.answers.then<QDialog>([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
        desk.choose("Esporta foglio");
        QVERIFY(desk.home.image_bytes() == before);
    }

    void an_export_to_a_place_that_cannot_be_written_is_told() {
        SheetDesk desk;
        desk.answers.then<QDialog>([](QDialog& dialog) {
            child<QComboBox>(dialog, "comboSheet").setCurrentText(QStringLiteral("Barre"));
            QTest::keyClick(&dialog, Qt::Key_Return);
        });
        desk.answers.choose(QStringLiteral("/proc/b.csv"));
        desk.answers.press(QStringLiteral("OK"));
        desk.choose("Esporta foglio");
        QVERIFY(desk.answers.all_given());
        QVERIFY(desk.answers.told().first().startsWith(QStringLiteral("Niente è stato esportato: ")));
    }

    void an_import_shows_all_changes_and_writes_them_as_one_save() {
        SheetDesk desk;
        const std::string before = desk.home.image_bytes();
        QByteArray csv = "id,speed,foot\r\nt10p03,";
        const bool fast = desk.cell("t10p03", "speed") == "19";
        csv += fast ? "18" : "19";
        csv += ",\r\nm002,,";
        csv += desk.cell("m002", "foot") == "Ambi" ? "Destro\r\n" : "Ambi\r\n";
        desk.import("rose.csv", csv);
        const QStringList rows = rows_of(desk.changes());
        QCOMPARE(rows.size(), 2);
        QVERIFY(rows[0].startsWith(QStringLiteral("Italy|3. ")));
        QVERIFY(rows[0].endsWith(QStringLiteral("|Velocità|%1|%2")
                                     .arg(QString::fromStdString(desk.cell("t10p03", "speed")), fast ? u"18" : u"19")));
        QVERIFY(rows[1].startsWith(QStringLiteral("Giocatori ML|2. ")));
        QVERIFY(desk.home.image_bytes() == before);
        QTest::mouseClick(&desk.apply(), Qt::LeftButton);
        QTRY_VERIFY(desk.import_dialog() == nullptr);
        QCOMPARE(desk.cell("t10p03", "speed"), std::string(fast ? "18" : "19"));
        QCOMPARE(desk.told(), QStringLiteral("Importato rose.csv: 2 campi nell'immagine"));
        QCOMPARE(desk.t.form().history.texts(), std::vector<std::string>{"Importazione: rose.csv"});
        desk.undo();
        QVERIFY(desk.home.image_bytes() == before);
    }

    void rows_that_are_not_ticked_stay() {
        SheetDesk desk;
        desk.import("b.csv", "id,power,speed\nt10,#200,#201\nt11,#202,\n");
        // The columns fit no other sheet better than the players', so the sheet is chosen by hand.
        child<QComboBox>(*desk.import_dialog(), "comboSheet").setCurrentText(QStringLiteral("Barre"));
        app::ChangesModel& model = desk.changes();
        QCOMPARE(model.chosen_count(), 3);
        QVERIFY(model.setData(model.index(0, 0, model.index(0, 0)), Qt::Unchecked, Qt::CheckStateRole));
        QCOMPARE(model.index(0, 0).data(Qt::CheckStateRole).toInt(), int(Qt::PartiallyChecked));
        const std::string kept = desk.cell("t10", "power", "bars");
        QTest::mouseClick(&desk.apply(), Qt::LeftButton);
        QTRY_VERIFY(desk.import_dialog() == nullptr);
        QCOMPARE(desk.cell("t10", "power", "bars"), kept);
        QCOMPARE(desk.cell("t10", "speed", "bars"), std::string("#201"));
        QCOMPARE(desk.cell("t11", "power", "bars"), std::string("#202"));
    }

    void the_two_rows_of_one_record_are_ticked_together() {
        SheetDesk desk;
        const std::string held = desk.cell("t31p23", "speed");
        const std::string other = held == "12" ? "13" : "12";
        desk.import("r.csv", csv_of("id,speed,name\nt31p23," + other + ",Uno\nt32p01," + other + ",Due\n"));
        app::ChangesModel& model = desk.changes();
        QCOMPARE(rows_of(model).size(), 4);
        // The fields of both stand in the order of the columns: the name, then the speed.
        const QModelIndex tunisian = model.index(1, 0, model.index(0, 0));
        const QModelIndex egyptian = model.index(1, 0, model.index(1, 0));
        QCOMPARE(model.index(1, 1, model.index(0, 0)).data().toString(), QStringLiteral("Velocità"));
        model.toggle(tunisian);
        QCOMPARE(egyptian.data(Qt::CheckStateRole).toInt(), int(Qt::Unchecked));
        QCOMPARE(model.chosen_count(), 2);
        QTest::mouseClick(&desk.apply(), Qt::LeftButton);
        QTRY_VERIFY(desk.import_dialog() == nullptr);
        QCOMPARE(desk.cell("t31p23", "speed"), held);
        QCOMPARE(desk.cell("t32p01", "name"), std::string("Due"));
    }

    void words_filter_the_rows_and_the_buttons_tick_what_is_shown() {
        SheetDesk desk;
        desk.import("n.csv", "id,n1,n2\nt10,31,30\nt70,31,30\n");
        app::ChangesModel& model = desk.changes();
        const int all = model.chosen_count();
        QVERIFY(all >= 2);
        auto& filter = child<QLineEdit>(*desk.import_dialog(), "editFilter");
        QTest::keyClicks(&filter, QStringLiteral("ITALY numeri"));
        const int shown = model.shown_count();
        QVERIFY(shown > 0 && shown < all);
        QTest::mouseClick(&child<QPushButton>(*desk.import_dialog(), "buttonNone"), Qt::LeftButton);
        QCOMPARE(model.chosen_count(), all - shown);
        filter.clear();
        QCOMPARE(model.shown_count(), all);
        QTest::mouseClick(&child<QPushButton>(*desk.import_dialog(), "buttonNone"), Qt::LeftButton);
        QCOMPARE(model.chosen_count(), 0);
        QVERIFY(!desk.apply().isEnabled());
        QTest::mouseClick(&child<QPushButton>(*desk.import_dialog(), "buttonAll"), Qt::LeftButton);
        QCOMPARE(model.chosen_count(), all);
    }

    void the_keyboard_alone_imports() {
        SheetDesk desk;
        app::ImportDialog& dialog = desk.import("b.csv", "id,offense,defense\nt10,#200,#201\n");
        auto& rows = child<QTreeView>(dialog, "listChanges");
        QVERIFY(test::bring_to_front(dialog));
        rows.setFocus();
        QTest::keyClick(&rows, Qt::Key_Home);
        QTest::keyClick(&rows, Qt::Key_Down);
        QTest::keyClick(&rows, Qt::Key_Space);
        QCOMPARE(desk.changes().chosen_count(), 1);
        QTest::keyClick(&dialog, Qt::Key_A, Qt::AltModifier);
        QTRY_VERIFY(desk.import_dialog() == nullptr);
        QVERIFY(desk.cell("t10", "offense", "bars") != "#200");
        QCOMPARE(desk.cell("t10", "defense", "bars"), std::string("#201"));
    }

    void every_way_out_changes_nothing() {
        SheetDesk desk;
        const std::string before = desk.home.image_bytes();
        desk.answers.cancel_file_dialog();
        desk.choose("Importa foglio");
        QVERIFY(desk.import_dialog() == nullptr);
        for (const int way : {0, 1, 2, 3}) {
            app::ImportDialog& dialog = desk.import("b.csv", "id,offense\nt10,#200\n");
            if (way == 0) QTest::keyClick(&dialog, Qt::Key_Escape);
            if (way == 1) QTest::mouseClick(&child<QPushButton>(dialog, "buttonClose"), Qt::LeftButton);
            if (way == 2) dialog.close();
            // Return presses "Chiudi".
            if (way == 3) QTest::keyClick(&dialog, Qt::Key_Return);
            QTRY_VERIFY(desk.import_dialog() == nullptr);
        }
        QVERIFY(desk.home.image_bytes() == before);
        QVERIFY(desk.t.form().history.texts().empty());
    }

    void all_mistakes_are_told_with_row_and_column() {
        SheetDesk desk;
        app::ImportDialog& dialog = desk.import("e.csv", "id,speed,foot\nt10p03,71,\nt99,12,Mano\nt10p04,,Mano\n");
        const auto& rows = *child<QTableView>(dialog, "tableMistakes").model();
        QCOMPARE(rows.rowCount(), 3);
        QCOMPARE(rows.index(0, 0).data().toString(), QStringLiteral("2"));
        QCOMPARE(rows.index(0, 1).data().toString(), QStringLiteral("Velocità (speed)"));
        QCOMPARE(rows.index(0, 2).data().toString(), QStringLiteral("«71»: fuori dai limiti: da 12 a 19"));
        QCOMPARE(rows.index(1, 0).data().toString(), QStringLiteral("3"));
        QVERIFY(child<QTableView>(dialog, "tableMistakes").isVisible());
        QVERIFY(!desk.apply().isEnabled());
        QVERIFY(!child<QCheckBox>(dialog, "checkForce").isVisible());
        QCOMPARE(child<QLabel>(dialog, "labelResult").text(),
                 QStringLiteral("3 errori: finché ci sono, niente si può importare."));
    }

    void a_file_that_is_no_table_is_told() {
        SheetDesk desk;
        app::ImportDialog& dialog = desk.import("x.csv", "%PDF-1.4");
        const auto& rows = *child<QTableView>(dialog, "tableMistakes").model();
        QCOMPARE(rows.index(0, 2).data().toString(), QStringLiteral("è un PDF, non una tabella"));
        QVERIFY(!desk.apply().isEnabled());
    }

    void an_old_revision_can_be_gone_over() {
        SheetDesk desk;
        const std::string other = desk.cell("t10p03", "speed") == "12" ? "13" : "12";
        app::ImportDialog& dialog = desk.import("r.csv", csv_of("id,rev,speed\nt10p03,r00000000," + other + "\n"));
        auto& force = child<QCheckBox>(dialog, "checkForce");
        QVERIFY(force.isVisible() && !force.isChecked());
        QVERIFY(!desk.apply().isEnabled());
        QVERIFY(test::bring_to_front(dialog));
        QTest::keyClick(&dialog, Qt::Key_I, Qt::AltModifier);
        QTRY_VERIFY(force.isChecked());
        QCOMPARE(desk.changes().chosen_count(), 1);
        QTest::mouseClick(&desk.apply(), Qt::LeftButton);
        QTRY_VERIFY(desk.import_dialog() == nullptr);
        QCOMPARE(desk.cell("t10p03", "speed"), other);
    }

    void the_plan_follows_the_image_and_keeps_what_was_ticked() {
        SheetDesk desk;
        desk.import("b.csv", "id,offense,defense\nt10,#200,#201\n");
        desk.changes().toggle(desk.changes().index(1, 0, desk.changes().index(0, 0)));
        Image& image = desk.t.form().image;
        desk.t.binder().act([&] {
            const FieldPlace place = test::place_of_cell("bars", "t10", "offense");
            image.write(place.bytes, std::string(1, '\xC8'));
            image.commit("altro");
        });
        QTRY_COMPARE(rows_of(desk.changes()).size(), 1);
        QCOMPARE(desk.changes().chosen_count(), 0);
        desk.undo();
        QTRY_COMPARE(rows_of(desk.changes()).size(), 2);
        QCOMPARE(desk.changes().chosen_count(), 1);
    }

    void a_workbook_offers_its_sheets() {
        SheetDesk desk;
        app::ImportDialog& dialog = desk.import("a.json", "{\"sheet\":\"bars\",\"id\":\"t10\",\"power\":\"#200\"}\n"
                                                          "{\"sheet\":\"teams\",\"id\":\"t10\",\"short\":\"XXX\"}\n");
        auto& sheets = child<QComboBox>(dialog, "comboSheet");
        QCOMPARE(sheets.currentText(), QStringLiteral("Tutti quelli del file"));
        QCOMPARE(rows_of(desk.changes()).size(), 2);
        sheets.setCurrentText(QStringLiteral("Barre"));
        QCOMPARE(rows_of(desk.changes()).size(), 1);
    }

    void a_fault_while_writing_is_told_and_nothing_changes() {
        test::FaultyFiles files;
        SheetDesk desk(
            [&files](const std::string& path) { return open_for_saves(files, path, Failures::Kind::run_time); });
        const std::string before = desk.home.image_bytes();
        desk.import("b.csv", "id,offense\nt10,#200\n");
        files.plan(0);
        QTest::mouseClick(&desk.apply(), Qt::LeftButton);
        QTRY_VERIFY(desk.import_dialog() == nullptr);
        const std::vector<std::string> calls = files.log();
        desk.undo();
        QVERIFY(desk.home.image_bytes() == before);
        int faults = 0;
        for (std::size_t call = 0; call < calls.size(); ++call) {
            if (calls[call] != "write" && calls[call] != "create") continue;
            ++faults;
            desk.import("b.csv", "id,offense\nt10,#200\n");
            files.plan(static_cast<int>(call) + 1, {test::CallFault::Kind::fails, ENOSPC});
            desk.answers.press(QStringLiteral("OK"));
            QTest::mouseClick(&desk.apply(), Qt::LeftButton);
            files.plan(0);
            QVERIFY(desk.answers.all_given());
            QVERIFY2(desk.answers.told().last().startsWith(QStringLiteral("Niente è stato importato: ")),
                     qPrintable(desk.answers.told().last()));
            QVERIFY(desk.home.image_bytes() == before);
        }
        QVERIFY(faults >= 2);
        QTest::mouseClick(&desk.apply(), Qt::LeftButton);
        QTRY_VERIFY(desk.import_dialog() == nullptr);
        QCOMPARE(desk.cell("t10", "offense", "bars"), std::string("#200"));
    }
};

KALCO_WINDOW_TEST(TestToolsSheets)
#include "test_tools_sheets.moc"

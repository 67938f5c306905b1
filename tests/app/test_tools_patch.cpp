#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QtTest>

#include "app/support/test_list.h"
#include "app/support/tool_desk.h"
#include "app/tools/changes/changes_view.h"
#include "app/tools/patch/patch_dialog.h"
#include "disc/image/opening.h"
#include "support/faulty_files.h"
#include "support/memory_storage.h"
#include "work/patch_make.h"
#include "work/ppf.h"

using namespace kalco;

namespace {

using test::bytes_of;
using test::child;
using test::rows_of;

/// A patch of two images in memory.
QByteArray patch_between(std::string before, std::string after, std::string_view description = {}) {
    test::Disc one{std::move(before)};
    test::Disc other{std::move(after)};
    Image original(test::opener_of(one));
    Image edited(test::opener_of(other));
    original.open("a");
    edited.open("b");
    QByteArray patch;
    make_patch(original, edited, description,
               [&patch](std::string_view bytes) { patch.append(bytes.data(), qsizetype(bytes.size())); });
    return patch;
}

struct PatchDesk : test::ToolDesk {
    explicit PatchDesk(StorageOpener opener = open_file) : ToolDesk(std::move(opener)) { choose("Patch"); }

    QWidget& dialog() {
        auto* const found = t.window.findChild<app::PatchDialog*>();
        if (found == nullptr) throw std::logic_error("the dialog is not open");
        return *found;
    }
    app::ChangesModel& changes() { return dialog().findChild<app::ChangesView*>()->model(); }
    QString label(const char* name) { return child<QLabel>(dialog(), name).text(); }
    QPushButton& button(const char* name) { return child<QPushButton>(dialog(), name); }

    /// From the open image to a copy with two other bars and two bytes outside the fields.
    QByteArray patch(std::string_view description = "Rose d'autunno") {
        const QString other =
            copy_with("altra.bin", {{"bars", "t10", "offense", "\xC8"}, {"bars", "t10", "speed", "\xC9"}}, "?!");
        return patch_between(home.image_bytes(), bytes_of(other).toStdString(), description);
    }
    void open(const char* name, const QByteArray& bytes) {
        test::write_file(path(name), bytes);
        answers.choose(path(name));
        QTest::mouseClick(&button("buttonChoose"), Qt::LeftButton);
    }
    void show_making() {
        auto& pages = child<QTabWidget>(dialog(), "pages");
        QTest::mouseClick(pages.tabBar(), Qt::LeftButton, {}, pages.tabBar()->tabRect(1).center());
    }
    void choose_original(const QString& image) {
        answers.choose(image);
        QTest::mouseClick(&button("buttonOriginal"), Qt::LeftButton);
    }
    void make(const QString& to) {
        answers.choose(to);
        QTest::mouseClick(&button("buttonMake"), Qt::LeftButton);
    }
};

}  // namespace

/// Patches, as from the menu.
class TestToolsPatch : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { test::prepare_application(); }

    void a_patch_shows_what_it_would_change_and_is_applied_as_one_save() {
        PatchDesk desk;
        const std::string before = desk.home.image_bytes();
        desk.open("rose.ppf", desk.patch());
        QCOMPARE(desk.label("labelAbout"),
                 QStringLiteral("PPF 3.0, «Rose d'autunno»: 3 record, 4 byte; si può togliere."));
        QCOMPARE(desk.label("labelResult"), QStringLiteral("Cambiano: 2 campi e un posto fuori dai campi."));
        const QStringList rows = rows_of(desk.changes());
        QCOMPARE(rows.size(), 2);
        QVERIFY(rows[0].startsWith(QStringLiteral("Italy|Barre|Attacco|")) &&
                rows[0].endsWith(QStringLiteral("|#200")));
        QVERIFY(desk.home.image_bytes() == before);
        QTest::mouseClick(&desk.button("buttonSave"), Qt::LeftButton);
        QTRY_COMPARE(desk.label("labelResult"), QStringLiteral("Niente da fare: la patch è già applicata."));
        QVERIFY(!desk.button("buttonSave").isEnabled());
        QCOMPARE(desk.saves(), std::vector<std::string>{"Patch: rose.ppf"});
        QCOMPARE(desk.told(), QStringLiteral("Patch applicata: rose.ppf"));
        QCOMPARE(desk.cell("t10", "offense", "bars"), std::string("#200"));

        QTest::mouseClick(&child<QRadioButton>(desk.dialog(), "radioUndo"), Qt::LeftButton);
        QTRY_COMPARE(desk.label("labelResult"),
                     QStringLiteral("Tornano com'erano: 2 campi e un posto fuori dai campi."));
        QTest::mouseClick(&desk.button("buttonSave"), Qt::LeftButton);
        QTRY_COMPARE(desk.saves(), (std::vector<std::string>{"Patch: rose.ppf", "Patch tolta: rose.ppf"}));
        QVERIFY(desk.home.image_bytes() == before);
        QTRY_COMPARE(desk.label("labelResult"), QStringLiteral("Niente da togliere: la patch non è applicata."));
        desk.undo();
        QCOMPARE(desk.cell("t10", "offense", "bars"), std::string("#200"));
        QTRY_VERIFY(desk.button("buttonSave").isEnabled());
    }

    void conflicts_are_told_by_meaning() {
        PatchDesk desk;
        const QByteArray patch = desk.patch();
        desk.t.binder().act([&] {
            desk.t.form().image.write(test::place_of_cell("bars", "t10", "offense").bytes, "\xDC");
            desk.t.form().image.commit("altro");
        });
        const std::string before = desk.home.image_bytes();
        desk.open("rose.ppf", patch);
        QCOMPARE(desk.label("labelResult"),
                 QStringLiteral("Non si può applicare, perché l'immagine ha altri valori: 1 campo."));
        const QStringList rows = rows_of(desk.changes());
        QCOMPARE(rows.size(), 1);
        QVERIFY(rows[0].startsWith(QStringLiteral("Italy|Barre|Attacco|")) &&
                rows[0].endsWith(QStringLiteral("|#220")));
        QCOMPARE(desk.changes().headerData(2, Qt::Horizontal, Qt::DisplayRole).toString(),
                 QStringLiteral("La patch si aspetta"));
        QVERIFY(!desk.button("buttonSave").isEnabled());
        QVERIFY(desk.home.image_bytes() == before);
        // The image as it was before: the patch fits again.
        desk.undo();
        QTRY_VERIFY(desk.button("buttonSave").isEnabled());
    }

    void a_patch_for_another_image_is_applied_only_after_asking() {
        PatchDesk desk;
        QByteArray patch = desk.patch();
        patch[100] = static_cast<char>(patch[100] ^ 1);  // In the block that is checked.
        const std::string before = desk.home.image_bytes();
        desk.open("altro.ppf", patch);
        QVERIFY(desk.label("labelResult").startsWith(QStringLiteral("Attenzione: è fatta per un'altra immagine. ")));
        desk.answers.press(QStringLiteral("Annulla"));
        QTest::mouseClick(&desk.button("buttonSave"), Qt::LeftButton);
        QVERIFY(desk.home.image_bytes() == before);
        desk.answers.press(QStringLiteral("Applica lo stesso"));
        QTest::mouseClick(&desk.button("buttonSave"), Qt::LeftButton);
        QVERIFY(desk.answers.all_given());
        QCOMPARE(desk.cell("t10", "offense", "bars"), std::string("#200"));
    }

    void a_file_that_is_no_patch_is_told_and_the_last_one_stays() {
        PatchDesk desk;
        desk.open("rose.ppf", desk.patch());
        test::write_file(desk.path("x.ppf"), "x");
        desk.answers.choose(desk.path("x.ppf"));
        desk.answers.press(QStringLiteral("OK"));
        QTest::mouseClick(&desk.button("buttonChoose"), Qt::LeftButton);
        QCOMPARE(desk.answers.told(), QStringList{QStringLiteral("La patch non si legge: non è una patch PPF.")});
        QVERIFY(child<QLineEdit>(desk.dialog(), "editPath").text().endsWith(QStringLiteral("rose.ppf")));
        QVERIFY(desk.button("buttonSave").isEnabled());
    }

    void a_patch_beyond_the_image_changes_nothing() {
        PatchDesk desk;
        QByteArray patch("PPF30\x02", 6);
        patch += QByteArray(50, ' ') + QByteArray(4, '\0') + QByteArray("\0\0\0\0\xFF\0\0\0\x01z", 10);
        desk.open("far.ppf", patch);
        QVERIFY(desk.label("labelResult").contains(QStringLiteral("oltre la fine dell'immagine")));
        QVERIFY(!desk.button("buttonSave").isEnabled());
        QVERIFY(!child<QRadioButton>(desk.dialog(), "radioUndo").isEnabled());
    }

    void a_patch_is_made_against_a_chosen_original() {
        PatchDesk desk;
        const QString original = desk.copy_with("originale.bin", {{"bars", "t10", "offense", "\xC8"}});
        desk.show_making();
        QVERIFY(!desk.button("buttonMake").isEnabled());
        desk.choose_original(original);
        QTest::keyClicks(&child<QLineEdit>(desk.dialog(), "editDescription"), QStringLiteral("Barre"));
        desk.make(desk.path("mia.ppf"));
        QVERIFY(desk.answers.all_given());
        const QByteArray expected = patch_between(bytes_of(original).toStdString(), desk.home.image_bytes(), "Barre");
        QVERIFY(!expected.isEmpty());
        QCOMPARE(bytes_of(desk.path("mia.ppf")), expected);
        QCOMPARE(desk.told(), QStringLiteral("Creata: mia.ppf (1 record, 1 byte)"));
    }

    void a_patch_under_an_images_name_is_made_only_after_asking() {
        PatchDesk desk;
        const QString original = desk.copy_with("originale.bin", {{"bars", "t10", "offense", "\xC8"}});
        desk.show_making();
        desk.choose_original(original);
        desk.answers.choose(desk.path("demo.ppf"));
        desk.answers.press(QStringLiteral("Annulla"));
        QTest::mouseClick(&desk.button("buttonMake"), Qt::LeftButton);
        QVERIFY(!QFile::exists(desk.path("demo.ppf")));
        desk.answers.choose(desk.path("demo.ppf"));
        desk.answers.press(QStringLiteral("Crea lo stesso"));
        QTest::mouseClick(&desk.button("buttonMake"), Qt::LeftButton);
        QVERIFY(desk.answers.all_given());
        QVERIFY(QFile::exists(desk.path("demo.ppf")));
    }

    void images_that_make_no_patch_are_told() {
        PatchDesk desk;
        desk.show_making();
        desk.choose_original(desk.copy_with("uguale.bin", {}));
        desk.answers.choose(desk.path("u.ppf"));
        desk.answers.press(QStringLiteral("OK"));
        QTest::mouseClick(&desk.button("buttonMake"), Qt::LeftButton);
        QVERIFY(desk.answers.told().last().startsWith(QStringLiteral("Le due immagini sono uguali")));
        test::write_file(desk.path("lunga.bin"), bytes_of(desk.path("demo.bin")) + QByteArray(2352, '\0'));
        desk.choose_original(desk.path("lunga.bin"));
        desk.answers.choose(desk.path("u.ppf"));
        desk.answers.press(QStringLiteral("OK"));
        QTest::mouseClick(&desk.button("buttonMake"), Qt::LeftButton);
        QCOMPARE(desk.answers.told().last(),
                 QStringLiteral("La patch non è stata creata: le due immagini hanno lunghezze diverse."));
        QVERIFY(!QFile::exists(desk.path("u.ppf")));
    }

    void every_way_out_changes_nothing() {
        PatchDesk desk;
        const std::string before = desk.home.image_bytes();
        const QByteArray patch = desk.patch();
        for (const int way : {0, 1, 2, 3}) {
            desk.choose("Patch");
            desk.open("rose.ppf", patch);
            QWidget& dialog = desk.dialog();
            if (way == 0) QTest::keyClick(&dialog, Qt::Key_Escape);
            if (way == 1) QTest::mouseClick(&desk.button("buttonClose"), Qt::LeftButton);
            if (way == 2) dialog.close();
            if (way == 3) QTest::keyClick(&dialog, Qt::Key_Return);
            QTRY_VERIFY(desk.t.window.findChild<app::PatchDialog*>() == nullptr);
        }
        desk.choose("Patch");
        desk.answers.cancel_file_dialog();
        QTest::mouseClick(&desk.button("buttonChoose"), Qt::LeftButton);
        QVERIFY(desk.home.image_bytes() == before);
        QVERIFY(desk.saves().empty());
    }

    void the_keyboard_alone_applies_and_takes_off() {
        PatchDesk desk;
        desk.open("rose.ppf", desk.patch());
        QWidget& dialog = desk.dialog();
        // Without a window manager nothing is active behind a box that went away.
        const auto press = [&dialog](Qt::Key key) {
            dialog.activateWindow();
            QVERIFY(test::bring_to_front(dialog));
            QTest::keyClick(&dialog, key, Qt::AltModifier);
        };
        press(Qt::Key_A);
        QTRY_COMPARE(desk.saves().size(), std::size_t{1});
        press(Qt::Key_G);
        QTRY_VERIFY(desk.button("buttonSave").isEnabled());
        press(Qt::Key_O);
        QTRY_COMPARE(desk.saves().size(), std::size_t{2});
    }

    void a_fault_while_writing_is_told_and_nothing_changes() {
        test::FaultyFiles files;
        PatchDesk desk(
            [&files](const std::string& path) { return open_for_saves(files, path, Failures::Kind::run_time); });
        const std::string before = desk.home.image_bytes();
        desk.open("rose.ppf", desk.patch());
        files.plan(0);
        QTest::mouseClick(&desk.button("buttonSave"), Qt::LeftButton);
        QTRY_COMPARE(desk.saves().size(), std::size_t{1});
        const std::vector<std::string> calls = files.log();
        desk.undo();
        QVERIFY(desk.home.image_bytes() == before);
        int faults = 0;
        for (std::size_t call = 0; call < calls.size(); ++call) {
            if (calls[call] != "write" && calls[call] != "create") continue;
            ++faults;
            QTRY_VERIFY(desk.button("buttonSave").isEnabled());
            files.plan(static_cast<int>(call) + 1, {test::CallFault::Kind::fails, ENOSPC});
            desk.answers.press(QStringLiteral("OK"));
            QTest::mouseClick(&desk.button("buttonSave"), Qt::LeftButton);
            files.plan(0);
            QVERIFY(desk.answers.all_given());
            QVERIFY(desk.answers.told().last().startsWith(QStringLiteral("Niente è stato cambiato: ")));
            QVERIFY(desk.home.image_bytes() == before);
        }
        QVERIFY(faults >= 2);
    }
};

KALCO_WINDOW_TEST(TestToolsPatch)
#include "test_tools_patch.moc"

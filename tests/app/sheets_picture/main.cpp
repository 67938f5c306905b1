// sheets_picture IMAGE OUT.png import|mistakes|compare|patch|make|export [dark]: a picture of a tool's dialog on a demo
// image, with something to show in it.

#include <QApplication>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QTabWidget>
#include <QTemporaryDir>
#include <iostream>

#include "app/support/dialogs.h"
#include "app/support/test_window.h"
#include "app/tools/changes/changes_view.h"
#include "ctl/files.h"
#include "work/csv.h"
#include "work/patch_make.h"
#include "work/sheet_tables.h"
#include "work/write_changes.h"

namespace {

using namespace kalco;

/// The image with other skills here and there, some bars and a name.
void change(Image& image) {
    const DiscBytes before = read_sheets(image);
    std::vector<FieldChange> changes;
    const auto add = [&](const char* sheet_name, const char* id, const char* column_name, FieldValue value) {
        const Sheet& sheet = *sheet_named(sheet_name);
        const SheetColumn& column = *sheet.column_named(column_name);
        const int row = sheet.row_of(id).value();
        changes.push_back({&sheet, row, &column, stored_value(before, column, row), std::move(value)});
    };
    const std::array skills{"speed", "technique", "dribbling"};
    int round = 0;
    for (const char* const id : {"t03p10", "t10p02", "t10p09", "t10p11", "t12p05", "m041"}) {
        add("players", id, skills.at(static_cast<std::size_t>(round) % skills.size()),
            2U + (static_cast<unsigned>(round) % 5U));
        ++round;
    }
    add("players", "t10p09", "name", std::string("Favarelli"));
    add("players", "t12p05", "foot", 2U);
    add("bars", "t10", "offense", 9U);
    add("teams", "t81", "short", std::string("INT"));
    add("links", "c18", "s3", std::string("\x0A\x05"));
    write_changes(image, changes);
}

struct Files {
    explicit Files(const std::string& image_path) {
        Image image(open_to_read);
        image.open(image_path);
        const DiscBytes before = read_sheets(image);
        std::string bytes(static_cast<std::size_t>(image.length()), '\0');
        image.read_into(1, bytes);
        ctl::write_output(path("stagione.bin"), bytes, {});
        Image other(open_file);
        other.open(path("stagione.bin"));
        change(other);
        other.commit();
        const auto changes = changes_between(before, read_sheets(other));
        std::vector<FieldChange> players;
        for (const FieldChange& each : changes) {
            if (each.sheet == sheet_named(players_sheet)) players.push_back(each);
        }
        ctl::write_output(path("rose.csv"), csv_of_table(table_of(*sheet_named(players_sheet), players)), {});
        ctl::write_output(path("errori.csv"),
                          "id,speed,foot,velocita\r\nt10p03,71,,\r\nt99,15,,\r\nt10p04,,Mano,\r\nt10p05,x,,3\r\n", {});
        std::string patch;
        make_patch(image, other, "Rose d'autunno", [&patch](std::string_view part) { patch += part; });
        ctl::write_output(path("autunno.ppf"), patch, {});
    }
    std::string path(const char* name) const { return folder.filePath(QLatin1String(name)).toStdString(); }
    QString text(const char* name) const { return QString::fromStdString(path(name)); }

    QTemporaryDir folder;
};

QWidget* opened(const test::TestWindow& test) {
    for (QWidget* const top : QApplication::topLevelWidgets()) {
        if (top->isVisible() && top != &test.window && top->inherits("QDialog")) return top;
    }
    return nullptr;
}

void settle() {
    for (int i = 0; i < 20; ++i) QApplication::processEvents(QEventLoop::AllEvents, 20);
}

}  // namespace

int main(int argc, char** argv) {
    const QApplication app(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 4) {
        std::cerr << "sheets_picture IMAGE OUT.png import|mistakes|compare|patch|make|export [dark]\n";
        return 2;
    }
    test::prepare_application(arguments.contains(QStringLiteral("dark")));
    const QString what = arguments[3];
    const Files files(arguments[1].toStdString());
    test::TestWindow test(arguments[1].toStdString());
    test::Answers answers;
    const auto choose = [&](const char* item) {
        test::choose_menu(test.window, QStringLiteral("Strumenti"), QLatin1String(item));
        settle();
    };
    if (what == QStringLiteral("export")) {
        answers.then<QDialog>([&](QDialog& dialog) {
            settle();
            dialog.grab().save(arguments[2]);
            dialog.reject();
        });
        choose("Esporta foglio");
        return 0;
    }
    if (what == QStringLiteral("import") || what == QStringLiteral("mistakes")) {
        answers.choose(files.text(what == QStringLiteral("import") ? "rose.csv" : "errori.csv"));
        choose("Importa foglio");
    } else if (what == QStringLiteral("compare")) {
        answers.choose(files.text("stagione.bin"));
        choose("Confronta");
    } else {
        choose("Patch");
        QWidget& dialog = *opened(test);
        if (what == QStringLiteral("make")) {
            dialog.findChild<QTabWidget*>()->setCurrentIndex(1);
        } else {
            answers.choose(files.text("autunno.ppf"));
            dialog.findChild<QPushButton*>(QStringLiteral("buttonChoose"))->click();
        }
    }
    settle();
    QWidget* const dialog = opened(test);
    if (dialog == nullptr) return 1;
    if (auto* const view = dialog->findChild<app::ChangesView*>(); what == QStringLiteral("compare")) {
        view->model().toggle(view->model().index(1, 0, view->model().index(1, 0)));
    }
    settle();
    return dialog->grab().save(arguments[2]) ? 0 : 1;
}

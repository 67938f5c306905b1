#pragma once

#include <QAbstractItemModel>
#include <QApplication>
#include <QFile>
#include <stdexcept>

#include "app/status_line.h"
#include "app/support/dialogs.h"
#include "app/support/test_window.h"
#include "support/sheet_disc.h"

/// What the tests of the tools on sheets, images and patches share. A program that uses it compiles
/// support/sheet_disc.cpp too.
namespace kalco::test {

/// Makes a window the active one, which is what window managers do with one that opens: the offscreen platform does not
/// when a box of progress was shown before it, on a slow machine.
inline bool bring_to_front(QWidget& window) {
    window.activateWindow();
    return QTest::qWaitForWindowActive(&window);
}

inline QByteArray bytes_of(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline void write_file(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) throw std::runtime_error("not written");
}

template <typename Widget>
Widget& child(QWidget& of, const char* name) {
    auto* const found = of.findChild<Widget*>(QLatin1String(name));
    if (found == nullptr) throw std::invalid_argument(std::string("no widget ") + name);
    return *found;
}

/// "Italy|1. Rossi|Velocità|15|17": all rows of a model of changes that are shown.
inline QStringList rows_of(const QAbstractItemModel& model) {
    QStringList rows;
    for (int group = 0; group < model.rowCount(); ++group) {
        const QModelIndex branch = model.index(group, 0);
        for (int row = 0; row < model.rowCount(branch); ++row) {
            QStringList cells{branch.data().toString()};
            for (int column = 0; column < 4; ++column) cells << model.index(row, column, branch).data().toString();
            rows << cells.join(u'|');
        }
    }
    return rows;
}

/// A window on a demo image, its menus, and answers to what it asks.
struct ToolDesk {
    explicit ToolDesk(StorageOpener opener = open_file) : t(home.image(), home.path(), std::move(opener)) {}

    /// Of a file beside the image.
    QString path(const char* name) const { return QString::fromStdString(home.path()) + u'/' + QLatin1String(name); }
    void choose(const char* item) { choose_menu(t.window, QStringLiteral("Strumenti"), QLatin1String(item)); }
    void undo() {
        choose_menu(t.window, QStringLiteral("Modifica"), QStringLiteral("Annulla"));
        QApplication::processEvents();
    }
    QString told() { return t.window.findChild<app::StatusLine*>()->text(); }
    std::vector<std::string> saves() { return t.form().history.texts(); }

    /// What is on the disk.
    std::string cell(const char* id, const char* column, const char* sheet = "players") {
        return test::cell(sheets_of(home.image_bytes()), sheet, id, column);
    }

    /// A copy of the image beside it with other bytes at the places of fields, each a single byte or all of a text.
    struct Field {
        const char* sheet;
        const char* id;
        const char* column;
        std::string bytes;
    };
    QString copy_with(const char* name, const std::vector<Field>& fields, std::string other_bytes = {}) {
        std::string bytes = home.image_bytes();
        for (const Field& field : fields) {
            const FieldPlace place = place_of_cell(field.sheet, field.id, field.column);
            bytes.replace(static_cast<std::size_t>(place.bytes[0].position - 1), field.bytes.size(), field.bytes);
        }
        // Far behind the header of a sector that no field is in.
        if (!other_bytes.empty())
            bytes.replace(std::size_t{1000} * sector_bytes + 100, other_bytes.size(), other_bytes);
        write_file(path(name), QByteArray::fromStdString(bytes));
        return path(name);
    }

    DemoHome home;
    TestWindow t;
    Answers answers;
};

}  // namespace kalco::test

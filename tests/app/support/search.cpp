#include "app/support/search.h"

#include <QApplication>
#include <QHeaderView>
#include <QtTest/qtestkeyboard.h>
#include <QtTest/qtestmouse.h>
#include <stdexcept>

namespace kalco::test {

app::SearchWindow* open_search() {
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
        if (auto* const search = qobject_cast<app::SearchWindow*>(widget)) return search;
    }
    return nullptr;
}

Search::Search(TestWindow& editor) {
    editor.window.activateWindow();
    QApplication::processEvents();
    QTest::keyClick(&editor.window, Qt::Key_F, Qt::ControlModifier);
    QApplication::processEvents();
    window_ = open_search();
    if (window_ == nullptr) throw std::runtime_error("the search does not open");
}

std::vector<int> Search::players() const {
    const auto& model = dynamic_cast<const app::PlayersModel&>(*table().model());
    std::vector<int> players;
    for (int row = 0; row < model.rowCount(); ++row) players.push_back(model.player_in(row));
    return players;
}

QStringList Search::column(int column) const {
    QStringList texts;
    for (int row = 0; row < table().model()->rowCount(); ++row) {
        texts << table().model()->index(row, column).data().toString();
    }
    return texts;
}

int Search::chosen() const {
    const auto& model = dynamic_cast<const app::PlayersModel&>(*table().model());
    return model.player_in(table().currentIndex().row());
}

void Search::type_name(const QString& text) const {
    auto& field = this->field<QLineEdit>("fieldName");
    QTest::mouseClick(&field, Qt::LeftButton);
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&field, Qt::Key_Delete);
    for (const QChar letter : text) {
        QTest::sendKeyEvent(QTest::Click, &field, Qt::Key_unknown, letter, Qt::NoModifier);
    }
    QApplication::processEvents();
}

void Search::pick(const char* combo, int row) const {
    auto& list = field<QComboBox>(combo);
    list.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&list, Qt::Key_Home);
    for (int step = 0; step < row; ++step) QTest::keyClick(&list, Qt::Key_Down);
    QApplication::processEvents();
}

void Search::press(const char* button) const {
    QTest::mouseClick(&field<QAbstractButton>(button), Qt::LeftButton);
    QApplication::processEvents();
}

void Search::sort_by(int column) const {
    QHeaderView& header = *table().horizontalHeader();
    table().scrollTo(table().model()->index(0, column));
    const QPoint place(header.sectionViewportPosition(column) + header.sectionSize(column) / 2, header.height() / 2);
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, place);
    QApplication::processEvents();
}

void Search::choose(int player, int column) const {
    const auto& model = dynamic_cast<const app::PlayersModel&>(*table().model());
    const QModelIndex cell = model.index(model.row_of(player), column);
    table().scrollTo(cell);
    // Behind the tick and the portrait.
    QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, table().visualRect(cell).center());
    QApplication::processEvents();
}

void Search::tick(int player) const {
    choose(player);
    key(table(), Qt::Key_Space);
}

void Search::key(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers) const {
    QTest::keyClick(&widget, key, modifiers);
    QApplication::processEvents();
}

}  // namespace kalco::test

#include "app/support/dialogs.h"

#include <QApplication>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QtTest/qtestkeyboard.h>
#include <QtTest/qtestmouse.h>
#include <stdexcept>

namespace kalco::test {
namespace {

constexpr int look_ms = 5;
constexpr int patience = 4000;  // Looks: 20 s.

QString plain(const QString& caption) {
    return QString(caption).replace(QStringLiteral("&&"), QStringLiteral("\1")).remove(u'&').replace(u'\1', u'&');
}

QAction& action_named(const QList<QAction*>& actions, const QString& name) {
    for (QAction* const action : actions) {
        if (plain(action->text()).startsWith(name)) return *action;
    }
    throw std::invalid_argument("no menu item " + name.toStdString());
}

}  // namespace

Answers::Answers() {
    timer_.callOnTimeout([this] { look(); });
    timer_.start(look_ms);
}

void Answers::look() {
    QWidget* const asked = QApplication::activeModalWidget();
    if (asked == nullptr || !asked->isVisible()) {
        idle_ = 0;
        return;
    }
    if (++idle_ > patience) {
        lost_ = true;
        asked->close();
        return;
    }
    if (steps_.empty()) return;
    // The step may run a dialog of its own, which is for the next one.
    const auto step = steps_.front();
    steps_.pop_front();
    idle_ = 0;
    if (!step(*asked)) steps_.push_front(step);
}

void Answers::choose(const QString& path) {
    then<QFileDialog>([path](QFileDialog& dialog) {
        auto& name = *dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        name.setText(path);
        QTest::keyClick(&name, Qt::Key_Return);
    });
}

void Answers::cancel_file_dialog() {
    then<QFileDialog>([](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
}

void Answers::press(const QString& caption) {
    then<QMessageBox>([this, caption](QMessageBox& box) {
        told_ << box.text();
        for (QAbstractButton* const button : box.buttons()) {
            if (plain(button->text()) == caption) return QTest::mouseClick(button, Qt::LeftButton);
        }
        lost_ = true;
        box.close();
    });
}

void choose_menu(QMainWindow& window, const QString& menu, const QString& item) {
    QMenuBar& bar = *window.menuBar();
    QAction& heading = action_named(bar.actions(), menu);
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.actionGeometry(&heading).center());
    QMenu& list = *heading.menu();
    QAction& action = action_named(list.actions(), item);
    QTest::mouseClick(&list, Qt::LeftButton, {}, list.actionGeometry(&action).center());
    list.hide();
}

}  // namespace kalco::test

#include "app/support/test_window.h"

#include <QApplication>
#include <QFile>
#include <QPalette>
#include <QStyle>
#include <QTabBar>
#include <QTabWidget>
#include <QtTest/qtestkeyboard.h>
#include <QtTest/qtestmouse.h>
#include <stdexcept>
#include <utility>

#include "app/style.h"
#include "app/widgets/rows_view.h"
#include "ctl/demo/demo_image.h"

namespace kalco::test {
namespace {

QPalette dark_palette() {
    const QColor window(0x2b, 0x2d, 0x30);
    const QColor base(0x1e, 0x1f, 0x22);
    const QColor text(0xdf, 0xe1, 0xe5);
    const QColor faint(0x80, 0x84, 0x8b);
    QPalette palette(text, QColor(0x3a, 0x3d, 0x41), Qt::white, QColor(0x14, 0x15, 0x17), QColor(0x55, 0x58, 0x5d),
                     text, Qt::white, base, window);
    palette.setColor(QPalette::Highlight, QColor(0x2e, 0x6f, 0xd0));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(0x6a, 0xa9, 0xff));
    palette.setColor(QPalette::PlaceholderText, faint);
    palette.setColor(QPalette::ToolTipBase, window);
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::AlternateBase, QColor(0x26, 0x28, 0x2b));
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, faint);
    }
    return palette;
}

}  // namespace

void prepare_application(bool dark) {
    QApplication::setStyle(new app::Style);
    QApplication::setQuitOnLastWindowClosed(false);
    if (!dark) return;
    QPalette palette = dark_palette();
    QApplication::style()->polish(palette);  // As with the palette of a desktop.
    QApplication::setPalette(palette);
}

DemoHome::DemoHome() {
    static const demo::DemoDisc disc = demo::make_demo_disc(1);
    demo::write_image(disc, image(), true, [](std::uint32_t) {});
}

std::string DemoHome::image_bytes() const {
    QFile file(QString::fromStdString(image()));
    if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("the image can't be read");
    return file.readAll().toStdString();
}

TestWindow::TestWindow(const std::string& image, const std::string& home, StorageOpener opener)
    : editor(platform, std::move(opener)) {
    platform.home = home;
    platform.choices.push_back(image);
    binder().on_failure = [this](const std::exception_ptr& thrown) { failure = thrown; };
    window.start();
    window.activateWindow();
    QApplication::processEvents();
}

TestWindow::~TestWindow() {
    window.close();
}

void TestWindow::select_tab(int tab) {
    QTabBar& bar = *widget<QTabWidget>(form().SSTab1).tabBar();
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(tab).center());
    QApplication::processEvents();
}

void TestWindow::click(const Control& control) {
    QTest::mouseClick(&widget(control), Qt::LeftButton);
    QApplication::processEvents();
}

void TestWindow::type(const Control& box, const QString& text) {
    click(box);
    QTest::keyClick(&widget(box), Qt::Key_A, Qt::ControlModifier);
    for (const QChar character : text) {
        QTest::sendKeyEvent(QTest::Click, &widget(box), Qt::Key_unknown, character, Qt::NoModifier);
    }
}

void TestWindow::pick_row(const Control& list, int row) {
    auto& rows = widget<app::RowsView>(list);
    const QModelIndex index = rows.model()->index(row, 0);
    rows.scrollTo(index);
    QTest::mouseClick(rows.viewport(), Qt::LeftButton, {}, rows.visualRect(index).center());
    QApplication::processEvents();
}

void TestWindow::double_click_row(const Control& list, int row) {
    pick_row(list, row);
    auto& rows = widget<app::RowsView>(list);
    const QPoint place = rows.visualRect(rows.model()->index(row, 0)).center();
    QTest::mouseDClick(rows.viewport(), Qt::LeftButton, {}, place);
    QTest::mouseRelease(rows.viewport(), Qt::LeftButton, {}, place);
    QApplication::processEvents();
}

void TestWindow::key(QWidget& widget, Qt::Key key) {
    QTest::keyClick(&widget, key);
    QApplication::processEvents();
}

void TestWindow::key(Qt::Key key) {
    if (QWidget* const focused = QApplication::focusWidget()) this->key(*focused, key);
}

}  // namespace kalco::test

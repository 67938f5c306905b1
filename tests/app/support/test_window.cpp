#include "app/support/test_window.h"

#include <QApplication>
#include <QPalette>

#include "app/style.h"

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
    if (dark) QApplication::setPalette(dark_palette());
}

TestWindow::TestWindow(const std::string& image, const std::string& home) {
    platform.home = home;
    platform.choices.push_back(image);
    window.start();
    window.activateWindow();
}

}  // namespace kalco::test

#pragma once

#include <QObject>
#include <vector>

#include "app/binder/binder.h"

class QAction;
class QMainWindow;
class QMenu;

namespace kalco::app {

class SavesStack;
class Tools;

/// The menu bar: the image, the saves, the tools, the help. "File" and "Strumenti" have no access key, as every letter
/// of theirs is one of a tab's; F10 reaches them.
class Menus : public QObject {
    Q_OBJECT

public:
    Menus(QMainWindow& window, Binder& binder, SavesStack& saves, Tools& tools);

    /// Switches off what needs an image where none is open.
    void refresh();

private:
    QAction& add(QMenu& menu, const QString& text, const QKeySequence& key, std::function<void()> step);
    /// One that works on the open image.
    void add_tool(QMenu& menu, const QString& text, const QKeySequence& key, std::function<void()> step);
    void add_saves(QMenu& menu, SavesStack& saves);
    void show_manual();

    QMainWindow& window_;
    Binder& binder_;
    std::vector<QAction*> on_image_;
};

}  // namespace kalco::app

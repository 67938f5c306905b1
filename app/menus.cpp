#include "app/menus.h"

#include <QAction>
#include <QMainWindow>
#include <QMenuBar>
#include <QShortcut>
#include <utility>

#include "app/help/manual.h"
#include "app/saves_stack.h"
#include "app/tools/tools.h"
#include "editor/window/user.h"

namespace kalco::app {
namespace {

/// "Annulla: Giocatore Italy, Favussolo".
QString with_name(const QString& verb, QString name) {
    return name.isEmpty() ? verb : verb + QStringLiteral(": ") + name.replace(u'&', QStringLiteral("&&"));
}

}  // namespace

Menus::Menus(QMainWindow& window, Binder& binder, SavesStack& saves, Tools& tools)
    : QObject(&window),
      window_(window),
      binder_(binder) {
    QMenuBar& bar = *window.menuBar();
    QMenu& file = *bar.addMenu(QStringLiteral("File"));
    add(file, QStringLiteral("&Apri immagine…"), QKeySequence::Open,
        [this] { binder_.act([this] { user::click(binder_.form(), binder_.form().cmdOpen); }); });
    add_tool(file, QStringLiteral("&Copia di sicurezza…"), {}, [&tools] { tools.copy_image(); });
    file.addSeparator();
    add(file, QStringLiteral("&Esci"), QStringLiteral("Ctrl+Q"), [this] { window_.close(); });

    QMenu& edit = *bar.addMenu(QStringLiteral("Mo&difica"));
    add_saves(edit, saves);
    edit.addSeparator();
    add_tool(edit, QStringLiteral("&Cerca giocatori…"), QKeySequence::Find, [&tools] { tools.search(); });

    QMenu& menu = *bar.addMenu(QStringLiteral("Strumenti"));
    add_tool(menu, QStringLiteral("&Esporta foglio…"), {}, [&tools] { tools.export_sheet(); });
    add_tool(menu, QStringLiteral("&Importa foglio…"), {}, [&tools] { tools.import_sheet(); });
    add_tool(menu, QStringLiteral("&Confronta con un'altra immagine…"), {}, [&tools] { tools.compare(); });
    add_tool(menu, QStringLiteral("&Patch…"), {}, [&tools] { tools.patch(); });
    menu.addSeparator();
    add_tool(menu, QStringLiteral("&Settori…"), {}, [&tools] { tools.sectors(); });
    add_tool(menu, QStringLiteral("&Relazione…"), {}, [&tools] { tools.report(); });

    QMenu& help = *bar.addMenu(QStringLiteral("&Aiuto"));
    add(help, QStringLiteral("&Manuale"), QKeySequence(Qt::Key_F1), [this] { show_manual(); });
    add(help, QStringLiteral("&Informazioni su Kalco"), {}, [this] { show_about(&window_); });
    auto* const key = new QShortcut(QKeySequence(Qt::Key_F10), &window);
    connect(key, &QShortcut::activated, &bar, [&bar] {
        bar.setFocus(Qt::MenuBarFocusReason);
        bar.setActiveAction(bar.actions().constFirst());
    });
    refresh();
}

QAction& Menus::add(QMenu& menu, const QString& text, const QKeySequence& key, std::function<void()> step) {
    QAction& action = *menu.addAction(text);
    action.setShortcut(key);
    connect(&action, &QAction::triggered, this, std::move(step));
    return action;
}

void Menus::add_tool(QMenu& menu, const QString& text, const QKeySequence& key, std::function<void()> step) {
    on_image_.push_back(&add(menu, text, key, std::move(step)));
}

void Menus::add_saves(QMenu& menu, SavesStack& saves) {
    QAction& undo = add(menu, QStringLiteral("&Annulla"), QKeySequence::Undo, [&saves] { saves.undo(); });
    QAction& redo = add(menu, QStringLiteral("&Ripeti"), {}, [&saves] { saves.redo(); });
    redo.setShortcuts({QKeySequence(QStringLiteral("Ctrl+Y")), QKeySequence(QStringLiteral("Ctrl+Shift+Z"))});
    undo.setEnabled(false);
    redo.setEnabled(false);
    connect(&saves, &QUndoStack::canUndoChanged, &undo, &QAction::setEnabled);
    connect(&saves, &QUndoStack::canRedoChanged, &redo, &QAction::setEnabled);
    connect(&saves, &QUndoStack::undoTextChanged, &undo,
            [&undo](const QString& name) { undo.setText(with_name(QStringLiteral("&Annulla"), name)); });
    connect(&saves, &QUndoStack::redoTextChanged, &redo,
            [&redo](const QString& name) { redo.setText(with_name(QStringLiteral("&Ripeti"), name)); });
}

void Menus::refresh() {
    const bool open = binder_.form().image.is_open();
    for (QAction* const action : on_image_) action->setEnabled(open);
}

void Menus::show_manual() {
    if (auto* const open = window_.findChild<Manual*>()) {
        open->raise();
        open->activateWindow();
        return;
    }
    (new Manual(&window_))->show();
}

}  // namespace kalco::app

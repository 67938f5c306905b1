#pragma once

#include <QUndoStack>
#include <exception>
#include <functional>

#include "app/binder/binder.h"

namespace kalco::app {

/// The saves of the run as the menu offers them: a mirror of the image's own history, one command for each save,
/// whichever tab or tool made it. What is taken back or made again is read anew by the editor.
class SavesStack : public QUndoStack {
    Q_OBJECT

public:
    explicit SavesStack(Binder& binder);
    ~SavesStack() override;

    /// Told when a save can't be taken back or made again.
    std::function<void(const QString& text)> on_failure;

private:
    friend class SaveCommand;

    void travel(bool back);
    /// Lays the commands down anew as the history has them.
    void follow();

    Binder& binder_;
    History& history_;
    bool following_ = false;  ///< Commands are laid down or passed without doing anything.
    bool travelling_ = false;
};

/// How a save is called in the menu: "Giocatore Italy, Favussolo".
QString save_name(const std::string& what);

}  // namespace kalco::app

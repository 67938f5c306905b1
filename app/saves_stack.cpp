#include "app/saves_stack.h"

#include <QUndoCommand>
#include <utility>

#include "app/text.h"
#include "app/tools/words.h"
#include "editor/window/user.h"

namespace kalco::app {

/// One save. Where the history does not follow, the stack is laid down anew after the step.
class SaveCommand : public QUndoCommand {
public:
    SaveCommand(SavesStack& stack, const QString& name) : QUndoCommand(name), stack_(stack) {}

    void undo() override { stack_.travel(true); }
    void redo() override { stack_.travel(false); }

private:
    SavesStack& stack_;
};

SavesStack::SavesStack(Binder& binder) : binder_(binder), history_(binder.form().history) {
    history_.changed = [this] {
        if (!travelling_) follow();
    };
    // A step that was not made leaves the stack where the history is not.
    connect(this, &QUndoStack::indexChanged, this, [this] {
        const bool same = std::cmp_equal(index(), history_.standing()) && std::cmp_equal(count(), history_.size());
        if (!following_ && !same) follow();
    });
}

SavesStack::~SavesStack() {
    history_.changed = nullptr;
    // The base class empties itself and tells so, when there is nobody left to hear it.
    disconnect(this, &QUndoStack::indexChanged, this, nullptr);
}

void SavesStack::travel(bool back) {
    if (following_) return;
    travelling_ = true;
    QString why;
    bool done = false;
    binder_.act([&] {
        frmKalco& form = binder_.form();
        const std::size_t standing = history_.standing();
        try {
            const bool expected = (back ? history_.undo_text() : history_.redo_text()) != nullptr;
            done = (back ? user::undo(form) : user::redo(form)).has_value();
            if (expected && !done) why = QStringLiteral("un altro programma ha cambiato gli stessi settori");
        } catch (const std::exception& failure) {
            why = words_of(failure);
            // The very last step of a save can fail when the save stands already.
            done = history_.standing() != standing;
        }
        if (done) user::read_anew(form);
    });
    travelling_ = false;
    if (why.isEmpty() || !on_failure) return;
    const QString outcome =
        done ? QStringLiteral("È fatto, ma con un errore: %1.") : QStringLiteral("Niente è stato cambiato: %1.");
    on_failure(outcome.arg(why));
}

void SavesStack::follow() {
    following_ = true;
    clear();
    for (const std::string& what : history_.texts()) push(new SaveCommand(*this, save_name(what)));
    setIndex(static_cast<int>(history_.standing()));
    following_ = false;
}

QString save_name(const std::string& what) {
    QString name = qt_text(what);
    if (const auto colon = name.indexOf(u':'); colon >= 0) name.remove(colon, 1);
    return name;
}

}  // namespace kalco::app

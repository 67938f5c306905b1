#pragma once

#include <QString>
#include <functional>
#include <vector>

#include "editor/window/control.h"

namespace kalco::app {

/// A field that shows something else than the image, or the file, holds.
struct DraftChange {
    QString field;  ///< In small letters, "velocità".
    QString before;
    QString after;
    const Control* control = nullptr;  ///< The one to mark, if the field is one.
};

/// What is typed and not saved.
struct Draft {
    QString title;  ///< "Modifiche a Rossi non salvate".
    QString owner;  ///< "Rossi".
    std::vector<DraftChange> changes;
    /// Goes back to where the changes were made and makes them again, by actions of the user.
    std::function<void()> make_again;

    bool empty() const { return changes.empty(); }
    /// One line: "Modifiche a Rossi non salvate: velocità 15→17".
    QString told() const;
};

/// Whether the same changes are unsaved in the same place.
bool same(const Draft& one, const Draft& other);

inline constexpr QStringView unsaved_text = u"● non salvato";

/// What stands beside a save button; empty for an empty draft.
QString unsaved_mark(const Draft& draft);

/// Knows what is unsaved in one place of the window.
class DraftWatch {
public:
    DraftWatch() = default;
    virtual ~DraftWatch() = default;
    DraftWatch(const DraftWatch&) = delete;
    DraftWatch& operator=(const DraftWatch&) = delete;

    const Draft& draft() const { return draft_; }

    /// After an action. Gives what the action dropped, an empty draft if it dropped nothing.
    Draft look();

protected:
    /// What is unsaved now.
    virtual Draft now() = 0;
    /// What of the last look's draft is gone, its fields having been filled anew.
    virtual Draft lost(const Draft& last) { return last; }

    /// The fields were filled anew: what stood in them is gone.
    void note_loaded() { loaded_ = true; }
    /// What stood in the fields was written.
    void note_saved() { saved_ = true; }

private:
    Draft draft_;
    bool loaded_ = false;
    bool saved_ = false;
};

}  // namespace kalco::app

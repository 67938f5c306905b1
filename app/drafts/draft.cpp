#include "app/drafts/draft.h"

#include <QStringList>
#include <algorithm>
#include <utility>

namespace kalco::app {
namespace {

/// More would not be read.
constexpr std::size_t changes_told = 4;

QString shown(const QString& text) {
    return text.isEmpty() ? QStringLiteral("vuoto") : text;
}

}  // namespace

QString Draft::told() const {
    QStringList parts;
    for (std::size_t i = 0; i < changes.size() && i < changes_told; ++i) {
        parts << QStringLiteral("%1 %2→%3").arg(changes[i].field, shown(changes[i].before), shown(changes[i].after));
    }
    if (changes.size() > changes_told) {
        const std::size_t more = changes.size() - changes_told;
        parts << (more == 1 ? QStringLiteral("e un'altra") : QStringLiteral("e altre %1").arg(more));
    }
    return title + QStringLiteral(": ") + parts.join(QStringLiteral(", "));
}

bool same(const Draft& one, const Draft& other) {
    return one.title == other.title && std::equal(one.changes.begin(), one.changes.end(), other.changes.begin(),
                                                  other.changes.end(), [](const DraftChange& a, const DraftChange& b) {
                                                      return a.field == b.field && a.before == b.before &&
                                                             a.after == b.after;
                                                  });
}

QString unsaved_mark(const Draft& draft) {
    return draft.empty() ? QString() : unsaved_text.toString();
}

Draft DraftWatch::look() {
    const bool loaded = std::exchange(loaded_, false);
    const bool saved = std::exchange(saved_, false);
    Draft dropped;
    if (loaded && !saved && !draft_.empty()) dropped = lost(draft_);
    draft_ = now();
    // A button that was to fill the fields may have left them alone: the dialog of the image was cancelled.
    if (same(dropped, draft_)) dropped = {};
    return dropped;
}

}  // namespace kalco::app

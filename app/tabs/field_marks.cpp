#include "app/tabs/field_marks.h"

#include <QWidget>
#include <algorithm>

#include "app/style.h"

namespace kalco::app {
namespace {

QString hint_with(const QString& own, const QString& before) {
    const QString was = before.isEmpty() ? QStringLiteral("Era vuoto") : QStringLiteral("Era: ") + before;
    return own.isEmpty() ? was : own + u'\n' + was;
}

}  // namespace

void FieldMarks::show(const Draft& draft) {
    std::erase_if(own_hints_, [&](const auto& marked) {
        QWidget* const widget = marked.first;
        const bool stays = std::any_of(draft.changes.begin(), draft.changes.end(), [&](const DraftChange& change) {
            return change.control != nullptr && binder_.widget_of(*change.control) == widget;
        });
        if (stays) return false;
        mark_unsaved(*widget, false);
        widget->setToolTip(marked.second);
        return true;
    });
    for (const DraftChange& change : draft.changes) {
        if (change.control == nullptr) continue;
        QWidget* const widget = binder_.widget_of(*change.control);
        const auto [place, fresh] = own_hints_.try_emplace(widget, widget->toolTip());
        if (fresh) mark_unsaved(*widget, true);
        const QString hint = hint_with(place->second, change.before);
        if (widget->toolTip() != hint) widget->setToolTip(hint);
    }
}

}  // namespace kalco::app

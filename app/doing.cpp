#include "app/doing.h"

#include <QAccessible>
#include <QWidget>

#include "app/text.h"

namespace kalco::app {
namespace {

/// As a screen reader calls it: the label of a field, a button's caption.
QString spoken_name(const Binder& binder, const Control& control) {
    QWidget* const widget = binder.widget_of(control);
    const QAccessibleInterface* spoken = widget == nullptr ? nullptr : QAccessible::queryAccessibleInterface(widget);
    if (spoken == nullptr) return {};
    // Where labels are told as such, a pick list takes its text for its name.
    const auto labels = spoken->relations(QAccessible::Label);
    if (!labels.isEmpty()) spoken = labels.constFirst().first;
    return spoken->text(QAccessible::Name).remove(u'&').trimmed();
}

QString chosen_text(const frmKalco& form, const Control& control) {
    switch (control.kind()) {
        case Kind::combo_box: return qt_text(static_cast<const ComboBox&>(control).text());
        case Kind::list_box: return qt_text(static_cast<const ListBox&>(control).text());
        case Kind::tab_control: {
            const std::string& caption = form.SSTab1.captions().at(static_cast<std::size_t>(form.SSTab1.tab()));
            return qt_text(caption)
                .replace(QStringLiteral("&&"), QStringLiteral("\1"))
                .remove(u'&')
                .replace(u'\1', u'&');
        }
        default: return {};
    }
}

}  // namespace

QString last_doing(const Binder& binder) {
    const frmKalco& form = binder.form();
    const Control* const control = form.focused();
    if (control == nullptr) return QStringLiteral("apertura dell'immagine");
    const QString name =
        control->kind() == Kind::tab_control ? QStringLiteral("scheda") : spoken_name(binder, *control);
    const QString chosen = chosen_text(form, *control).trimmed();
    if (chosen.isEmpty()) return name.isEmpty() ? qt_text(control->name()) : QStringLiteral("«%1»").arg(name);
    return QStringLiteral("%1 «%2»").arg(name, chosen);
}

}  // namespace kalco::app

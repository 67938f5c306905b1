#pragma once

#include <QString>

class QWidget;

/// The boxes of the tools, in the manner of the editor's own.
namespace kalco::app {

/// Tells what went wrong, and under it more about it where there is more.
void tell_failure(QWidget* parent, const QString& text, QStringView more = {});
/// Asks before something that `doing` names on its button; Esc and the other button leave everything as it is.
bool ask(QWidget* parent, const QString& question, QStringView doing);

}  // namespace kalco::app

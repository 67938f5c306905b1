#include "app/application.h"

namespace kalco::app {

bool Application::notify(QObject* receiver, QEvent* event) {
    if (!on_failure) return QApplication::notify(receiver, event);
    try {
        return QApplication::notify(receiver, event);
    } catch (...) {
        on_failure(std::current_exception());
        return true;
    }
}

}  // namespace kalco::app

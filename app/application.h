#pragma once

#include <QApplication>
#include <exception>
#include <functional>

namespace kalco::app {

/// Qt's application, but for what is thrown while an event is handled: Qt would end the program on the spot, with the
/// image open.
class Application : public QApplication {
    Q_OBJECT

public:
    using QApplication::QApplication;

    /// Takes what no handler has caught.
    std::function<void(const std::exception_ptr&)> on_failure;

    bool notify(QObject* receiver, QEvent* event) override;
};

}  // namespace kalco::app

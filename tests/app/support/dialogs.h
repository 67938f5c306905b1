#pragma once

#include <QFileDialog>
#include <QMessageBox>
#include <QTimer>
#include <deque>
#include <functional>

class QMainWindow;

namespace kalco::test {

/// Answers the dialogs that code under test shows in event loops of its own, one after the other. A dialog that nobody
/// answers is closed after a while, so that nothing hangs; all_given() is false then.
class Answers {
public:
    Answers();

    template <typename Dialog>
    void then(std::function<void(Dialog&)> step) {
        steps_.push_back([step](QWidget& widget) {
            auto* const dialog = dynamic_cast<Dialog*>(&widget);
            if (dialog != nullptr) step(*dialog);
            return dialog != nullptr;
        });
    }
    /// Chooses a file in a file dialog, as by typing its path.
    void choose(const QString& path);
    void cancel_file_dialog();
    /// Presses a button of a message box by its caption; the box's text is kept.
    void press(const QString& caption);

    /// Whether every step has had its dialog.
    bool all_given() const { return steps_.empty() && !lost_; }
    /// The texts of the message boxes so far.
    const QStringList& told() const { return told_; }

private:
    void look();

    std::deque<std::function<bool(QWidget&)>> steps_;
    QStringList told_;
    QTimer timer_;
    int idle_ = 0;
    bool lost_ = false;
};

/// Chooses an item of the menu bar with the mouse; both captions without "&", the item's may go on.
void choose_menu(QMainWindow& window, const QString& menu, const QString& item);

}  // namespace kalco::test

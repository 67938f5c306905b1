#pragma once

#include <QString>
#include <atomic>
#include <cstdint>
#include <functional>

class QWidget;

namespace kalco::app {

/// Long work beside the event loop, as the work itself sees it.
class Job {
public:
    /// Leaves the work when the user cancels it; only run_job() catches it.
    class Cancelled {};

    /// Of the whole work, in steps of any size.
    void set_total(std::int64_t total) { total_ = total; }
    /// Tells how many steps are done. Throws Cancelled once the user has cancelled. Any thread may call it.
    void operator()(std::int64_t done);

    std::int64_t done() const { return done_; }
    std::int64_t total() const { return total_; }
    void cancel() { cancelled_ = true; }

private:
    std::atomic<std::int64_t> done_ = 0;
    std::atomic<std::int64_t> total_ = 0;
    std::atomic<bool> cancelled_ = false;
};

/// Runs `work` on a thread of its own and waits for it with the event loop running. What takes longer than a blink
/// shows a box over the window with progress and "Annulla", and nothing else of the program can be used meanwhile: the
/// work may read the open image. False when it was cancelled. What the work throws is thrown on.
bool run_job(QWidget* parent, const QString& doing, const std::function<void(Job&)>& work);

}  // namespace kalco::app

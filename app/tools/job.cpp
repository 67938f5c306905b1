#include "app/tools/job.h"

#include <QDialog>
#include <QEventLoop>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>
#include <exception>
#include <thread>

namespace kalco::app {
namespace {

constexpr int blink_ms = 150;
constexpr int redraw_ms = 50;
constexpr int bar_steps = 1000;
constexpr int width_in_characters = 60;

/// The end of the work alone closes the box: cancelling is a wish until the work has heard it.
class JobBox : public QDialog {
public:
    JobBox(QWidget* parent, const QString& doing, Job& job)
        : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
          job_(job),
          doing_(new QLabel(doing)),
          bar_(new QProgressBar),
          cancel_(new QPushButton(QStringLiteral("Annulla"))) {
        setObjectName(QStringLiteral("jobBox"));
        setWindowTitle(QStringLiteral("Kalco"));
        setWindowModality(Qt::ApplicationModal);
        setMinimumWidth(fontMetrics().averageCharWidth() * width_in_characters);
        doing_->setTextFormat(Qt::PlainText);
        doing_->setWordWrap(true);
        bar_->setRange(0, 0);
        bar_->setAccessibleName(doing);
        auto* const column = new QVBoxLayout(this);
        column->addWidget(doing_);
        column->addWidget(bar_);
        column->addWidget(cancel_, 0, Qt::AlignRight);
        connect(cancel_, &QPushButton::clicked, this, &JobBox::reject);
        auto* const redraw = new QTimer(this);
        connect(redraw, &QTimer::timeout, this, &JobBox::show_progress);
        redraw->start(redraw_ms);
    }

    void reject() override {
        job_.cancel();
        cancel_->setEnabled(false);
        doing_->setText(QStringLiteral("Si annulla…"));
    }

private:
    void show_progress() {
        if (job_.total() <= 0) return;
        bar_->setRange(0, bar_steps);
        bar_->setValue(static_cast<int>(job_.done() * bar_steps / job_.total()));
    }

    Job& job_;
    QLabel* doing_;
    QProgressBar* bar_;
    QPushButton* cancel_;
};

}  // namespace

void Job::operator()(std::int64_t done) {
    if (cancelled_) throw Cancelled();
    done_ = done;
}

bool run_job(QWidget* parent, const QString& doing, const std::function<void(Job&)>& work) {
    Job job;
    QEventLoop loop;
    std::exception_ptr failure;
    bool cancelled = false;
    bool over = false;
    std::thread thread([&] {
        try {
            work(job);
        } catch (const Job::Cancelled&) {
            cancelled = true;
        } catch (...) {
            failure = std::current_exception();
        }
        const auto end = [&] {
            over = true;
            loop.quit();
        };
        QMetaObject::invokeMethod(&loop, end, Qt::QueuedConnection);
    });
    // What is over in a blink needs no box; until one is there, nothing may reach the window either.
    QTimer::singleShot(blink_ms, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    if (!over) {
        JobBox box(parent, doing, job);
        box.show();
        while (!over) loop.exec();
    }
    thread.join();
    if (failure) std::rethrow_exception(failure);
    return !cancelled;
}

}  // namespace kalco::app

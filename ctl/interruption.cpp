#include "ctl/interruption.h"

namespace kalco::ctl {
namespace {

// A handler can reach nothing else.
volatile std::sig_atomic_t noted = 0;  // NOLINT(*-avoid-non-const-global-variables)

extern "C" void note(int signal) {
    noted = signal;
}

}  // namespace

Interruption::Interruption() {
    noted = 0;
    for (std::size_t i = 0; i < signals.size(); ++i) {
        ::sigaction(signals[i], nullptr, &before_[i]);
        // Who started the program may have wished that it goes on (nohup).
        if (before_[i].sa_handler == SIG_IGN) continue;
        struct sigaction action {};
        action.sa_handler = note;
        ::sigaction(signals[i], &action, nullptr);
    }
}

Interruption::~Interruption() {
    for (std::size_t i = 0; i < signals.size(); ++i) ::sigaction(signals[i], &before_[i], nullptr);
}

// A member, so that only who holds one asks.
void Interruption::check() const {  // NOLINT(readability-convert-member-functions-to-static)
    if (noted != 0) throw Interrupted{noted};
}

}  // namespace kalco::ctl

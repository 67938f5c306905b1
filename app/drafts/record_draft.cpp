#include "app/drafts/record_draft.h"

#include "disc/runtime_error.h"

namespace kalco::app {

Draft RecordDraft::now() {
    if (!form_.image.is_open()) return {};
    try {
        return compare();
    } catch (const RuntimeError&) {
        return {};
    }
}

Draft RecordDraft::lost(const Draft& last) {
    if (!form_.image.is_open()) return last;
    try {
        return unwritten(last);
    } catch (const RuntimeError&) {
        return last;
    }
}

void RecordDraft::listen(Listeners& listeners, std::initializer_list<Event*> events) {
    for (Event* event : events) listeners.after(*event, [this] { note_loaded(); });
}

}  // namespace kalco::app

#include "app/drafts/listeners.h"

#include <utility>

namespace kalco::app {

Listeners::~Listeners() {
    for (auto& [event, heard] : heard_) *event = std::move(heard->handler);
}

void Listeners::before(Event& event, std::function<void()> step) {
    heard(event).before.push_back(std::move(step));
}

void Listeners::after(Event& event, std::function<void()> step) {
    heard(event).after.push_back(std::move(step));
}

Listeners::Heard& Listeners::heard(Event& event) {
    std::unique_ptr<Heard>& place = heard_[&event];
    if (place == nullptr) {
        place = std::make_unique<Heard>();
        place->handler = std::move(event);
        event = [heard = place.get()] {
            for (const auto& step : heard->before) step();
            raise(heard->handler);
            for (const auto& step : heard->after) step();
        };
    }
    return *place;
}

}  // namespace kalco::app

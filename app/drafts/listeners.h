#pragma once

#include <functional>
#include <memory>
#include <unordered_map>
#include <vector>

#include "editor/window/control.h"

namespace kalco::app {

/// Steps that run around a control's event without being part of its handler. They end with the listeners.
class Listeners {
public:
    Listeners() = default;
    ~Listeners();
    Listeners(const Listeners&) = delete;
    Listeners& operator=(const Listeners&) = delete;

    void before(Event& event, std::function<void()> step);
    /// Not when the handler throws.
    void after(Event& event, std::function<void()> step);

private:
    struct Heard {
        Event handler;
        std::vector<std::function<void()>> before;
        std::vector<std::function<void()>> after;
    };

    Heard& heard(Event& event);

    std::unordered_map<Event*, std::unique_ptr<Heard>> heard_;
};

}  // namespace kalco::app

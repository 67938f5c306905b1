#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace kalco {

class Control;
class Frame;

enum class Kind {
    label,
    text_box,
    combo_box,
    list_box,
    command_button,
    option_button,
    frame,
    image_box,
    strength_bar,
    number_cell,
    pitch_marker,
    tab_control,
};

using Event = std::function<void()>;

/// An event without a handler has nothing to do.
inline void raise(const Event& event) {
    if (event) event();
}

/// All controls of a window, in the order of their declaration, and each by its name.
class Registry {
public:
    Registry() = default;
    Registry(const Registry&) = delete;
    Registry& operator=(const Registry&) = delete;

    void add(Control& control);
    /// nullptr when there is none of that name; a member of an array is "name(index)".
    Control* find(std::string_view name) const;
    const std::vector<Control*>& all() const { return all_; }

private:
    std::vector<Control*> all_;
    std::unordered_map<std::string, Control*> by_name_;
};

/// Where a control stands: on a tab, in a frame (and on its tab), outside the tabs, or never on the screen.
struct Place {
    static constexpr int outside_tabs = -1;

    Place(Frame& around);
    static Place on_tab(int tab) { return Place(tab, true); }
    static Place anywhere() { return Place(outside_tabs, true); }
    static Place off_screen() { return Place(outside_tabs, false); }
    static Place off_screen_in(Frame& around);

    int tab;
    Frame* frame = nullptr;
    bool on_screen;

private:
    Place(int tab_index, bool shown) : tab(tab_index), on_screen(shown) {}
};

/// What all controls share. A view attaches to `changed`; handlers attach to the events.
class Control {
public:
    Control(Registry& registry, std::string name, Kind kind, Place place);
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    const std::string& name() const { return name_; }
    Kind kind() const { return kind_; }
    /// -1 outside the tabs.
    int tab() const { return place_.tab; }
    Frame* frame() const { return place_.frame; }
    /// False for the lists and fields that no user ever sees.
    bool on_screen() const { return place_.on_screen; }

    bool enabled() const { return enabled_; }
    bool visible() const { return visible_; }
    /// Its own state and that of the frames around it.
    bool takes_input() const;
    const std::string& hint() const { return hint_; }
    /// Labels and pictures take no focus.
    bool takes_focus() const;

    void set_enabled(bool enabled);
    void set_visible(bool visible);
    void set_hint(std::string hint);

    Event got_focus;
    Event lost_focus;
    Event changed;

protected:
    void notify() const { raise(changed); }

private:
    std::string name_;
    Kind kind_;
    Place place_;
    bool enabled_ = true;
    bool visible_ = true;
    std::string hint_;
};

class Frame : public Control {
public:
    Frame(Registry& registry, std::string name, Place place, std::string caption = {});
    const std::string& caption() const { return caption_; }

private:
    std::string caption_;
};

}  // namespace kalco

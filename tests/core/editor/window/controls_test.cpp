#include "editor/window/controls.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "disc/runtime_error.h"
#include "support/outcome.h"

namespace kalco {
namespace {

using test::error_of;
using Texts = std::vector<std::string>;

class Controls : public ::testing::Test {
protected:
    Event counted(int& count) {
        return [&count] { ++count; };
    }

    Registry registry;
    Place place = Place::on_tab(0);
    int clicks = 0;
    int changes = 0;
};

class Lists : public Controls {
protected:
    Lists() {
        list.assign({"a", "b", "c", "d"});
        list.click = counted(clicks);
        list.changed = counted(changes);
    }

    ListBox list{registry, "list", place};
};

TEST_F(Lists, RaiseTheClickOfASelectionInCodeOnAChangeOfRow) {
    list.select(2);
    EXPECT_EQ(clicks, 1);
    list.select(2);
    EXPECT_EQ(clicks, 1);
    list.select(0);
    EXPECT_EQ(clicks, 2);
    list.select(-1);
    EXPECT_EQ(clicks, 2);
    EXPECT_EQ(list.row(), -1);
    EXPECT_EQ(list.text(), "");
}

TEST_F(Lists, RaiseTheClickOfEveryPick) {
    list.pick(2);
    list.pick(2);
    EXPECT_EQ(clicks, 2);
    EXPECT_EQ(list.text(), "c");
}

TEST_F(Lists, SelectSilently) {
    list.select_silently(3);
    EXPECT_EQ(list.row(), 3);
    list.select_silently(-1);
    EXPECT_EQ(list.row(), -1);
    EXPECT_EQ(clicks, 0);
}

TEST_F(Lists, RefuseTheSelectionOfARowThatDoesNotExist) {
    list.select(1);
    for (const int row : {4, -2, 100}) {
        EXPECT_EQ(error_of([&] { list.select(row); }), error::invalid_property) << row;
        EXPECT_EQ(error_of([&] { list.select_silently(row); }), error::invalid_property) << row;
    }
    list.clear();
    EXPECT_EQ(error_of([&] { list.select(0); }), error::invalid_property);
    EXPECT_EQ(clicks, 1);
}

TEST_F(Lists, KeepTheSelectionWithItsRow) {
    list.select(2);
    list.insert("x", 3);
    EXPECT_EQ(list.row(), 2);
    list.insert("y", 2);
    EXPECT_EQ(list.row(), 3);
    EXPECT_EQ(list.text(), "c");
    list.remove(4);
    EXPECT_EQ(list.text(), "c");
    list.remove(0);
    EXPECT_EQ(list.row(), 2);
    EXPECT_EQ(list.text(), "c");
    EXPECT_EQ(list.items(), (Texts{"b", "y", "c", "d"}));
    list.add("e");
    EXPECT_EQ(list.text(), "c");
    EXPECT_EQ(clicks, 1);
}

TEST_F(Lists, LoseTheSelectionWithItsRow) {
    list.select(2);
    list.remove(2);
    EXPECT_EQ(list.row(), -1);
    EXPECT_EQ(list.text(), "");
    EXPECT_EQ(clicks, 1);
    list.select(2);
    EXPECT_EQ(clicks, 2);
    list.clear();
    EXPECT_EQ(list.row(), -1);
    list.assign({"p", "q"});
    EXPECT_EQ(list.row(), -1);
    list.select(1);
    list.assign({"p", "q"});
    EXPECT_EQ(list.row(), -1);
}

TEST_F(Lists, InsertAndRemoveOnlyWhereThereIsAPlace) {
    EXPECT_EQ(error_of([&] { list.insert("x", 5); }), error::invalid_call);
    EXPECT_EQ(error_of([&] { list.insert("x", -1); }), error::invalid_call);
    EXPECT_EQ(error_of([&] { list.remove(4); }), error::invalid_call);
    EXPECT_EQ(error_of([&] { list.remove(-1); }), error::invalid_call);
    EXPECT_EQ(error_of([&] { list.replace(4, "x"); }), error::invalid_call);
    EXPECT_EQ(list.items(), (Texts{"a", "b", "c", "d"}));
    list.insert("e", 4);
    EXPECT_EQ(list.item(4), "e");
    list.insert("0", 0);
    EXPECT_EQ(list.item(0), "0");
}

TEST_F(Lists, ReplaceATextInPlace) {
    list.select(1);
    list.replace(1, "new");
    EXPECT_EQ(list.text(), "new");
    EXPECT_EQ(list.row(), 1);
    EXPECT_EQ(clicks, 1);
}

TEST_F(Lists, GiveAnEmptyTextForAMissingRow) {
    EXPECT_EQ(list.item(-1), "");
    EXPECT_EQ(list.item(4), "");
    EXPECT_EQ(list.item(3), "d");
}

TEST_F(Lists, CutTheirTextsAtTheFirstZero) {
    const std::string text("x\0y", 3);
    list.add(text);
    list.insert(text, 0);
    list.replace(1, text);
    EXPECT_EQ(list.items(), (Texts{"x", "x", "b", "c", "d", "x"}));
    list.assign({text, std::string("\0", 1)});
    EXPECT_EQ(list.items(), (Texts{"x", ""}));
}

TEST_F(Lists, TellTheirViewOfEveryChange) {
    list.add("e");
    list.insert("f", 0);
    list.remove(0);
    list.replace(0, "z");
    list.select(1);
    list.clear();
    list.assign({"q"});
    EXPECT_EQ(changes, 7);
}

class Combos : public Controls {
protected:
    Combos() {
        combo.set_items({"12", "13", "13", "14"});
        combo.click = counted(clicks);
    }

    ComboBox combo{registry, "combo", place};
};

TEST_F(Combos, StartWithoutARow) {
    EXPECT_EQ(combo.row(), -1);
    EXPECT_EQ(combo.text(), "");
}

TEST_F(Combos, TakeTheRowOfTheFirstEqualItemForAnAssignedText) {
    combo.set_text("13");
    EXPECT_EQ(combo.row(), 1);
    combo.set_text("14");
    EXPECT_EQ(combo.row(), 3);
    combo.set_text("15");
    EXPECT_EQ(combo.row(), -1);
    EXPECT_EQ(combo.text(), "15");
    combo.set_text("14 ");
    EXPECT_EQ(combo.row(), -1);
    combo.set_text(std::string_view("12\0x", 4));
    EXPECT_EQ(combo.row(), 0);
    combo.set_text("");
    EXPECT_EQ(combo.row(), -1);
    EXPECT_EQ(clicks, 0);
}

TEST_F(Combos, RaiseTheClickOfASelectionInCodeOnAChangeOfRow) {
    combo.select(3);
    EXPECT_EQ(combo.text(), "14");
    combo.select(3);
    EXPECT_EQ(clicks, 1);
    combo.select(-1);
    EXPECT_EQ(combo.text(), "");
    EXPECT_EQ(clicks, 1);
    combo.set_text("14");
    combo.select(3);
    EXPECT_EQ(clicks, 1);
    combo.set_text("other");
    combo.select(3);
    EXPECT_EQ(clicks, 2);
}

TEST_F(Combos, RaiseTheClickOfEveryPick) {
    combo.pick(2);
    combo.pick(2);
    EXPECT_EQ(clicks, 2);
    EXPECT_EQ(combo.row(), 2);
    EXPECT_EQ(combo.text(), "13");
}

TEST_F(Combos, RefuseARowThatDoesNotExist) {
    combo.select(1);
    for (const int row : {4, -2}) {
        EXPECT_EQ(error_of([&] { combo.select(row); }), error::invalid_property) << row;
    }
    EXPECT_EQ(combo.row(), 1);
    EXPECT_EQ(clicks, 1);
}

TEST_F(Controls, TextBoxesRaiseTheirChangeAtEveryAssignment) {
    TextBox box(registry, "box", place, 3);
    box.change = counted(changes);
    box.set_text("abc");
    box.set_text("abc");
    box.set_text("");
    EXPECT_EQ(changes, 3);
}

TEST_F(Controls, TextBoxesNeverCutAnAssignedText) {
    TextBox box(registry, "box", place, 3);
    box.set_text("abcdef");
    EXPECT_EQ(box.text(), "abcdef");
    box.set_max_length(2);
    EXPECT_EQ(box.text(), "abcdef");
    EXPECT_EQ(box.max_length(), 2);
    box.set_text(std::string_view("ab\0c", 4));
    EXPECT_EQ(box.text(), "ab");
}

TEST_F(Controls, TextBoxesRememberARequestedSelectionOnce) {
    TextBox box(registry, "box", place);
    EXPECT_FALSE(box.has_selection_request());
    box.select(1, 2);
    ASSERT_TRUE(box.has_selection_request());
    const auto selection = box.take_selection();
    EXPECT_EQ(selection.start, 1);
    EXPECT_EQ(selection.length, 2);
    EXPECT_FALSE(box.has_selection_request());
}

TEST_F(Controls, LabelsCutTheirCaptionAtTheFirstZero) {
    Label label(registry, "label", place, "start");
    EXPECT_EQ(label.caption(), "start");
    label.set_caption(std::string_view("ab\0c", 4));
    EXPECT_EQ(label.caption(), "ab");
}

TEST_F(Controls, OptionButtonsExcludeEachOtherInTheirFrame) {
    Frame frame(registry, "frame", place);
    Frame other_frame(registry, "other", place);
    OptionButton first(registry, "first", frame, {}, true);
    OptionButton second(registry, "second", frame);
    OptionButton stranger(registry, "stranger", other_frame, {}, true);
    int first_clicks = 0;
    first.click = counted(first_clicks);
    second.click = counted(clicks);
    second.set_value(true);
    EXPECT_TRUE(second.value());
    EXPECT_FALSE(first.value());
    EXPECT_TRUE(stranger.value());
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(first_clicks, 0);
    second.set_value(true);
    EXPECT_EQ(clicks, 2);
    second.set_value(false);
    EXPECT_FALSE(second.value());
    EXPECT_EQ(clicks, 2);
}

TEST_F(Controls, StrengthBarsHoldTheirValueWithinTheBar) {
    StrengthBar bar(registry, "bar", place);
    bar.set_value(255);
    EXPECT_EQ(bar.value(), 10);
    bar.set_value(-1);
    EXPECT_EQ(bar.value(), 0);
    bar.set_value(7);
    EXPECT_EQ(bar.value(), 7);
    bar.set_caption("255");
    EXPECT_EQ(bar.value(), 7);
    EXPECT_EQ(bar.caption(), "255");
}

TEST_F(Controls, TabsRaiseTheirChangeOnlyForAnotherTab) {
    TabControl tabs(registry, "tabs", {"a", "b"});
    tabs.change = counted(changes);
    tabs.select(0);
    EXPECT_EQ(changes, 0);
    tabs.select(1);
    tabs.select(1);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(tabs.tab(), 1);
}

TEST_F(Controls, ArraysAreFoundByNameAndIndex) {
    ControlArray<TextBox> boxes(registry, "txtNM", 1, 11, place);
    EXPECT_EQ(boxes(1).name(), "txtNM(1)");
    EXPECT_EQ(registry.find("txtNM(11)"), &boxes(11));
    EXPECT_EQ(registry.find("txtNM(12)"), nullptr);
    EXPECT_EQ(registry.find("txtNM"), nullptr);
    EXPECT_EQ(boxes.first(), 1);
    EXPECT_EQ(boxes.last(), 11);
    for (const int index : {0, 12, -1}) {
        EXPECT_FALSE(boxes.has(index));
        EXPECT_EQ(error_of([&] { boxes(index); }), error::no_such_element) << index;
        const auto& constant = boxes;
        EXPECT_EQ(error_of([&] { constant(index); }), error::no_such_element) << index;
    }
}

TEST_F(Controls, AreSwitchedOffWithTheirFrames) {
    Frame outer(registry, "outer", place);
    Frame inner(registry, "inner", outer);
    TextBox box(registry, "box", inner);
    EXPECT_EQ(box.tab(), 0);
    EXPECT_TRUE(box.takes_input());
    outer.set_enabled(false);
    EXPECT_FALSE(box.takes_input());
    EXPECT_TRUE(box.enabled());
    outer.set_enabled(true);
    box.set_enabled(false);
    EXPECT_FALSE(box.takes_input());
    EXPECT_TRUE(inner.takes_input());
}

TEST_F(Controls, HaveNamesOfTheirOwn) {
    const Label first(registry, "twin", place);
    EXPECT_THROW(Label(registry, "twin", place), std::logic_error);
    EXPECT_EQ(registry.find("twin"), &first);
    EXPECT_EQ(registry.find("Twin"), nullptr);
}

TEST_F(Controls, TellTheirViewOfTheirStateOnlyWhenItChanges) {
    Label label(registry, "label", place);
    label.changed = counted(changes);
    label.set_enabled(true);
    label.set_visible(true);
    EXPECT_EQ(changes, 0);
    label.set_enabled(false);
    label.set_visible(false);
    EXPECT_EQ(changes, 2);
    label.set_hint("x");
    EXPECT_EQ(label.hint(), "x");
    EXPECT_EQ(changes, 3);
}

}  // namespace
}  // namespace kalco

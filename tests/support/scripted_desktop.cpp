#include "tests/support/scripted_desktop.h"

#include "platform/controls/form.h"

#include <gtest/gtest.h>

namespace tests {

using platform::BoxAnswer;
using platform::Text;

ScriptedDesktop::~ScriptedDesktop() {
    for (const Expected& box : expected_boxes_) {
        ADD_FAILURE() << "a box never came: " << described(box.box);
    }
    for (const ExpectedDialog& dialog : expected_dialogs_) {
        ADD_FAILURE() << "a file dialog never came: " << platform::to_utf8(dialog.title);
    }
    for (const ExpectedInput& input : expected_inputs_) {
        ADD_FAILURE() << "an input box never came: " << described(input.box);
    }
    for (const auto& [name, acts] : acts_) {
        if (!acts.empty()) ADD_FAILURE() << "a form never opened: " << platform::to_utf8(name);
    }
}

void ScriptedDesktop::expect_box(platform::MessageBox box, BoxAnswer answer) {
    expected_boxes_.push_back({std::move(box), answer});
}

void ScriptedDesktop::expect_file_dialog(Text title, std::optional<Text> chosen) {
    expected_dialogs_.push_back({std::move(title), std::move(chosen)});
}

void ScriptedDesktop::expect_input(platform::InputBox box, Text answer) {
    expected_inputs_.push_back({std::move(box), std::move(answer)});
}

void ScriptedDesktop::in_form(Text name, std::function<void(platform::Form&)> act) {
    acts_[std::move(name)].push_back(std::move(act));
}

void ScriptedDesktop::prepare(platform::Form& form) { form.move({.width = 6000, .height = 4500}); }

void ScriptedDesktop::show(platform::Form& form) {
    forms.push_back(form.name());
    form.window_activated();
}

void ScriptedDesktop::show_modal(platform::Form& form) {
    const platform::StandingInFront standing(*this, &form);
    show(form);
    auto& acts = acts_[form.name()];
    if (!acts.empty() && form.loaded()) {
        const auto act = std::move(acts.front());
        acts.pop_front();
        act(form);
    }
    if (clock_.run_until([&] { return !form.loaded(); })) return;
    ADD_FAILURE() << "nobody closes " << platform::to_utf8(form.name());
    form.unload();
}

std::unique_ptr<platform::InputWatch> ScriptedDesktop::watch_input() {
    struct Watch : platform::InputWatch {
        explicit Watch(ScriptedDesktop& desktop) : desktop(desktop) {}
        bool input_waits() override { return desktop.input_waits(); }
        ScriptedDesktop& desktop;
    };
    return std::make_unique<Watch>(*this);
}

void ScriptedDesktop::popup_menu(platform::Form&, platform::Menu& menu) { popups.push_back(&menu); }

void ScriptedDesktop::popup_menu_below(platform::Form& form, platform::Menu& menu,
                                       const platform::Control& control) {
    popup_menu(form, menu);
    popup_owner = &control;
}

BoxAnswer ScriptedDesktop::message_box(const platform::MessageBox& box) {
    const platform::StandingInFront standing(*this);
    during_box();
    if (expected_boxes_.empty() && any_box) return *any_box;
    if (expected_boxes_.empty()) {
        ADD_FAILURE() << "unexpected box: " << described(box);
        return box.buttons == platform::BoxButtons::ok ? BoxAnswer::ok : BoxAnswer::no;
    }
    const Expected expected = std::move(expected_boxes_.front());
    expected_boxes_.pop_front();
    if (described(box) != described(expected.box)) {
        ADD_FAILURE() << "another box: " << described(box) << "\nexpected: " << described(expected.box);
    }
    return expected.answer;
}

std::optional<Text> ScriptedDesktop::ask_for_file(const platform::FileQuestion& question) {
    file_questions.push_back(question);
    if (expected_dialogs_.empty() || expected_dialogs_.front().title != question.title) {
        ADD_FAILURE() << "unexpected file dialog: " << platform::to_utf8(question.title);
        return std::nullopt;
    }
    const std::optional<Text> chosen = std::move(expected_dialogs_.front().chosen);
    expected_dialogs_.pop_front();
    return chosen;
}

Text ScriptedDesktop::input_box(const platform::InputBox& box) {
    if (expected_inputs_.empty() && any_input) return *any_input;
    if (expected_inputs_.empty()) {
        ADD_FAILURE() << "unexpected input box: " << described(box);
        return {};
    }
    const ExpectedInput expected = std::move(expected_inputs_.front());
    expected_inputs_.pop_front();
    if (described(box) != described(expected.box)) {
        ADD_FAILURE() << "another input box: " << described(box) << "\nexpected: " << described(expected.box);
    }
    return expected.answer;
}

}  // namespace tests

#pragma once

#include "platform/ports/desktop.h"
#include "tests/support/boxes.h"
#include "tests/support/virtual_clock.h"

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace tests {

/// A user who follows a script: the answer to each box and the acts in each modal form, in order. A box that
/// the script does not expect fails the test, and so does a form that stays open when nothing is left to
/// happen.
class ScriptedDesktop : public platform::Desktop {
  public:
    explicit ScriptedDesktop(VirtualClock& clock) : clock_(clock) {}
    ~ScriptedDesktop() override;

    /// The next box must be this one; the user gives this answer.
    void expect_box(platform::MessageBox box, platform::BoxAnswer answer = platform::BoxAnswer::ok);
    /// The next file dialog must have this title; the user picks the path, or cancels without one.
    void expect_file_dialog(platform::Text title, std::optional<platform::Text> chosen);
    /// The next input box must be this one; the user enters the answer, or cancels when it is empty.
    void expect_input(platform::InputBox box, platform::Text answer);
    /// Lets the user do this the next time that a form of this name opens.
    void in_form(platform::Text name, std::function<void(platform::Form&)> act);

    template <class FormType>
    void in_form(platform::Text name, std::function<void(FormType&)> act) {
        in_form(std::move(name), [act](platform::Form& form) { act(dynamic_cast<FormType&>(form)); });
    }

    /// If set, the answer to every box and input box that the script leaves out, for tests of something else.
    std::optional<platform::BoxAnswer> any_box;
    std::optional<platform::Text> any_input;

    // The calls of the desktop.
    std::vector<platform::FileQuestion> file_questions;
    std::vector<platform::Text> forms;
    platform::Text clipboard;
    platform::Text title;
    std::vector<platform::Text> notifications;
    platform::Pointer pointer = platform::Pointer::normal;
    std::vector<const platform::Menu*> popups;
    /// The control below which the last menu opened.
    const platform::Control* popup_owner = nullptr;

    /// Runs whenever a long loop lets the windows paint.
    std::function<void()> during_paint = [] {};
    std::function<void()> during_yield = [] {};
    bool logs_out = false;
    /// Runs while a box stands.
    std::function<void()> during_box = [] {};
    /// Whether the user presses a key while a handler runs.
    std::function<bool()> input_waits = [] { return false; };

    void prepare(platform::Form& form) override;
    void show(platform::Form& form) override;
    void show_modal(platform::Form& form) override;
    void close(platform::Form&) override {}
    void popup_menu(platform::Form& form, platform::Menu& menu) override;
    void popup_menu_below(platform::Form& form, platform::Menu& menu,
                          const platform::Control& control) override;
    platform::BoxAnswer message_box(const platform::MessageBox& box) override;
    std::optional<platform::Text> ask_for_file(const platform::FileQuestion& question) override;
    platform::Text input_box(const platform::InputBox& box) override;
    void set_pointer(platform::Pointer shape) override { pointer = shape; }
    void set_clipboard(const platform::Text& text) override { clipboard = text; }
    platform::Text clipboard_text() const override { return clipboard; }
    platform::Screen screen() const override { return screen_size; }
    void set_application_title(const platform::Text& text) override { title = text; }
    void notify(const platform::Text& text) override { notifications.push_back(text); }
    void yield() override { during_yield(); }
    void paint() override { during_paint(); }
    std::unique_ptr<platform::InputWatch> watch_input() override;
    bool closes_all() const override { return logs_out; }

    platform::Screen screen_size{
        .width = 28800, .height = 16200, .twips_per_pixel_x = 15, .twips_per_pixel_y = 15};

  private:
    struct Expected {
        platform::MessageBox box;
        platform::BoxAnswer answer;
    };
    struct ExpectedInput {
        platform::InputBox box;
        platform::Text answer;
    };

    struct ExpectedDialog {
        platform::Text title;
        std::optional<platform::Text> chosen;
    };

    VirtualClock& clock_;
    std::deque<Expected> expected_boxes_;
    std::deque<ExpectedDialog> expected_dialogs_;
    std::deque<ExpectedInput> expected_inputs_;
    std::map<platform::Text, std::deque<std::function<void(platform::Form&)>>> acts_;
};

}  // namespace tests

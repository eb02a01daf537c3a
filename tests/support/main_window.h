#pragma once

#include "compose/main_form.h"
#include "core/ini_file.h"
#include "gateway/frmZentLogin.h"
#include "tests/support/test_platform.h"
#include "tests/support/utf8.h"

#include <functional>
#include <string>
#include <vector>

namespace tests {

/// The main window on a machine of doubles. Its doors record that they were used.
struct MainWindow : TestPlatform {
    /// The doors that were used, in order.
    std::vector<std::string> opened;
    std::function<void()> pick_recipients = [] {};
    std::function<void()> hand_over = [] {};
    std::function<bool()> update_check_at_start = [this] {
        opened.emplace_back("update_check_at_start");
        return true;
    };

    compose::frmZent form{platform, state, main_doors()};

    /// The window before its first tick, with a kind chosen and a sender's name.
    void compose_as(platform::TextView sender, compose::MessageKind kind = compose::MessageKind::text) {
        form.load();
        form.sender.txtUserName.set_text(platform::Text(sender));
        form.choose(kind);
    }

    /// Lets the user do this in the manual login the next time that it opens.
    void in_login(const std::function<void(gateway::frmZentLogin&)>& act) {
        desktop.in_form<gateway::frmZentLogin>(u"frmZentLogin", act);
    }
    void log_in(const platform::Text& user_id, const platform::Text& password) {
        in_login([=](gateway::frmZentLogin& login) {
            login.Text1.set_text(user_id);
            login.Text2.set_text(password);
            login.Command1.Click.raise();
        });
    }

    std::string setting(platform::TextView section, platform::TextView key) const {
        return utf8(core::INI_READ(platform, app_ini, section, key));
    }
    std::string saved_login(platform::TextView key) const {
        return utf8(core::INI_READ(platform, login_ini, u"LOGIN", key));
    }
    void save_setting(platform::TextView section, platform::TextView key, platform::TextView value) {
        core::INI_WRITE(platform, app_ini, section, key, value);
    }
    void save_login(platform::TextView key, platform::TextView value) {
        core::INI_WRITE(platform, login_ini, u"LOGIN", key, value);
    }

  private:
    compose::MainDoors main_doors() {
        return {.send = write("send"),
                .pick_recipients = [this] { pick_recipients(); },
                .NEW_SENDMAN_LOAD = [this] { hand_over(); },
                .saved_texts = write("saved_texts"),
                .update_check = write("update_check"),
                .update_check_at_start = [this] { return update_check_at_start(); }};
    }
    std::function<void()> write(const char* door) {
        return [this, door] { opened.emplace_back(door); };
    }
};

/// Presses a key in a text box: raises KeyPress and, unless a handler swallows the key, replaces the
/// selection with its character.
inline void press(platform::TextBox& box, char16_t key) {
    platform::KeyPressed pressed{key};
    box.KeyPress.raise(pressed);
    if (pressed.swallowed()) return;
    platform::Text text = box.text();
    std::size_t caret = box.selection_start();
    if (key == platform::KEY_BACKSPACE && box.selection_length() == 0) {
        if (caret == 0) return;
        text.erase(--caret, 1);
    } else if (key == platform::KEY_BACKSPACE) {
        text.erase(caret, box.selection_length());
    } else {
        text.replace(caret++, box.selection_length(), 1, key);
    }
    box.user_edit(text, caret);
}

}  // namespace tests

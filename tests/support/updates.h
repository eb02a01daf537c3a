#pragma once

#include "tests/support/main_window.h"
#include "update/frmUpdate.h"

#include <string>
#include <vector>

namespace tests {

inline constexpr const char16_t* SERVER = u"http://server/";
inline constexpr const char16_t* LIST = u"http://server/update.ini";
inline constexpr const char16_t* VERSION_INI = u"z:\\app\\i_version.ini";

/// The main window of an installation, and the server that its updates come from.
struct Updates : MainWindow {
    /// Writes the local facts with this version as the installed one.
    void install(const std::string& version) {
        files.files[VERSION_INI] =
            "[SERVER_1]\r\nHTTPSERVER=http://server/\r\nHTTPFILE=http://server/update.ini\r\n"
            "[LAST_UPDATE]\r\nVERSION=" +
            version + "\r\n";
        internet.answers[SERVER] = ScriptedAnswer::ok("hello");
    }
    /// Sets the entries of the server's list.
    void offer(const std::string& entries) {
        internet.answers[LIST] = ScriptedAnswer::ok("[UPDATE_FILE_LIST]\r\n" + entries);
    }
    void check() {
        update::frmUpdate form(platform, state);
        form.show_modal();
    }
};

}  // namespace tests

#pragma once

#include <functional>

namespace compose {

/// What the main window opens above itself. The composition root fills the doors; a control whose door nobody
/// has filled is disabled.
struct MainDoors {
    /// Checks the draft and sends it.
    std::function<void()> send = {};
    /// Picks recipients out of the card database.
    std::function<void()> pick_recipients = {};
    /// Takes in what the card manager hands over in files.
    std::function<void()> NEW_SENDMAN_LOAD = {};
    /// Opens the box of saved texts.
    std::function<void()> message_box = {};
    /// Looks for an update and offers it.
    std::function<void()> update_check = {};
    /// The same while the program starts; false when the server was not reached.
    std::function<bool()> update_check_at_start = {};
};

}  // namespace compose

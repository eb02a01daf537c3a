#pragma once

#include "compose/main_form.h"
#include "core/app_state.h"
#include "platform/ports/platform.h"

#include <optional>
#include <string>

namespace handover {

/// Takes in what the card manager hands over in files.
class HandOver {
  public:
    HandOver(platform::Platform& platform, core::AppState& state, compose::frmZent& main_form);

    /// Takes in a hand-over if there is one: recipients and the kind to send to them, or a page of the
    /// service to open. The main window's polling is stopped meanwhile. During a job and while a question
    /// stands the files wait.
    void NEW_SENDMAN_LOAD();

  private:
    struct Files {
        std::string signal, recipients;

        bool operator==(const Files&) const = default;
    };

    void take_in(const Files& handed);
    void discard(const Files& handed);
    void open_page(int page);
    void take_in_recipients(const std::string& handed, int tab);
    Files files() const;
    /// Empty when the file cannot be read.
    std::string bytes_of(const platform::Text& path, std::uint64_t limit) const;
    /// Returns false when the file is still there.
    bool delete_quietly(const platform::Text& path);

    platform::Platform& platform_;
    core::AppState& state_;
    compose::frmZent& form_;
    /// The files of a hand-over that was taken in but could not be deleted. They are ignored until they
    /// change.
    std::optional<Files> left_over_;
};

}  // namespace handover

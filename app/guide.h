#pragma once

#include "compose/main_form.h"
#include "platform/controls/form.h"
#include "platform/ports/platform.h"
#include "platform/text/text.h"

namespace app {

/// The page of the user's guide about a form, other than the main window; empty for a name of none.
platform::TextView guide_page(platform::TextView form);

/// The user's guide: HTML files in the application directory, read with the desktop's browser.
class Guide {
  public:
    Guide(platform::Platform& platform, const compose::frmZent& main);

    /// Opens the page about a form; null is a box. Says so when the page is missing.
    void open_at(const platform::Form* form);

  private:
    platform::TextView page_of(const platform::Form* form) const;

    platform::Platform& platform_;
    const compose::frmZent& main_;
    bool tells_of_missing_page_ = false;
};

}  // namespace app

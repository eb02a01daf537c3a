#pragma once

#include "platform/controls/control.h"

#include <string>
#include <utility>

namespace platform {

/// Where a browser is to go, and what it sends there.
struct Navigation {
    Text address;
    /// Posted as it stands; without a body the page is only asked for.
    std::string body;
    /// Lines of the request's head, each ended by CR and LF.
    Text header;
};

/// Shows a page of the service. Pages are strangers: what one may do is the business of whoever shows it.
class WebBrowser : public Control {
  public:
    using Control::Control;
    void accept(ControlVisitor& visitor) override;

    /// Goes to the page, as soon as the form is on the screen. An empty address shows an empty page.
    void Navigate(Text address, std::string body, Text header) {
        navigation_ = {std::move(address), std::move(body), std::move(header)};
        refresh(Aspect::value);
    }

    /// The last navigation that a handler asked for; where the user has gone from there, nobody knows.
    const Navigation& navigation() const { return navigation_; }

  private:
    Navigation navigation_;
};

}  // namespace platform

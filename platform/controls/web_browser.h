#pragma once

#include "platform/controls/control.h"
#include "platform/controls/event.h"
#include "platform/text/text.h"

#include <cstdint>
#include <string>
#include <utility>

namespace platform {

/// A file that a page hands out upon the user's click.
struct PageFile {
    /// As the page proposes it: any text.
    Text name;
    /// Where it goes, for the handler to fill; an empty path refuses the file.
    Text path;
};

/// How the taking of a file ended.
enum class FileEnd { whole, broken, too_large };

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

    /// A file that grows beyond it is given up, in bytes.
    static constexpr std::int64_t LARGEST_FILE = std::int64_t{100} * 1024 * 1024;

    // One file at a time, and none that the user has not clicked for. Without a handler there is none.
    Event<PageFile&> FileOffered;
    /// So much of it has come, of how much, in bytes; 0 as long as the server has not told.
    Event<std::int64_t, std::int64_t> FileReceived;
    /// Its path is there only when it is whole.
    Event<FileEnd> FileEnded;

  private:
    Navigation navigation_;
};

}  // namespace platform

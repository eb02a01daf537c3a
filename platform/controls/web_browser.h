#pragma once

#include "platform/controls/control.h"
#include "platform/controls/event.h"
#include "platform/text/text.h"

#include <cstdint>
#include <string>
#include <utility>

namespace platform {

/// A file that a page offers when the user clicks.
struct PageFile {
    /// As the page proposes it: any text.
    Text name;
    /// Where to save it, filled in by the handler; an empty path refuses the file.
    Text path;
};

/// How saving a page's file ended.
enum class FileEnd { whole, broken, too_large };

/// Where a browser is to go, and what it sends there.
struct Navigation {
    Text address;
    /// Posted unchanged; with an empty body the request is a GET.
    std::string body;
    /// Header lines of the request, each ended with CR and LF.
    Text header;
};

/// Shows a page of the service. Pages are not trusted: the widget limits what they may do.
class WebBrowser : public Control {
  public:
    using Control::Control;
    void accept(ControlVisitor& visitor) override;

    /// Goes to the page, as soon as the form is on the screen. An empty address shows an empty page.
    void Navigate(Text address, std::string body, Text header) {
        navigation_ = {std::move(address), std::move(body), std::move(header)};
        refresh(Aspect::value);
    }

    /// The last navigation that a handler asked for; the user may have followed links since.
    const Navigation& navigation() const { return navigation_; }

    /// The largest file that is accepted, in bytes; a larger one is given up.
    static constexpr std::int64_t LARGEST_FILE = std::int64_t{100} * 1024 * 1024;

    // One file at a time, and only after a click of the user. Without a handler every file is refused.
    Event<PageFile&> FileOffered;
    /// Bytes received and bytes in all; the latter is 0 if the server has not said.
    Event<std::int64_t, std::int64_t> FileReceived;
    /// The file is at its path only if it arrived whole.
    Event<FileEnd> FileEnded;

  private:
    Navigation navigation_;
};

}  // namespace platform

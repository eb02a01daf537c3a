#pragma once

#include "platform/text/text.h"

#include <cstddef>
#include <memory>
#include <string>

namespace platform {

/// Fetches by HTTP, one address at a time. A failure, an answer that takes too long or is too large, and a
/// transfer that was given up each raise a RuntimeError at the next call.
class Transfer {
  public:
    virtual ~Transfer() = default;

    /// Begins a GET of the address and returns at once; an earlier transfer is given up. Redirects are not
    /// followed. An address without a scheme means HTTP; a scheme other than HTTP raises RuntimeError 35753.
    virtual void execute(const Text& url) = 0;
    /// Whether the header of the answer is still to come.
    virtual bool still_executing() const = 0;

    /// The whole header. Its first line is "HTTP/1.1 200 OK" or the like.
    virtual Text header() const = 0;
    /// The value of one header, whatever its case; empty when the answer has none.
    virtual Text header(TextView name) const = 0;

    /// The next `size` bytes of the body; fewer when it has ended. While it waits, windows paint and buttons
    /// work.
    virtual std::string chunk(std::size_t size) = 0;

    /// Fetches the address with GET and returns the body, of which only the first `at_most` bytes are
    /// fetched.
    virtual std::string open_url(const Text& url, std::size_t at_most) = 0;

    /// Gives the transfer up, also while another call waits for it. From then on calls raise RuntimeError
    /// 32755.
    virtual void cancel() = 0;
};

/// The network. A port, so that tests need no network.
class Internet {
  public:
    virtual ~Internet() = default;

    virtual std::unique_ptr<Transfer> make_transfer() = 0;
};

}  // namespace platform

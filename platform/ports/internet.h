#pragma once

#include "platform/text/text.h"

#include <cstddef>
#include <memory>
#include <string>

namespace platform {

/// Fetches by HTTP, one address at a time. A failure, an answer that takes too long or is too large, and a
/// transfer that was given up each raise a RuntimeError where the next thing is asked for.
class Transfer {
  public:
    virtual ~Transfer() = default;

    /// Begins a GET of the address and returns at once; one before it is given up. Redirects are not
    /// followed. An address without a scheme is one of HTTP, and one of another scheme raises RuntimeError
    /// 35753.
    virtual void execute(const Text& url) = 0;
    /// Whether the header of the answer is still to come.
    virtual bool still_executing() const = 0;

    /// The whole header, of which the first line is "HTTP/1.1 200 OK" or the like.
    virtual Text header() const = 0;
    /// The value of one header, whatever its case; empty when the answer has none.
    virtual Text header(TextView name) const = 0;

    /// The next so many bytes of the body, or what is left of it: fewer mean that it has ended. Windows paint
    /// and buttons answer while it waits.
    virtual std::string chunk(std::size_t size) = 0;

    /// A GET whole: the body, of which no more than the first `at_most` bytes are fetched.
    virtual std::string open_url(const Text& url, std::size_t at_most) = 0;

    /// Gives the transfer up, also one that somebody is waiting for; from then on RuntimeError 32755 says so.
    virtual void cancel() = 0;
};

/// The network. A port, so that no test depends on one.
class Internet {
  public:
    virtual ~Internet() = default;

    virtual std::unique_ptr<Transfer> make_transfer() = 0;
};

}  // namespace platform

#pragma once

#include "machine/carrier/wiped_bytes.h"

#include <functional>
#include <string_view>

namespace machine::carrier {

/// Asked whenever the socket's own time-out has passed and nothing has moved; false gives up.
using GoesOn = std::function<bool()>;

/// Sends the frame. Returns false when the other side has gone or the wait was given up.
bool send_frame(int socket, const WipedBytes& frame, const GoesOn& goes_on);

/// Receives a frame into `frame`, in place of what it holds. Returns false also when more or something else
/// comes.
bool receive_frame(int socket, WipedBytes& frame, const GoesOn& goes_on);

/// The payload of a frame that was received.
std::string_view payload_of(const WipedBytes& frame);

}  // namespace machine::carrier

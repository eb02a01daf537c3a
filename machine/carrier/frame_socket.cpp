#include "machine/carrier/frame_socket.h"

#include "machine/carrier/protocol.h"

#include <cerrno>
#include <optional>
#include <sys/socket.h>

namespace machine::carrier {

namespace {

/// Most frames fit.
constexpr std::size_t CHUNK_BYTES = 4096;

/// Whether a call on the socket that failed is to be tried again.
bool tries_again(const GoesOn& goes_on) {
    if (errno == EINTR) return true;
    return (errno == EAGAIN || errno == EWOULDBLOCK) && goes_on();
}

}  // namespace

bool send_frame(int socket, const WipedBytes& frame, const GoesOn& goes_on) {
    std::string_view rest = frame.view();
    while (!rest.empty()) {
        const ssize_t sent = ::send(socket, rest.data(), rest.size(), MSG_NOSIGNAL);
        if (sent >= 0) {
            rest.remove_prefix(static_cast<std::size_t>(sent));
        } else if (!tries_again(goes_on)) {
            return false;
        }
    }
    return true;
}

bool receive_frame(int socket, WipedBytes& frame, const GoesOn& goes_on) {
    frame.wipe();
    frame.resize(CHUNK_BYTES);
    std::size_t received = 0;
    std::optional<std::size_t> whole;
    // Who does not wait on still takes an answer that has come meanwhile: what it tells is done.
    bool gives_up = false;
    while (!whole || received < *whole) {
        const ssize_t got = ::recv(socket, frame.data() + received, frame.size() - received, 0);
        if (got == 0 || (got < 0 && gives_up)) return false;
        if (got < 0) gives_up = !tries_again(goes_on);
        if (got > 0) received += static_cast<std::size_t>(got);
        if (whole || received < FRAME_HEAD) continue;
        const auto length = payload_length(frame.view().substr(0, received));
        if (!length) return false;
        whole = FRAME_HEAD + *length;
        if (*whole > frame.size()) frame.resize(*whole);
    }
    frame.resize(received);
    return received == *whole;
}

std::string_view payload_of(const WipedBytes& frame) { return frame.view().substr(FRAME_HEAD); }

}  // namespace machine::carrier

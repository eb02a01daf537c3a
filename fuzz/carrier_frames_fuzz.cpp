#include "fuzz/check.h"
#include "machine/carrier/frame_socket.h"
#include "machine/carrier/protocol.h"

#include <string>
#include <sys/socket.h>
#include <unistd.h>

namespace {

using namespace machine::carrier;

/// What comes out at the other end of a socket that ends behind the bytes.
bool receive(std::string_view bytes, WipedBytes& frame) {
    int ends[2];
    if (::socketpair(AF_UNIX, SOCK_STREAM, 0, ends) != 0) std::abort();
    const bool sent =
        ::send(ends[0], bytes.data(), bytes.size(), MSG_DONTWAIT) == static_cast<ssize_t>(bytes.size());
    ::close(ends[0]);
    const bool received = receive_frame(ends[1], frame, [] { return false; });
    ::close(ends[1]);
    return sent && received;
}

}  // namespace

/// What is taken for a frame, a call or an answer is exactly what the program or the host would have written.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    WipedBytes frame, written;
    if (!receive(bytes, frame)) return 0;
    fuzz::check(frame.view() == bytes, "a frame is received whole");

    if (const auto call = parse_call(payload_of(frame)))
        fuzz::check(write_call(*call, written) && written.view() == bytes, "a call is what was sent");
    for (const Export which : {Export::bind, Export::unbind, Export::money_status, Export::submit}) {
        Call call{.which = which, .numbers = {}, .texts = {}};
        call.numbers.resize(shape_of(which).numbers);
        call.texts.resize(shape_of(which).texts, "four");
        const auto answer = parse_answer(payload_of(frame), call);
        if (!answer) continue;
        for (const std::string_view text : answer->texts)
            fuzz::check(text.size() == 4, "texts keep their lengths");
        write_answer(*answer, written);
        fuzz::check(written.view() == bytes, "an answer is what was sent");
    }
    return 0;
}

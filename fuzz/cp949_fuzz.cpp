#include "fuzz/check.h"
#include "platform/text/cp949.h"

#include <string>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace platform;
    const Text text = fuzz::as_text(data, size);
    const std::string encoded = encode_cp949(text);
    fuzz::check(cp949_length(text) == encoded.size(), "a text counts as many bytes as it has");
    fuzz::check(encode_cp949(decode_cp949(encoded)) == encoded, "what was written is read and written again");

    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const Text decoded = decode_cp949(bytes);
    fuzz::check(decode_cp949(encode_cp949(decoded)) == decoded, "what was read is written and read again");

    const std::string cut = cut_bytes(bytes, size / 2);
    fuzz::check(cut.size() <= size / 2 && cut.size() + 2 > size / 2, "a cut is as long as it may be");
    fuzz::check(decoded.starts_with(decode_cp949(cut)), "a cut splits no character");

    const std::string utf8 = to_utf8(from_utf8(bytes));
    fuzz::check(to_utf8(from_utf8(utf8)) == utf8, "repaired UTF-8 is sound");
    return 0;
}

#include "fuzz/check.h"
#include "machine/jet/file/jet_header.h"
#include "machine/jet/file/jet_values.h"

#include <string>
#include <string_view>

/// Header pages and field texts of any bytes.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace machine::jet;
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);

    if (const auto text = decode_jet_text(bytes)) fuzz::check(text->size() <= size, "no text out of nothing");

    static_cast<void>(JetHeader::read(bytes));
    std::string page("\0\1\0\0Standard Jet DB\0\1", 21);
    page += bytes;
    page.resize(PAGE_BYTES);
    const auto header = JetHeader::read(page);
    fuzz::check(header.has_value(), "a page with the mark is a header");
    fuzz::check(header->password.size() <= 20, "the password fits its place");
    fuzz::check(header->opens_with(header->password), "a file opens with its password");
    return 0;
}

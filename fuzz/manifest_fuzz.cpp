// The input is the value of one entry, in cp949.

#include "fuzz/check.h"
#include "platform/text/cp949.h"
#include "update/manifest.h"

#include <algorithm>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const platform::Text entry =
        platform::decode_cp949(std::string_view(reinterpret_cast<const char*>(data), size));
    const auto fields = update::manifest_fields(entry);
    platform::Text joined;
    for (const platform::Text& field : fields) {
        fuzz::check(field.find(u';') == platform::Text::npos, "a field ends at its semicolon");
        joined += field + u";";
    }
    const auto semicolons = static_cast<std::size_t>(std::ranges::count(entry, u';'));
    const platform::Text padded =
        entry + platform::Text(update::MANIFEST_FIELDS - std::min(semicolons, update::MANIFEST_FIELDS), u';');
    fuzz::check(padded.starts_with(joined), "nothing of the first fields is lost");
    return 0;
}

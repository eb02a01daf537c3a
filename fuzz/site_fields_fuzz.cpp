#include "fuzz/check.h"
#include "standin/site/fields.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace standin::site;
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    if (const auto visitor = posted_visitor(bytes)) {
        fuzz::check(
            "code=" + visitor->code + "&userid=" + visitor->user_id + "&domain=" + visitor->domain == bytes,
            "a post is its three fields and nothing else");
        const std::string query = "code=" + escaped_for_query(visitor->code) +
                                  "&userid=" + escaped_for_query(visitor->user_id) +
                                  "&domain=" + escaped_for_query(visitor->domain);
        const auto again = query_visitor(query);
        fuzz::check(again && again->user_id == visitor->user_id, "a link keeps the visitor");
    }
    if (const auto visitor = query_visitor(bytes)) {
        fuzz::check(visitor->user_id.size() <= field_limit, "a field has its bounds");
    }
    fuzz::check(query_field("f=" + escaped_for_query(bytes.substr(0, field_limit)), "f") ==
                    bytes.substr(0, field_limit),
                "what was escaped is read again");
    return 0;
}

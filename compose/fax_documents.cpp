#include "compose/fax_documents.h"

#include "platform/text/format.h"

#include <algorithm>
#include <array>

namespace compose {

using platform::Text;
using platform::TextView;

namespace {

// Deliberately "tiff" without its dot: names that only end with these letters have always been accepted.
constexpr std::array<TextView, 11> ENDINGS = {u".txt", u".doc", u".xls", u".ppt", u".hwp", u".gul",
                                              u".bmp", u".gif", u".jpg", u".tif", u"tiff"};
/// In the order of the list of pictures.
constexpr std::array<TextView, 9> PICTURED = {u"doc", u"xls", u"ppt", u"hwp", u"gul",
                                              u"txt", u"bmp", u"gif", u"jpg"};

Text ending(TextView path, std::size_t length) {
    return platform::lower_case(path.substr(path.size() - std::min(length, path.size())));
}

}  // namespace

bool is_fax_document(TextView path) { return std::ranges::find(ENDINGS, ending(path, 4)) != ENDINGS.end(); }

int FAX_FILE_NUMBER(TextView path) {
    const auto* found = std::ranges::find(PICTURED, ending(path, 3));
    return static_cast<int>(found - PICTURED.begin()) + 1;
}

Text size_in_kb(std::size_t bytes) {
    return platform::format_number(static_cast<double>(std::max<std::size_t>(bytes / 1024, 1)), u"###,##0") +
           u"KB";
}

}  // namespace compose

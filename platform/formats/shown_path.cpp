#include "platform/formats/shown_path.h"

#include <algorithm>

namespace platform {

Text shown_path(TextView path) {
    const std::size_t end = path.find_last_of(u"\\/");
    if (end == TextView::npos) return Text(path);
    Text folder(path.substr(0, end));
    // Drive z is the operating system's own tree.
    if (equal_without_case(TextView(folder).substr(0, 2), u"z:")) {
        folder.erase(0, 2);
        std::ranges::replace(folder, u'\\', u'/');
        if (folder.empty()) folder = u"/";
    }
    return Text(path.substr(end + 1)) + u" — " + folder;
}

}  // namespace platform

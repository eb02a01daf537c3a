#include "saved_texts/name_cleaning.h"

namespace saved_texts {

using platform::Text;
using platform::TextView;

namespace {

Text without(TextView text, TextView characters) {
    Text left(text);
    std::erase_if(left, [&](char16_t unit) { return characters.find(unit) != TextView::npos; });
    return left;
}

}  // namespace

Text clean_title(TextView typed) { return without(typed, u"\\/:*?\"<>|."); }

Text clean_category(TextView typed) { return platform::trim(without(typed, u"\\/:*?\"<>|")); }

}  // namespace saved_texts

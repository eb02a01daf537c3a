#pragma once

#include "compose/main_form.h"

#include <map>

namespace drafts {

/// The draft without its recipients, under the names that the kept file has for its parts.
using Fields = std::map<platform::Text, platform::Text>;

Fields fields_of(const compose::frmZent& form);

/// Shows what the fields say; a field that is missing or makes no sense leaves its controls as a new draft
/// has them.
void show_fields(compose::frmZent& form, const Fields& fields);

/// A recording as the value of a field.
platform::Text kept_recording(platform::SampleView recording);

/// Whether the user has put anything into the draft.
bool has_content(const compose::frmZent& form);

/// The field of that name; empty when there is none.
platform::Text field(const Fields& fields, platform::TextView name);

namespace fields {

inline constexpr platform::TextView KIND = u"kind";
inline constexpr platform::TextView SUBJECT = u"subject";
inline constexpr platform::TextView TEXT = u"text";
inline constexpr platform::TextView PLUS_TEXT = u"plus_text";
inline constexpr platform::TextView SPEECH = u"speech";
/// Not among those of `fields_of`: it is too large to be looked at every second.
inline constexpr platform::TextView RECORDING = u"recording";
/// "1" when the draft has content.
inline constexpr platform::TextView CONTENT = u"content";

}  // namespace fields

}  // namespace drafts

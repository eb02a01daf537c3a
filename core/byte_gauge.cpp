#include "core/byte_gauge.h"

#include "core/byte_length.h"
#include "platform/text/cp949.h"

#include <algorithm>

namespace core {

using platform::Text;

void ByteGauge::show(const Text& text, std::size_t limit) {
    fill_.set_progress(std::min(BYTE_LEN(text), limit), limit);
    Text note;
    if (const int pieces = count_pieces(text, limit); pieces > 1)
        note = platform::decimal(pieces) + u"건으로 나누어 발송";
    if (const std::size_t lost = platform::lost_in_cp949(text).size(); lost > 0) {
        if (!note.empty()) note += u", ";
        note += u"보낼 수 없는 글자 " + platform::decimal(lost) + u"개";
    }
    note_.set_caption(std::move(note));
}

}  // namespace core

#include "platform/qt/korean_translator.h"

#include <string_view>

namespace platform::qt {

QString KoreanTranslator::translate(const char* context, const char* source, const char*, int) const {
    struct Word {
        std::string_view english;
        const char* korean;
    };
    static constexpr Word WORDS[] = {
        {"&Undo", "실행 취소(&U)"},   {"&Redo", "다시 실행(&R)"},       {"Cu&t", "잘라내기(&T)"},
        {"&Copy", "복사(&C)"},        {"&Paste", "붙여넣기(&P)"},       {"Delete", "삭제"},
        {"Select All", "모두 선택"},  {"&Select All", "모두 선택(&S)"}, {"&Step up", "위로(&S)"},
        {"Step &down", "아래로(&D)"},
    };
    const std::string_view where(context);
    if (where != "QLineEdit" && where != "QWidgetTextControl" && where != "QAbstractSpinBox")
        return QString();
    for (const Word& word : WORDS) {
        if (word.english == source) return QString::fromUtf8(word.korean);
    }
    return QString();
}

}  // namespace platform::qt

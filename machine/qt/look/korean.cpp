#include "machine/qt/look/korean.h"

#include <QApplication>
#include <QFontDatabase>
#include <QFontInfo>
#include <span>
#include <string_view>

namespace machine::qt {

namespace {

struct Word {
    std::string_view english;
    const char* korean;
};

constexpr Word FIELD_WORDS[] = {
    {"&Undo", "실행 취소(&U)"},   {"&Redo", "다시 실행(&R)"},       {"Cu&t", "잘라내기(&T)"},
    {"&Copy", "복사(&C)"},        {"&Paste", "붙여넣기(&P)"},       {"Delete", "삭제"},
    {"Select All", "모두 선택"},  {"&Select All", "모두 선택(&S)"}, {"&Step up", "위로(&S)"},
    {"Step &down", "아래로(&D)"},
};

constexpr Word FILE_WORDS[] = {
    {"Look in:", "찾는 위치:"},
    {"File &name:", "파일 이름(&N):"},
    {"Files of type:", "파일 형식:"},
    {"&Open", "열기(&O)"},
    {"Open", "열기"},
    {"&Save", "저장(&S)"},
    {"Save", "저장"},
    {"&Choose", "선택(&C)"},
    {"Cancel", "취소"},
    {"OK", "확인"},
    {"&Yes", "예(&Y)"},
    {"&No", "아니오(&N)"},
    {"Back", "뒤로"},
    {"Go back", "뒤로 가기"},
    {"Forward", "앞으로"},
    {"Go forward", "앞으로 가기"},
    {"Parent Directory", "상위 폴더"},
    {"Go to the parent directory", "상위 폴더로 가기"},
    {"Create New Folder", "새 폴더 만들기"},
    {"Create a New Folder", "새 폴더를 만듭니다"},
    {"List View", "간단히"},
    {"Change to list view mode", "간단히 보기"},
    {"Detail View", "자세히"},
    {"Change to detail view mode", "자세히 보기"},
    {"Sidebar", "바로 가기"},
    {"List of places and bookmarks", "자주 쓰는 위치"},
    {"Files", "파일 목록"},
    {"Name", "이름"},
    {"Size", "크기"},
    {"Type", "종류"},
    {"Date Modified", "수정한 날짜"},
    {"Computer", "컴퓨터"},
    {"My Computer", "컴퓨터"},
    {"Folder", "폴더"},
    {"Drive", "드라이브"},
    {"File", "파일"},
    {"%1 File", "%1 파일"},
    {"Unknown", "알 수 없음"},
    {"New Folder", "새 폴더"},
    {"&New Folder", "새 폴더(&N)"},
    {"&Rename", "이름 바꾸기(&R)"},
    {"&Delete", "삭제(&D)"},
    {"Delete", "삭제"},
    {"Remove", "목록에서 빼기"},
    {"Recent Places", "최근에 연 위치"},
    {"Show &hidden files", "숨긴 파일 보기(&H)"},
    {"%1\nFile not found.\nPlease verify the correct file name was given.",
     "%1\n파일을 찾을 수 없습니다.\n파일 이름을 확인하여 주십시오."},
    {"%1\nDirectory not found.\nPlease verify the correct directory name was given.",
     "%1\n폴더를 찾을 수 없습니다.\n폴더 이름을 확인하여 주십시오."},
    {"Are you sure you want to delete '%1'?", "'%1'을(를) 삭제하시겠습니까?"},
    {"'%1' is write protected.\nDo you want to delete it anyway?",
     "'%1'은(는) 쓰기가 금지되어 있습니다.\n그래도 삭제하시겠습니까?"},
    {"Could not delete directory.", "폴더를 삭제하지 못했습니다."},
    {"Invalid filename", "잘못된 파일 이름"},
    {"<b>The name \"%1\" cannot be used.</b><p>Try using another name, with fewer characters or no "
     "punctuation marks.",
     "<b>\"%1\"은(는) 쓸 수 없는 이름입니다.</b><p>더 짧거나 문장 부호가 없는 다른 이름을 쓰십시오."},
};

/// The words of a translation context of Qt; none for contexts that users do not see.
std::span<const Word> words_of(std::string_view place) {
    if (place == "QLineEdit" || place == "QWidgetTextControl" || place == "QAbstractSpinBox")
        return FIELD_WORDS;
    if (place == "QFileDialog" || place == "QFileSystemModel" || place == "QAbstractFileIconProvider" ||
        place == "QPlatformTheme") {
        return FILE_WORDS;
    }
    return {};
}

}  // namespace

QString KoreanTranslator::translate(const char* context, const char* source, const char*, int) const {
    for (const Word& word : words_of(context)) {
        if (word.english == source) return QString::fromUtf8(word.korean);
    }
    return QString();
}

void use_font_with_hangul(QFont font) {
    const auto has_hangul = [](const QString& family) {
        return QFontDatabase::writingSystems(family).contains(QFontDatabase::Korean);
    };
    if (!has_hangul(QFontInfo(font).family())) {
        for (const char* family : {"Noto Sans CJK KR", "Noto Sans KR", "NanumGothic"}) {
            if (!has_hangul(QLatin1String(family))) continue;
            font.setFamily(QLatin1String(family));
            break;
        }
    }
    if (font != QApplication::font()) QApplication::setFont(font);
}

}  // namespace machine::qt

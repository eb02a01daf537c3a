#include "compose/fax_panel.h"

#include "compose/fax_documents.h"
#include "compose/questions.h"
#include "core/boxes.h"
#include "platform/error.h"

#include <algorithm>

namespace compose {

using platform::Text;

namespace {

constexpr platform::TextView DOCUMENT_FILTER =
    u"모든 파일(*.*)|*.*|텍스트 파일(*.txt)|*.txt|MS워드 파일(*.doc)|*.doc|MS엑셀 파일(*.xls)|*.xls|"
    u"파워포인트 파일(*.ppt)|*.ppt|한글 파일(*.hwp)|*.hwp|훈민정음 파일(*.gul)|*.gul|"
    u"이미지 파일(*.bmp;*.gif;*.jpg;*.tif;*.tiff)|*.bmp;*.gif;*.jpg;*.tif;*.tiff";

bool has_document(const platform::ListView& documents, const Text& path) {
    for (std::size_t row = 0; row < documents.row_count(); ++row) {
        if (platform::lower_case(documents.row(row).text()) == platform::lower_case(path)) return true;
    }
    return false;
}

}  // namespace

FaxPanel::FaxPanel(platform::Form& form, platform::Platform& platform, platform::CommonDialog& dialog)
    : Room(form),
      Label1_3(form_, u"Label1_3",
               u"1. 문서형태:doc, xls, ppt, hwp, gul, txt, bmp, gif, jpg\r\n\r\n"
               u"2. 이미지를 A4한장으로 보내려면 파일크기가 544*810을\r\n"
               u"    초과하지 않도록 다음과 같이 처리하십시오.\r\n"
               u"   * 포토샵에서 이미지 크기를 544*세로 810으로 축소.\r\n"
               u"   * 워드, 파워포인트, 한글 등에서 이미지파일을 불러와서 저장후에 파일을 추가함.\r\n\r\n"
               u"3. 보낼 문서는 한번에 5개까지 첨부가 가능합니다."),
      platform_(platform),
      dialog_(dialog) {
    put_into(Frame1, {&FAX1, &FAXBttn1, &FAXBttn2});
    FAX1.set_placeholder(u"찾아보기를 누르거나 보낼문서를 여기로 끌어다 놓으세요.");
    // A cancelled dialog ends the handler silently.
    FAXBttn1.Click.connect([this] { platform::ignore_errors([this] { add_document(); }); });
    FAX1.Drop.connect([this](const platform::Dropped& dropped) {
        const std::size_t room = DOCUMENT_LIMIT - FAX1.row_count();
        // One box says that there are too many, however many.
        for (std::size_t i = 0; i < std::min(dropped.files.size(), room + 1); ++i) take(dropped.files[i]);
    });
    FAXBttn2.Click.connect([this] {
        if (!remove_selected_rows(platform_.desktop, FAX1).empty()) FAX_SIZE_CAPTION();
    });
}

void FaxPanel::add_document() {
    if (FAX1.row_count() == DOCUMENT_LIMIT) return refuse_more();
    dialog_.set_up(u"팩스문서 열기", Text(DOCUMENT_FILTER));
    dialog_.show_open();
    take(dialog_.file_name());
}

void FaxPanel::refuse_more() {
    core::warn(platform_.desktop, u"보낼 문서는 한번에 5개까지 첨부가 가능합니다.");
}

void FaxPanel::take(const Text& path) {
    if (FAX1.row_count() == DOCUMENT_LIMIT) return refuse_more();
    if (!is_fax_document(path)) {
        core::warn(platform_.desktop,
                   u"가능한 포맷이 아닙니다.\r\n\r\n문서파일:txt, doc, xls, ppt, hwp, gul\r\n"
                   u"이미지파일:bmp, gif, jpg, tif");
        return;
    }
    if (has_document(FAX1, path)) {
        core::warn(platform_.desktop, u"이미 동일한 파일이 존재합니다.");
        return;
    }
    add(path);
}

void FaxPanel::add(const Text& path) {
    FAX1.set_small_icon(FAX1.add_row(path, {}), FAX_FILE_NUMBER(path));
    FAX_SIZE_CAPTION();
}

void FaxPanel::FAX_SIZE_CAPTION() {
    std::uint64_t bytes = 0;
    for (std::size_t row = 0; row < FAX1.row_count(); ++row) {
        // A missing document adds nothing here; the check before sending reports it.
        platform::ignore_errors([&] { bytes += platform_.files.length(FAX1.row(row).text()); });
    }
    FAXFileSize1.set_caption(FAX1.row_count() == 0 ? Text() : size_in_kb(bytes));
}

}  // namespace compose

// The documents of a fax: picking, duplicates, deleting, their size.

#include "compose/fax_documents.h"
#include "compose/main_form.h"
#include "core/boxes.h"
#include "platform/error.h"

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

void frmZent::connect_fax() {
    // A cancelled dialog ends the handler silently.
    FAXBttn1.Click.connect([this] { platform::ignore_errors([this] { FAXBttn1_Click(); }); });
    FAXBttn2.Click.connect([this] { FAXBttn2_Click(); });
}

void frmZent::FAXBttn1_Click() {
    if (FAX1.row_count() == DOCUMENT_LIMIT) {
        core::warn(platform_.desktop, u"보낼 문서는 한번에 5개까지 첨부가 가능합니다.");
        return;
    }
    Cmd1.set_up(u"팩스문서 열기", Text(DOCUMENT_FILTER));
    Cmd1.show_open();
    const Text& path = Cmd1.file_name();
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
    FAX1.set_small_icon(FAX1.add_row(path, {}), FAX_FILE_NUMBER(path));
    FAX_SIZE_CAPTION();
}

void frmZent::FAXBttn2_Click() {
    if (!FAX1.selected_item()) return;
    if (!core::ask(platform_.desktop, u"선택한 목록을 삭제하시겠습니까?", u"삭제 확인",
                   platform::BoxIcon::exclamation)) {
        return;
    }
    FAX1.remove_selected_rows();
    FAX_SIZE_CAPTION();
}

void frmZent::FAX_SIZE_CAPTION() {
    std::uint64_t bytes = 0;
    for (std::size_t row = 0; row < FAX1.row_count(); ++row) {
        // A document that has gone adds nothing; the user is told when the fax is sent.
        platform::ignore_errors([&] { bytes += platform_.files.length(FAX1.row(row).text()); });
    }
    FAXFileSize1.set_caption(FAX1.row_count() == 0 ? Text() : size_in_kb(bytes));
}

}  // namespace compose

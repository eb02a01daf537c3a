// The recipient list: typed recipients, duplicates, deleting, check marks, order, counts.

#include "compose/main_form.h"
#include "compose/recipient_number.h"
#include "core/boxes.h"
#include "core/phone_number.h"
#include "platform/controls/list_columns.h"
#include "platform/error.h"

namespace compose {

using platform::KeyPressed;
using platform::Text;

namespace {

/// Above this many rows a run over the list shows its progress.
constexpr std::size_t LONG_LIST = 500;

}  // namespace

void frmZent::connect_recipients() {
    PBar1.hide();
    for (std::size_t i = 0; i < HText1.size(); ++i) {
        HText1[i].KeyPress.connect([this, i](KeyPressed& key) { HText1_KeyPress(i, key); });
    }
    HBttn1.Click.connect([this] { HBttn1_Click(); });
    HBttn2.Click.connect([this] { HBttn2_Click(); });
    Command7.Click.connect([this] { Command7_Click(); });
    ListView1.ItemCheck.connect([this](std::size_t row) { ListView1_ItemCheck(row); });
    ListView1.ColumnClick.connect([this](int column) { ListView1_ColumnClick(column); });
    ListView1.KeyDown.connect([this](KeyPressed& key) {
        if (key.code == platform::KEY_DELETE) HBttn2_Click();
    });
    ListView1.KeyPress.connect([this](KeyPressed& key) {
        if (key.code == platform::KEY_CTRL_A) ListView1.select_all();
    });
    ListView1.MouseUp.connect([this](platform::MouseButton button) {
        if (button == platform::MouseButton::right) platform_.desktop.popup_menu(*this, mnuSubPopup);
    });
    mnusubpopup1.Click.connect([this] { Command7_Click(); });
    mnusubpopup7.Click.connect([this] { ListView1.select_all(); });
    mnusubpopup4.Click.connect([this] { CHECK_SELECTED_ITEMS(true); });
    mnusubpopup5.Click.connect([this] { CHECK_SELECTED_ITEMS(false); });
    mnusubpopup9.Click.connect([this] { HBttn2_Click(); });
}

void frmZent::RECIPIENT_COUNT_CAPTION() {
    Label4.set_caption(u"전체>" + platform::decimal(ListView1.row_count()) + u">대상>" +
                       platform::decimal(ListView1.checked_count()));
}

void frmZent::HText1_KeyPress(std::size_t index, KeyPressed& key) {
    if (key.code != platform::KEY_ENTER) return;
    key.swallow();
    if (index == 0) {
        HText1[1].set_focus();
    } else {
        HBttn1_Click();
    }
}

void frmZent::HBttn1_Click() {
    const Text number = core::DIGITS_ONLY(HText1[1].text());
    HText1[1].set_text(number);
    const Text number_caption = platform::remove_all(Label2_5.caption(), u":");
    if (number.empty()) {
        refuse_number(number_caption + u"를(을) 입력하여 주십시오!");
        return;
    }
    Text name = platform::remove_all(platform::remove_all(HText1[0].text(), u":"), u" ");
    if (name.empty()) name = NO_NAME;

    // Before the number is judged: a few digits that begin a listed number are a duplicate, not a short
    // number.
    if (point_at_duplicate(number)) return;

    if (number.size() <= LOCAL_NUMBER_LENGTH) {
        refuse_number(wrong_number(number_caption, number, AREA_CODE_MISSING));
    } else if (number_caption == TEXT_NUMBER && !core::TEXT_NUMBER_OK(number)) {
        refuse_number(wrong_number(number_caption, number, MOBILE_ONLY));
    } else if (number_caption == FAX_NUMBER && !core::FAX_NUMBER_OK(number)) {
        refuse_number(wrong_number(number_caption, number, NO_FAX_TO_NUMBER));
    } else {
        add_typed_recipient(name, number);
    }
}

void frmZent::refuse_number(Text text) {
    core::warn(platform_.desktop, std::move(text));
    HText1[1].set_focus();
}

bool frmZent::point_at_duplicate(const Text& number) {
    const auto hit = ListView1.find_in_sub_items(number);
    if (!hit) return false;
    ListView1.deselect_item();
    ListView1.make_visible(*hit);
    ListView1.select_item(*hit);
    // The message names column 2, the name, though numbers were compared; users and their support know it so.
    core::warn(platform_.desktop, u"이미 동일한 " + ListView1.column(2).caption + u"가 존재합니다.");
    return true;
}

void frmZent::add_typed_recipient(const Text& name, const Text& number) {
    ListView1.deselect_item();
    const std::size_t row = ListView1.add_row(u"", {name, number, u"", u""}, true);
    ListView1.make_visible(row);
    ListView1.select_item(row);
    HText1[0].set_text(u"");
    HText1[1].set_text(u"");
    RECIPIENT_COUNT_CAPTION();
    HText1[0].set_focus();
}

void frmZent::HBttn2_Click() {
    if (!ListView1.selected_item()) return;
    if (!core::ask(platform_.desktop, u"선택한 목록을 삭제하시겠습니까?", u"삭제 확인",
                   platform::BoxIcon::exclamation)) {
        return;
    }
    ListView1.remove_selected_rows();
    RECIPIENT_COUNT_CAPTION();
}

void frmZent::Command7_Click() {
    if (!doors_.pick_recipients) return;
    const std::size_t rows = ListView1.row_count();
    state_.forms.gDialogConfirmed = false;
    doors_.pick_recipients();
    if (ListView1.row_count() != rows || state_.forms.gDialogConfirmed) RECIPIENT_COUNT_CAPTION();
}

void frmZent::CHECK_SELECTED_ITEMS(bool checked) {
    if (!ListView1.selected_item()) return;
    const std::size_t rows = ListView1.row_count();
    if (rows > LONG_LIST) {
        PBar1.set_value(0);
        PBar1.show();
    }
    for (std::size_t row = 0; row < rows; ++row) {
        if (ListView1.row(row).selected()) {
            ListView1.set_checked(row, checked);
            if (checked) ListView1.set_sub_item(row, RECIPIENT_STATUS, u"");
        }
        if (PBar1.visible()) PBar1.set_value(static_cast<int>((row + 1) * 100 / rows));
    }
    PBar1.hide();
    RECIPIENT_COUNT_CAPTION();
}

void frmZent::ListView1_ItemCheck(std::size_t row) {
    // Ticked again, a failed row is one that has not been sent yet.
    if (ListView1.row(row).checked()) ListView1.set_sub_item(row, RECIPIENT_STATUS, u"");
    RECIPIENT_COUNT_CAPTION();
}

/// The column of check boxes has nothing to sort by; a click on it sorts by the name.
void frmZent::ListView1_ColumnClick(int column) {
    platform::ignore_errors([&] { platform::SORT_BY_COLUMN(ListView1, column == 1 ? 2 : column); });
}

}  // namespace compose

#include "saved_texts/frmMyMsgBox.h"

#include "core/boxes.h"
#include "core/byte_length.h"
#include "core/centring.h"
#include "core/saved_texts_folder.h"
#include "platform/controls/list_columns.h"
#include "saved_texts/store.h"

namespace saved_texts {

using platform::KeyPressed;

frmMyMsgBox::frmMyMsgBox(platform::Platform& platform, Apply apply)
    : Form(platform.desktop, u"frmMyMsgBox"), platform_(platform), apply_(std::move(apply)) {
    set_caption(u"내 모음함");
    Command5.set_enabled(false);
    Picture1.set_border(false);
    Command10.set_tool_tip(u"메시지 목록 새로고침");
    connect_lists();
    connect_fields();
    Command1.Click.connect([this] { save_new_text(); });
    Command2.Click.connect([this] { save_edited_text(); });
    Command3.Click.connect([this] { remove_text(); });
    Command4.Click.connect([this] { unload(); });
    Command5.Click.connect([this] { apply_to_draft(); });
    Command6.Click.connect([this] { apply_and_close(); });
    Command7.Click.connect([this] { rename_category(); });
    Command8.Click.connect([this] { add_category(); });
    Command9.Click.connect([this] { remove_category(); });
    Command10.Click.connect([this] { list_selected_category(); });
}

void frmMyMsgBox::connect_lists() {
    ListView1.MouseUp.connect([this](platform::MouseButton) { list_selected_category(); });
    ListView1.KeyUp.connect([this](KeyPressed&) { list_selected_category(); });
    ListView1.KeyDown.connect([this](const KeyPressed& key) {
        if (key.code == platform::KEY_DELETE) remove_category();
    });
    ListView2.MouseUp.connect([this](platform::MouseButton button) {
        // A right click on the list is no wish to give up a new text.
        if (button == platform::MouseButton::left || source_) show_selected_text();
    });
    ListView2.KeyUp.connect([this](KeyPressed&) { show_selected_text(); });
    ListView2.KeyDown.connect([this](const KeyPressed& key) {
        if (key.code == platform::KEY_DELETE) remove_text();
    });
    ListView2.KeyPress.connect([this](const KeyPressed& key) {
        if (key.code == platform::KEY_ENTER) apply_selected();
    });
    ListView2.DblClick.connect([this] { apply_selected(); });
    ListView2.ColumnClick.connect([this](int column) { platform::SORT_BY_COLUMN(ListView2, column); });
}

void frmMyMsgBox::connect_fields() {
    SearchText.Change.connect([this] { show_found(); });
    SearchText.KeyPress.connect([this](KeyPressed& key) {
        if (key.code != platform::KEY_ENTER) return;
        key.swallow();
        go_to_found();
    });
    SearchText.KeyDown.connect([this](const KeyPressed& key) {
        if (key.code == platform::KEY_DOWN) go_to_found();
    });
    Text1.KeyPress.connect([](KeyPressed& key) {
        if (clean_title(platform::Text(1, static_cast<char16_t>(key.code))).empty()) key.swallow();
    });
    txtText.Change.connect(
        [this] { LenCaption.set_caption(platform::decimal(core::BYTE_LEN(txtText.text())) + u"Bytes"); });
    LenCaption.Click.connect([this] { txtText.set_focus(); });
    Picture1.Click.connect([this] { txtText.set_focus(); });
}

void frmMyMsgBox::Form_Load() {
    core::CENTER_FORM(platform_.desktop, *this);
    core::make_saved_texts_folders(platform_);
    show_failures_of([this] { CATEGORY_LIST_LOAD(); });
}

void frmMyMsgBox::show_failure(const platform::RuntimeError& error) {
    core::show_error(platform_.desktop, error, platform::BoxIcon::critical);
}

}  // namespace saved_texts

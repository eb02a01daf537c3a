#include "saved_texts/frmMyMsgBox.h"

#include "core/common.h"
#include "core/list_columns.h"
#include "core/message_box.h"
#include "core/windows.h"

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
    Command1.Click.connect([this] { Command1_Click(); });
    Command2.Click.connect([this] { Command2_Click(); });
    Command3.Click.connect([this] { Command3_Click(); });
    Command4.Click.connect([this] { unload(); });
    Command5.Click.connect([this] { Command5_Click(); });
    Command6.Click.connect([this] { Command6_Click(); });
    Command7.Click.connect([this] { Command7_Click(); });
    Command8.Click.connect([this] { Command8_Click(); });
    Command9.Click.connect([this] { Command9_Click(); });
    Command10.Click.connect([this] { ListView1_Click(); });
}

void frmMyMsgBox::connect_lists() {
    ListView1.MouseUp.connect([this](platform::MouseButton) { ListView1_Click(); });
    ListView1.KeyUp.connect([this](KeyPressed&) { ListView1_Click(); });
    ListView1.KeyDown.connect([this](const KeyPressed& key) {
        if (key.code == platform::KEY_DELETE) Command9_Click();
    });
    ListView2.MouseUp.connect([this](platform::MouseButton) { ListView2_Click(); });
    ListView2.KeyUp.connect([this](KeyPressed&) { ListView2_Click(); });
    ListView2.KeyDown.connect([this](const KeyPressed& key) {
        if (key.code == platform::KEY_DELETE) Command3_Click();
    });
    ListView2.ColumnClick.connect([this](int column) { core::SORT_BY_COLUMN(ListView2, column); });
}

void frmMyMsgBox::connect_fields() {
    Text1.KeyPress.connect([](KeyPressed& key) {
        if (platform::TextView(u"\"*./:<>?\\|").find(static_cast<char16_t>(key.code)) !=
            platform::TextView::npos)
            key.swallow();
    });
    txtText.Change.connect([this] {
        const auto bytes = static_cast<long long>(core::BYTE_LEN(txtText.text()));
        LenCaption.set_caption(platform::decimal(bytes) + u"Bytes");
    });
    LenCaption.Click.connect([this] { txtText.set_focus(); });
    Picture1.Click.connect([this] { txtText.set_focus(); });
}

void frmMyMsgBox::Form_Load() {
    core::CENTER_FORM(platform_.desktop, *this);
    core::make_message_box_folders(platform_);
    with_net([this] { CATEGORY_LIST_LOAD(); });
}

void frmMyMsgBox::show_failure(const platform::RuntimeError& error) {
    core::show_error(platform_.desktop, error, platform::BoxIcon::critical);
}

}  // namespace saved_texts

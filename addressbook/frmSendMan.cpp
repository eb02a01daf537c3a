#include "addressbook/frmSendMan.h"

#include "addressbook/card_db.h"
#include "core/centring.h"
#include "platform/error.h"

namespace addressbook {

frmSendMan::frmSendMan(platform::Platform& platform, core::AppState& state,
                       compose::RecipientList& recipients, platform::Timer& polling)
    : Form(platform.desktop, u"frmSendMan"),
      platform_(platform),
      state_(state),
      recipients_(recipients),
      polling_(polling) {
    set_caption(u"발송대상자 선택");
    PBar1.hide();
    Command1.set_tool_tip(u"찾기");
    connect_folders();
    connect_search();
    connect_list();
    connect_picking();
    Command3.Click.connect([this] { unload(); });
}

void frmSendMan::Form_Load() {
    core::CENTER_FORM(platform_.desktop, *this);
    state_.forms.gDialogConfirmed = false;
    activated_ = false;
    // Nothing is taken in from the card manager while the user picks.
    polling_.set_enabled(false);
    Combo4.set_list_index(0);
    OPEN_CARD_DB(platform_, state_, true);
    FOLDER_TREE_LOAD();
    Group_Recount();
    PICK_STATUS_SHOW();
}

void frmSendMan::Form_Activate() {
    if (activated_) return;
    activated_ = true;
    Text1.set_focus();
    list_all_cards();
}

void frmSendMan::Form_Unload() {
    state_.cards.gCardDb.reset();
    polling_.set_enabled(true);
}

}  // namespace addressbook

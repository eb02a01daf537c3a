#include "app/application.h"

#include "addressbook/frmSendMan.h"
#include "app/entry_routine.h"
#include "saved_texts/frmMyMsgBox.h"
#include "send/send_check.h"
#include "update/update_check.h"

namespace app {

Application::Application(platform::Platform& platform)
    : platform_(platform),
      main_(platform, state_, doors()),
      guide_(platform, main_),
      hand_over_(platform, state_, main_),
      drafts_(platform, main_) {
    platform.desktop.set_help([this](const platform::Form* form) { guide_.open_at(form); });
}

bool Application::start() {
    return app::entry_routine(platform_, state_, [this] { main_.show(); });
}

compose::MainDoors Application::doors() {
    compose::MainDoors doors;
    doors.send = [this] { send::check_and_send(platform_, state_, main_, drafts_); };
    doors.pick_recipients = [this] {
        addressbook::frmSendMan picker(platform_, state_, main_.recipients, main_.Timer1);
        picker.ShowEnter(platform::Text(kind_of(main_).caption));
    };
    doors.NEW_SENDMAN_LOAD = [this] { hand_over_.NEW_SENDMAN_LOAD(); };
    doors.saved_texts = [this] {
        saved_texts::frmMyMsgBox box(platform_,
                                     [this](const platform::Text& text, const platform::Text& title) {
                                         main_.apply_saved_text(text, title);
                                     });
        box.show_modal();
    };
    doors.guide = [this] { guide_.open_at(&main_); };
    doors.update_check = [this] { update::check_from_menu(platform_, state_, main_); };
    doors.update_check_at_start = [this] { return update::check_at_start(platform_, state_, main_); };
    doors.keep_draft = [this] { drafts_.start(); };
    doors.draft_ends = [this] { drafts_.end(); };
    return doors;
}

}  // namespace app

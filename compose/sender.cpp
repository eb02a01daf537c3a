#include "compose/sender.h"

#include "core/common.h"
#include "core/entry_routine.h"
#include "core/ini_file.h"

namespace compose {

using platform::ComboBox;
using platform::Text;

namespace {

/// Fills the list with `first` and `second`. The field shows `saved`, or `otherwise` when that is empty.
void fill(ComboBox& field, const Text& first, const Text& second, const Text& saved, const Text& otherwise) {
    field.clear();
    field.add_row(core::CLEAN_FIXED_TEXT(first));
    field.add_row(core::CLEAN_FIXED_TEXT(second));
    field.set_text(platform::trim(saved));
    if (field.text().empty()) field.set_text(core::CLEAN_FIXED_TEXT(otherwise));
}

}  // namespace

Sender::Sender(platform::Form& form, platform::Platform& platform, core::AppState& state)
    : Label2_0(form, u"Label2_0", u"보낸사람:"),
      txtUserName(form, u"txtUserName", ComboBox::Style::editable),
      Label2_1(form, u"Label2_1", u"회신번호:"),
      txtCallback(form, u"txtCallback", ComboBox::Style::editable),
      platform_(platform),
      state_(state) {
    txtUserName.GotFocus.connect([this] { txtUserName.set_tag(u"[" + txtUserName.text() + u"]"); });
    txtUserName.LostFocus.connect([this] { name_left(); });
    // Deliberately a key in another spelling than the one that `save` writes: settings files have always had
    // either, and the case of a key does not count.
    txtCallback.LostFocus.connect([this] { save_callback(u"ZENTUserPhoneID"); });
}

Text Sender::sender_tag() const { return u"[" + platform::trim(txtUserName.text()) + u"]"; }

void Sender::set_visible(bool visible) {
    Label2_0.set_visible(visible);
    Label2_1.set_visible(visible);
    txtUserName.set_visible(visible);
    txtCallback.set_visible(visible);
}

void Sender::fill_from_account() {
    core::read_saved_sender(platform_, state_);
    fill(txtUserName, state_.gInfoUserName, state_.gInfoSenderName, state_.gSavedSenderName,
         state_.gInfoSenderName);
    fill(txtCallback, state_.gInfoCallback, state_.gInfoServiceNumber, state_.gSavedCallback,
         state_.gInfoCallback);
}

void Sender::fill_empty_callback() {
    if (!platform::trim(txtCallback.text()).empty()) return;
    txtCallback.set_text(core::CLEAN_FIXED_TEXT(state_.gInfoCallback));
}

void Sender::name_left() {
    save_name();
    if (!txtUserName.text().empty()) Renamed.raise(txtUserName.tag(), u"[" + txtUserName.text() + u"]");
}

void Sender::save() {
    save_name();
    save_callback(u"ZentUserPhoneID");
}

void Sender::save_name() {
    const Text name = platform::trim(txtUserName.text());
    if (name == platform::trim(state_.gSavedSenderName)) return;
    core::INI_WRITE(platform_, core::application_ini(platform_), u"SET", u"ZentUserNickName", name);
}

void Sender::save_callback(platform::TextView key) {
    const Text callback = platform::trim(txtCallback.text());
    if (callback == platform::trim(state_.gSavedCallback)) return;
    core::INI_WRITE(platform_, core::application_ini(platform_), u"SET", key, callback);
}

}  // namespace compose

#include "compose/sender.h"

#include "gateway/gateway.h"

namespace compose {

using platform::ComboBox;
using platform::Text;

namespace {

/// Fills the list with `first` and `second`. The field shows `saved`, or `otherwise` when that is empty.
void fill(ComboBox& field, const Text& first, const Text& second, const Text& saved, const Text& otherwise) {
    field.clear();
    field.add_row(gateway::CLEAN_FIXED_TEXT(first));
    field.add_row(gateway::CLEAN_FIXED_TEXT(second));
    field.set_text(platform::trim(saved));
    if (field.text().empty()) field.set_text(gateway::CLEAN_FIXED_TEXT(otherwise));
}

}  // namespace

Sender::Sender(platform::Form& form, platform::Platform& platform, core::AppState& state)
    : Room(form), platform_(platform), state_(state) {
    txtUserName.GotFocus.connect([this] { txtUserName.set_tag(u"[" + txtUserName.text() + u"]"); });
    txtUserName.LostFocus.connect([this] { name_left(); });
    // Deliberately a key in another spelling than the one that `save` writes: settings files have always had
    // either, and the case of a key does not count.
    txtCallback.LostFocus.connect([this] { save_callback(core::settings::SENDER_NUMBER_LEFT); });
}

Text Sender::sender_tag() const { return u"[" + platform::trim(txtUserName.text()) + u"]"; }

void Sender::set_visible(bool visible) {
    show_all({&Label2_0, &Label2_1, &txtUserName, &txtCallback}, visible);
}

void Sender::load() {
    txtUserName.set_text(platform::trim(state_.sender.gSavedSenderName));
    txtCallback.set_text(platform::trim(state_.sender.gSavedCallback));
}

void Sender::fill_from_account() {
    core::read_saved_sender(platform_, state_);
    fill(txtUserName, state_.session.gInfoUserName, state_.session.gInfoSenderName,
         state_.sender.gSavedSenderName, state_.session.gInfoSenderName);
    fill(txtCallback, state_.session.gInfoCallback, state_.session.gInfoServiceNumber,
         state_.sender.gSavedCallback, state_.session.gInfoCallback);
}

void Sender::fill_empty_callback() {
    if (!platform::trim(txtCallback.text()).empty()) return;
    txtCallback.set_text(gateway::CLEAN_FIXED_TEXT(state_.session.gInfoCallback));
}

void Sender::name_left() {
    save_name();
    if (!txtUserName.text().empty()) Renamed.raise(txtUserName.tag(), u"[" + txtUserName.text() + u"]");
}

void Sender::save() {
    save_name();
    save_callback(core::settings::SENDER_NUMBER);
}

void Sender::save_name() {
    const Text name = platform::trim(txtUserName.text());
    if (name == platform::trim(state_.sender.gSavedSenderName)) return;
    core::write_setting(platform_, core::settings::SENDER_NAME, name);
}

void Sender::save_callback(const core::Setting& setting) {
    const Text callback = platform::trim(txtCallback.text());
    if (callback == platform::trim(state_.sender.gSavedCallback)) return;
    core::write_setting(platform_, setting, callback);
}

}  // namespace compose

#include "addressbook/card_db.h"

#include "platform/error.h"

#include <algorithm>
#include <utility>

namespace addressbook {

using platform::Text;

namespace {

constexpr platform::TextView PROVIDER = u"provider=Microsoft.Jet.OLEDB.4.0;Data Source=";
/// The password is the card manager's own and the same in every installation.
constexpr platform::TextView ACCESS =
    u";Jet OLEDB:Database Password=cardvale070915;Persist Security Info=True;User ID=admin";

constexpr platform::TextView OPENED = u"OK";

/// The types whose texts are padded with blanks. Deliberately not those that the card database has: a name
/// with blanks at its end keeps them in every list.
constexpr int PADDED_TYPES[] = {10, 12};

}  // namespace

Text FIELD_VALUE(platform::CardField field) {
    if (const auto* number = std::get_if<std::int32_t>(&field.value)) return platform::decimal(*number);
    auto* text = std::get_if<Text>(&field.value);
    if (text == nullptr) return Text();
    return std::ranges::count(PADDED_TYPES, field.type) > 0 ? platform::right_trim(*text) : std::move(*text);
}

Text CONNECT_CARD_DB(platform::Platform& platform, core::AppState& state) {
    const Text path = platform.files.application_directory() + u"\\CardvaleDB.vdb";
    state.cards.gCardDb.reset();
    try {
        state.cards.gCardDb = platform.cards.connect(Text(PROVIDER) + path + Text(ACCESS));
    } catch (const platform::RuntimeError& error) {
        return u"오류번호:" + platform::decimal(error.number()) + u"(" + path + u")\r\n\r\n" +
               error.description();
    }
    if (state.cards.gCardDb->state() == platform::CONNECTION_OPEN) return Text(OPENED);
    state.cards.gCardDb.reset();
    return u"데이터베이스 오픈오류!";
}

bool OPEN_CARD_DB(platform::Platform& platform, core::AppState& state, bool showError) {
    const Text result = CONNECT_CARD_DB(platform, state);
    platform.desktop.set_pointer(platform::Pointer::normal);
    if (result == OPENED) return true;
    if (showError) platform.desktop.message_box({.text = result, .icon = platform::BoxIcon::critical});
    return false;
}

std::unique_ptr<platform::CardRecordset> open_recordset(core::AppState& state, const Text& statement) {
    if (state.cards.gCardDb == nullptr)
        throw platform::RuntimeError(platform::ErrorNumber::connection_closed);
    return state.cards.gCardDb->open_recordset(statement);
}

}  // namespace addressbook

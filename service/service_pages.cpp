#include "service/service_pages.h"

#include "core/deployment.h"
#include "platform/error.h"
#include "platform/text/cp949.h"
#include "service/frmWeb.h"

#include <algorithm>
#include <iterator>

namespace service {

using core::AppState;
using platform::ignore_errors;
using platform::Platform;
using platform::Text;
using platform::TextView;

namespace {

constexpr TextView HEADER = u"Content-Type: application/x-www-form-urlencoded\r\n";

/// A page by its own number and by the card manager's, its address and the caption of its window.
struct PageLink {
    ServicePage page;
    ServicePage card_manager_page;
    core::Setting address;
    TextView caption;
};

constexpr PageLink PAGES[] = {
    {PAGE_RESULTS, CARD_MANAGER_RESULTS, core::settings::LINK_RESULTS, u"발송결과"},
    {PAGE_CHARGES, CARD_MANAGER_CHARGES, core::settings::LINK_CHARGES, u"요금조회"},
    {PAGE_MEMBER_DATA, CARD_MANAGER_MEMBER_DATA, core::settings::LINK_MEMBER_DATA, u"가입자 정보 변경"},
    {PAGE_INBOX, CARD_MANAGER_INBOX, core::settings::LINK_INBOX, u"팩스수신"},
};

const PageLink* find_page(int number) {
    const auto* found = std::ranges::find_if(
        PAGES, [&](const PageLink& link) { return link.page == number || link.card_manager_page == number; });
    return found == std::end(PAGES) ? nullptr : found;
}

void go(frmWeb& web, const Text& address, const std::string& body, TextView caption) {
    ignore_errors([&] { web.WebBrowser.Navigate(address, body, Text(HEADER)); });
    ignore_errors([&] { web.set_caption(Text(caption)); });
}

/// A window that is open goes on to the page: the card manager may ask for one while the user looks at
/// another.
void show_page(Platform& platform, AppState& state, const Text& address, const std::string& body,
               TextView caption) {
    if (state.forms.frmWeb != nullptr) return go(*state.forms.frmWeb, address, body, caption);
    frmWeb web(platform, state);
    ignore_errors([&] { web.load(); });
    go(web, address, body, caption);
    ignore_errors([&] { web.show_modal(); });
}

}  // namespace

Text page_address(const Platform& platform, const core::Setting& link) {
    return core::read_setting(platform, link);
}

void OPEN_BROWSER(Platform& platform, const Text& url) {
    platform.shell.open_page(url.empty() ? u"about:blank" : url);
}

/// Deliberately nothing in it is escaped: the service takes the bytes as they stand.
std::string post_body(const AppState& state) {
    return platform::encode_cp949(u"code=" + state.session.gPartnerCode + state.session.gPartnerSubCode +
                                  u"&userid=" + state.session.gLoginUserId + u"&domain=" +
                                  state.session.gServiceDomain);
}

void show_service_page(Platform& platform, AppState& state, int page) {
    const PageLink* link = find_page(page);
    Text address;
    if (link != nullptr) ignore_errors([&] { address = page_address(platform, link->address); });
    show_page(platform, state, address, post_body(state), link != nullptr ? link->caption : TextView());
}

void show_find_page(Platform& platform, AppState& state) {
    show_page(platform, state, page_address(platform, core::settings::LINK_FIND_LOGIN), {},
              u"KT 폰디라 아이디/비밀번호 찾기");
}

void show_sign_up_page(Platform& platform, AppState& state) {
    const Text address = core::deployment::service_site() + u"/" + state.session.gPartnerPath +
                         u"/htm/register/default.jsp?code=" + state.session.gPartnerCode +
                         state.session.gPartnerSubCode;
    show_page(platform, state, address, {}, u"KT 폰디라 신규 가입");
}

}  // namespace service

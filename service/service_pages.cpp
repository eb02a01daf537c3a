#include "service/service_pages.h"

#include "core/deployment.h"
#include "core/ini_file.h"
#include "platform/error.h"
#include "platform/text/cp949.h"
#include "service/frmWeb.h"

namespace service {

using core::AppState;
using platform::ignore_errors;
using platform::Platform;
using platform::Text;
using platform::TextView;

namespace {

constexpr TextView HEADER = u"Content-Type: application/x-www-form-urlencoded\r\n";

struct PageLink {
    TextView key;
    TextView caption;
};

PageLink link_of(int page) {
    switch (page) {
        case PAGE_RESULTS:
        case CARD_MANAGER_RESULTS:
            return {u"RESULT", u"발송결과"};
        case PAGE_CHARGES:
        case CARD_MANAGER_CHARGES:
            return {u"MONEY", u"요금조회"};
        case PAGE_MEMBER_DATA:
        case CARD_MANAGER_MEMBER_DATA:
            return {u"MEMEDIT", u"가입자 정보 변경"};
        case PAGE_INBOX:
        case CARD_MANAGER_INBOX:
            return {u"INBOX", u"팩스수신"};
        default:
            return {};
    }
}

void go(frmWeb& web, const Text& address, const std::string& body, TextView caption) {
    ignore_errors([&] { web.WebBrowser.Navigate(address, body, Text(HEADER)); });
    ignore_errors([&] { web.set_caption(Text(caption)); });
}

/// A form that is open goes on to the page: the card manager may ask for one while the user looks at another.
void show_page(Platform& platform, AppState& state, const Text& address, const std::string& body,
               TextView caption) {
    if (state.frmWeb != nullptr) return go(*state.frmWeb, address, body, caption);
    frmWeb web(platform, state);
    ignore_errors([&] { web.load(); });
    go(web, address, body, caption);
    ignore_errors([&] { web.show_modal(); });
}

}  // namespace

Text page_address(const Platform& platform, TextView key) {
    return core::INI_READ(platform, core::links_ini(platform), u"URL", key);
}

/// Deliberately nothing in it is escaped: the service takes the bytes as they stand.
std::string post_body(const AppState& state) {
    return platform::encode_cp949(u"code=" + state.gPartnerCode + state.gPartnerSubCode + u"&userid=" +
                                  state.gLoginUserId + u"&domain=" + state.gServiceDomain);
}

void show_service_page(Platform& platform, AppState& state, int page) {
    const PageLink link = link_of(page);
    Text address;
    if (!link.key.empty()) ignore_errors([&] { address = page_address(platform, link.key); });
    show_page(platform, state, address, post_body(state), link.caption);
}

void show_find_page(Platform& platform, AppState& state) {
    show_page(platform, state, page_address(platform, u"IDPASSFIND"), {}, u"KT 폰디라 아이디/비밀번호 찾기");
}

void show_sign_up_page(Platform& platform, AppState& state) {
    const Text address = core::deployment::service_site() + u"/" + state.gPartnerPath +
                         u"/htm/register/default.jsp?code=" + state.gPartnerCode + state.gPartnerSubCode;
    show_page(platform, state, address, {}, u"KT 폰디라 신규 가입");
}

}  // namespace service

// The files for the client's update check: a list with no update due, a list with one due, and the page that
// says what is new. Version 2.0.0 is below that of every client, 9.0.0 above.

#include "standin/site/pages.h"

namespace standin::site {
namespace {

/// A list with the client itself and with a file that the installer brings and removes again.
Answer update_list(const Request& request, std::string_view version) {
    const std::string site = "http://" + request.host + "/update/";
    std::string list = "[MESSAGEFILE]\r\nUPDATNOTEFILE=" + site + "note\r\n[UPDATE_FILE_LIST]\r\n";
    list += "UPDATE_FILE(1)=" + site + "zent;apppath;zent;" + std::string(version) + ";N;EXE;i\r\n";
    list += "UPDATE_FILE(2)=" + site + "temp_update.exe;apppath;temp_update.exe;2.0.0;N;EXE;\r\n";
    return {.status = 200, .body = list, .type = "text/plain"};
}

}  // namespace

Answer update_page(const Request&, const Sources&) {
    Html content;
    content << "<div class=\"card text\"><p>폰디라 프로그램의 업데이트 서버입니다. 프로그램의 [도움말] - "
               "[업데이트 확인]을 이용하여 주십시오.</p></div>\n";
    return page("업데이트", content);
}

Answer current_update_list(const Request& request, const Sources&) { return update_list(request, "2.0.0"); }

Answer due_update_list(const Request& request, const Sources&) { return update_list(request, "9.0.0"); }

Answer update_note(const Request&, const Sources&) {
    Html content;
    content
        << "<h2>새로워진 점</h2><div class=\"card text\"><ul>"
           "<li>많은 수신자를 더 빠르게 등록합니다.</li>"
           "<li>중복된 번호를 입력하면 목록에서 바로 보여 드립니다.</li>"
           "<li>예약 시간을 한 번에 고를 수 있습니다.</li></ul></div>\n"
           "<h2>업데이트 방법</h2><div class=\"card text\"><p>[업데이트 시작]을 누르시면 프로그램이 종료되고 "
           "설치가 시작됩니다. 작성 중인 메시지는 먼저 보내거나 내 모음함에 저장하여 주십시오.</p></div>\n";
    return page("업데이트 안내", content);
}

}  // namespace standin::site

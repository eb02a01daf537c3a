#pragma once

#include "platform/ports/desktop.h"

#include <string>
#include <utility>

namespace tests {

/// Everything that a user sees of a box, in a form that a test can compare and a failure can print.
std::string described(const platform::MessageBox& box);
std::string described(const platform::InputBox& box);

// The boxes of the program, by their marks.

inline platform::MessageBox plain(platform::Text text) { return {.text = std::move(text)}; }
inline platform::MessageBox notice(platform::Text text) {
    return {.text = std::move(text), .icon = platform::BoxIcon::information};
}
inline platform::MessageBox critical(platform::Text text) {
    return {.text = std::move(text), .icon = platform::BoxIcon::critical};
}
inline platform::MessageBox refusal(platform::Text text, platform::Text title = {}) {
    return {.text = std::move(text), .icon = platform::BoxIcon::exclamation, .title = std::move(title)};
}
inline platform::MessageBox question(platform::Text text, platform::Text title, platform::BoxIcon icon,
                                     platform::BoxAnswer default_answer = platform::BoxAnswer::yes) {
    return {.text = std::move(text),
            .icon = icon,
            .title = std::move(title),
            .buttons = platform::BoxButtons::yes_no,
            .default_answer = default_answer};
}
/// For a run-time error that a handler catches.
inline platform::MessageBox failure(int number, const platform::Text& description) {
    return critical(u"오류번호:" + platform::decimal(number) + u"\r\n\r\n" + description);
}

// Boxes that several tests meet.

/// About a text above 80 bytes. `yes` is what the question calls that answer.
inline platform::MessageBox long_text_question(const platform::Text& yes = u"[예]를 선택하시면") {
    return question(u"[장문메시지 알림] 80Byte이상 입력하시겠습니까?\r\n\r\n" + yes +
                        u" 입력된 전체 메시지를 80Byte씩 나누어서 전송하게 됩니다.",
                    u"장문메시지 확인", platform::BoxIcon::question);
}
inline platform::MessageBox overwrite_question(const platform::Text& path) {
    return {.text = path + u"\r\n\r\n이미 동일한 파일이 존재합니다. 덮어쓰시겠습니까?",
            .icon = platform::BoxIcon::exclamation,
            .buttons = platform::BoxButtons::yes_no_cancel,
            .default_answer = platform::BoxAnswer::yes};
}
inline platform::MessageBox delete_text_question(const platform::Text& title) {
    return question(u"제목:" + title + u"\r\n\r\n선택한 자료를 삭제하시겠습니까?", u"삭제 확인",
                    platform::BoxIcon::exclamation, platform::BoxAnswer::no);
}
inline platform::MessageBox category_is_outside(const platform::Text& name) {
    return failure(75, u"'" + name + u"' 분류는 내 모음함 밖으로 연결된 폴더이므로 사용할 수 없습니다.");
}
inline const platform::MessageBox TEXT_IS_CUT =
    refusal(u"입력하신 문자가 80Byte를 넘었습니다.\r\n한 번에 80Byte까지만 전송이 가능합니다.", u"입력 초과");
inline const platform::MessageBox DELETE_ROWS =
    question(u"선택한 목록을 삭제하시겠습니까?", u"삭제 확인", platform::BoxIcon::exclamation);
inline const platform::MessageBox START_ANEW = question(u"모든 내용을 삭제하고 새로 작성하시겠습니까?", {},
                                                        platform::BoxIcon::question, platform::BoxAnswer::no);
inline const platform::MessageBox LOG_OUT =
    question(u"Cardvale 폰디라 통합메시징 서비스 로그아웃 하시겠습니까?", {}, platform::BoxIcon::question);
inline const platform::MessageBox JOB_IS_STOPPED = refusal(u"메시지 등록이 중지되었습니다");
inline const platform::InputBox NEW_CATEGORY{
    .prompt =
        u"등록할 분류명을 입력하십시오.\r\n\r\n"
        u"분류명에 다음 문자는 사용할 수 없습니다.\r\n\\ / : * ? \" < > |",
    .title = u"분류등록"};

}  // namespace tests

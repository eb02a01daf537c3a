"""The main job: log in by typing, write a text, add recipients by typing, send, read the report."""
from carrier import TEXT, registration
from expect import expect

RECIPIENTS = [("홍길동", "010-1234-5678"), ("김영희", "010-2345-6789"), ("이철수", "010-3456-7890")]
SENT_TO = [("홍길동", "01012345678"), ("김영희", "01023456789"), ("이철수", "01034567890")]
WORDS = "[길동상사] 안녕하세요. 오늘 오후 3시 회의실에서 뵙겠습니다."


def play(desk):
    desk.enter_login()
    desk.picture("login")
    desk.keys("Return")
    desk.gone("로그인")

    main = desk.window("[문자메시지]")
    desk.fill(desk.find("문자 내용", "text", main), WORDS)
    for name, number in RECIPIENTS:
        desk.add_recipient(main, name, number)
    desk.picture("draft")

    desk.start_sending(main, "confirmation")
    desk.window("% · 문자메시지")
    desk.picture("sending")
    expect("the report", desk.read_report("report"), [3, 0, 0])
    desk.picture("sent")
    desk.carrier.expect(
        registration(TEXT, "[길동상사] 안녕하세요. 오", SENT_TO, sms_content=WORDS, callback="0212345678")
    )
    rows = [[False, name, number, "등록성공", ""] for name, number in RECIPIENTS]
    expect("the recipients", desk.rows("받는사람 목록", main), rows)

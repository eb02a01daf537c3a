"""The main job: log in by typing, write a text, add recipients by typing, send, read the report."""

RECIPIENTS = [("홍길동", "010-1234-5678"), ("김영희", "010-2345-6789"), ("이철수", "010-3456-7890")]


def play(desk):
    login = desk.window("로그인")
    desk.picture("login")
    desk.fill(desk.find("사용자 아이디", "text", login), "demo\tdemo1234\n")
    desk.gone("로그인")

    main = desk.window("[문자메시지]")
    desk.fill(desk.find("문자 내용", "text", main), "[길동상사] 안녕하세요. 오늘 오후 3시 회의실에서 뵙겠습니다.")
    for name, number in RECIPIENTS:
        desk.add_recipient(main, name, number)
    desk.picture("draft")

    desk.click(desk.find("보내기", "push button", main))
    desk.window("메시지 발송확인")
    desk.picture("confirmation")
    desk.keys("Return")
    desk.window_called("문자메시지")
    desk.picture("sending")
    desk.window("등록완료")
    desk.picture("report")
    desk.keys("Return")
    desk.gone("등록완료")
    desk.picture("sent")

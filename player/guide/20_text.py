"""A text: characters from below the field, one that is too long, characters that are lost, one for each recipient, later."""
from card_manager import hand_over

STAFF = [
    ("김민준", "010-5550-0101", "대리"),
    ("이서연", "010-5550-0102", "과장"),
    ("박도윤", "010-5550-0103", "부장"),
    ("최지우", "010-5550-0104", "사원"),
    ("한서온", "010-5550-0105", "팀장"),
]
WORDS = "[길동상사] 안녕하세요. 오늘 오후 3시 회의실에서 뵙겠습니다."
# As long as one message can be.
FULL = WORDS + " 늦지 않게 와주십시오"
LOST = WORDS.replace(".", "😀")
PERSONAL = "{이름} {직위}님, 길동상사입니다. 내일 오전 10시에 뵙겠습니다."
FOR_THE_SECOND = PERSONAL.replace("{이름} {직위}", "이서연 과장")
MORE = " 견적서와 계약서 사본도 함께 가져와 주십시오. 주차장은 지하 2층입니다."


def play(desk):
    main = desk.choose_kind("문자메시지", "회의 안내")
    hand_over(desk.app, 1, STAFF)
    desk.find("전체>5>대상>5", "label", main)
    words = desk.find("문자 내용", "text", main)
    desk.fill(words, WORDS)
    desk.picture_of(main, "text")

    for count, character in enumerate("★♡☎", 1):
        # The row of those used lately comes, and moves the others away from under the mouse.
        desk.press(desk.find(character, "push button", main))
        desk.find(f"최근에 쓴 글자 {count}", "push button", main)
    desk.picture_of(main, "characters")

    desk.fill(words, FULL)
    desk.write(".")
    question = desk.window_called("장문메시지 확인")
    desk.picture_of(question, "question")
    desk.keys("Return")
    desk.gone("장문메시지 확인")
    desk.write(MORE)
    desk.wait("the whole text", lambda: desk.text_of(words) == FULL + "." + MORE)
    desk.picture_of(main, "text_over_80")

    desk.fill(words, LOST)
    desk.find("보낼 수 없는 글자", within=main)
    desk.picture_of(main, "lost_characters")

    personal(desk, main, words)
    schedule(desk, main, words)


def personal(desk, main, words):
    desk.fill(words, PERSONAL)
    chosen = desk.find("개별메시지", "check box", main)
    desk.tick(chosen)
    desk.give_focus(words)
    desk.picture_of(main, "personal")
    desk.click(desk.find(STAFF[1][0], "table cell", main))
    preview = desk.find("받는사람이 받는 내용", "text", main)
    desk.wait("the preview", lambda: desk.text_of(preview) == FOR_THE_SECOND)
    desk.picture_of(main, "personal_preview")
    desk.click(chosen)


def schedule(desk, main, words):
    desk.fill(words, WORDS)
    desk.tick(desk.find("예약전송", "check box", main))
    desk.picture_of(main, "schedule")
    desk.send_at_once(main)
    desk.ask_to_send(main)
    desk.picture_of(desk.window("메시지 발송확인"), "confirm")
    desk.keys("Escape")
    desk.gone("메시지 발송확인")

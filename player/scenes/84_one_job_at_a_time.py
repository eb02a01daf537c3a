"""While a job runs the main window can be looked at and nothing else, whoever presses: a screen reader reaches its
buttons although the windows of the job stand in front of them."""
from card_manager import hand_over
from carrier import TEXT, registration
from expect import expect

PEOPLE = [("박", f"0102{i:03}5678") for i in range(250)]
BUTTONS = ["보내기", "고른 받는사람 삭제", "새로작성", "종료"]


def play(desk):
    main = desk.window("Cardvale 폰디라 통합메시징 서비스[")
    desk.start_anew(main)
    hand_over(desk.app, 1, [(name, digits, "") for name, digits in PEOPLE])
    desk.find("전체>250>대상>250", "label", main)
    main = desk.choose_kind("문자메시지", "알림")
    words = desk.find("문자 내용", "text", main)
    desk.fill(words, "휴무")
    desk.give_focus(desk.find("받는사람 목록", "tree", main))
    desk.keys("ctrl+a")
    buttons = [desk.find(name, "push button", main) for name in BUTTONS]

    def press_everything():
        for button in buttons:
            desk.press(button)
        desk.press(desk.find("팩스", "page tab", main))
        words.queryEditableText().setTextContents("출근")

    desk.ask_to_send(main)
    press_everything()
    before = desk.carrier.calls("fn_x_submit")
    desk.keys("Return")
    desk.gone("메시지 발송확인")
    desk.wait("the first batch", lambda: desk.carrier.calls("fn_x_submit") > before)
    press_everything()
    desk.picture("pressed-in-mid-job")
    expect("the report", desk.read_report(), [250, 0, 0])

    desk.carrier.expect(
        *(
            registration(
                TEXT, f"알림{number:02}", people, sms_content="휴무", callback="0212345678", submit_sequence=number
            )
            for number, people in enumerate([PEOPLE[:100], PEOPLE[100:200], PEOPLE[200:]], 1)
        )
    )
    desk.find("전체>250>대상>0", "label", main)
    expect("the text", desk.text_of(words), "휴무")
    expect("the window", desk.window("[").name, main.name)

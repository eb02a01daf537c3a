"""The program is killed in the middle of a job. The next start offers the draft as it was, with who has been registered
already, and sending again reaches the others alone."""
import time

from card_manager import hand_over
from carrier import TEXT, registration
from expect import expect

PEOPLE = [("최", f"0103{i:03}5678") for i in range(250)]
WORDS = "휴무 안내"


def play(desk):
    main = desk.window("Cardvale 폰디라 통합메시징 서비스[")
    desk.start_anew(main)
    hand_over(desk.app, 1, [(name, digits, "") for name, digits in PEOPLE])
    desk.find("전체>250>대상>250", "label", main)
    main = desk.choose_kind("문자메시지", "휴무")
    desk.fill(desk.find("문자 내용", "text", main), WORDS)
    before = desk.carrier.calls("fn_x_submit")
    desk.start_sending(main)
    desk.wait("the first batch", lambda: desk.carrier.calls("fn_x_submit") > before)
    # The job waits for a second behind each batch.
    time.sleep(0.3)
    desk.program.kill()
    desk.program.wait()

    desk.start()
    desk.log_in()
    desk.find("지난번에 작성하던 메시지를 되살리시겠습니까?")
    desk.picture("offered-after-a-kill")
    desk.keys("Return")
    main = desk.window("[문자메시지]")
    desk.find("전체>250>대상>150", "label", main)
    desk.picture("restored-after-a-kill")
    expect("the text", desk.text_of(desk.find("문자 내용", "text", main)), WORDS)
    statuses = [row[3] for row in desk.rows("받는사람 목록", main)]
    expect("who is registered", statuses, ["등록성공"] * 100 + [""] * 150)

    expect("the report", desk.send(main), [150, 0, 0])
    desk.carrier.expect(
        *(
            registration(
                TEXT, f"휴무{number:02}", people, sms_content=WORDS, callback="0212345678", submit_sequence=number
            )
            for number, people in [(1, PEOPLE[:100]), (1, PEOPLE[100:200]), (2, PEOPLE[200:])]
        )
    )

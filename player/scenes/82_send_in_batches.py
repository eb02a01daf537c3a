"""Two hundred and fifty recipients are three batches under numbered subjects. A batch that the carrier refuses can be
sent again by itself, the recipients can be copied into the next draft, and a job that the user stops ends after the batch
that is on its way."""
from card_manager import hand_over
from carrier import NO_CONNECTION, TEXT, registration
from expect import expect

PEOPLE = [("김", f"0101{i:03}5678") for i in range(250)]
FIRST, SECOND, THIRD = PEOPLE[:100], PEOPLE[100:200], PEOPLE[200:]


def play(desk):
    main = desk.window("Cardvale 폰디라 통합메시징 서비스[")
    desk.start_anew(main)
    hand_over(desk.app, 1, [(name, digits, "") for name, digits in PEOPLE])
    main = write_text(desk, main)
    second = desk.carrier.calls("fn_x_submit") + 2
    with desk.carrier.ordered("failures", f"fn_x_submit@{second}={NO_CONNECTION}"):
        expect("the report", desk.send(main), [150, 100, 0])
    desk.carrier.expect(
        batch("안내01", FIRST),
        batch("안내02", SECOND, submit_sequence=2, result=NO_CONNECTION),
        batch("안내03", THIRD, submit_sequence=3),
    )
    desk.find("전체>250>대상>100", "label", main)
    desk.picture("refused-batch")
    # The list has the keys; F8 goes to the next of those who were refused.
    desk.keys("F8", "space")
    desk.find("전체>250>대상>99", "label", main)
    desk.keys("space")
    desk.find("전체>250>대상>100", "label", main)
    note = desk.note_while_away(lambda: desk.start_sending(main))
    expect("the note", note, ["100명 모두 등록했습니다."])
    expect("the report", desk.read_report(), [100, 0, 0])
    desk.carrier.expect(batch("안내", SECOND))
    desk.find("전체>250>대상>0", "label", main)

    main = copy_recipients_into_a_new_draft(desk, main)
    # The stop button is pressed while the carrier is slow with the first batch.
    with desk.carrier.ordered("delays", "fn_x_submit=1500"):
        before = desk.carrier.calls("fn_x_bind")
        desk.start_sending(main)
        desk.wait("the first batch", lambda: desk.carrier.calls("fn_x_bind") > before)
        desk.keys("ctrl+period")
        desk.find("메시지 등록이 중지되었습니다")
        desk.picture("stopped")
        desk.keys("Return")
        expect("the report", desk.read_report(), [100, 0, 150])
    desk.carrier.expect(batch("안내01", FIRST))
    desk.find("전체>250>대상>150", "label", main)


def copy_recipients_into_a_new_draft(desk, main):
    recipients = desk.find("받는사람 목록", "tree", main)
    desk.give_focus(recipients)
    desk.keys("ctrl+a", "ctrl+c", "Delete")
    desk.find("선택한 목록을 삭제하시겠습니까?")
    desk.keys("alt+y")
    desk.find("전체>0>", "label", main)
    desk.keys("ctrl+z")
    desk.find("전체>250>대상>0", "label", main)
    desk.start_anew(main)
    desk.give_focus(recipients)
    desk.keys("ctrl+v")
    desk.find("받는사람 250명을 추가했습니다.")
    desk.keys("Return")
    return write_text(desk, main)


def write_text(desk, main):
    desk.find("전체>250>대상>250", "label", main)
    main = desk.choose_kind("문자메시지", "안내")
    desk.fill(desk.find("문자 내용", "text", main), "회의")
    return main


def batch(subject, recipients, **columns):
    return registration(TEXT, subject, recipients, sms_content="회의", callback="0212345678", **columns)

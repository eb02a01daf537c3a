"""A text with voice: the service speaks a text, and the recipient replies by pressing a number."""
from carrier import TEXT_AND_SPEECH, registration

SUBJECT = "정기 모임 참석 여부"
WORDS = "정기 모임에 오시면 1번, 못 오시면 2번을 눌러 주십시오."
# What the program writes for the user.
TEXT_WITH_IT = "[길동상사]\r\n\r\n\r\n\r\n☎통화를눌러확인하세요"


def play(desk):
    main = desk.choose_kind("문자플러스", SUBJECT)
    desk.fill(desk.find("음성으로 바꿀 문자", "text", main), WORDS)
    answers = desk.find("답변받기", "check box", main)
    desk.tick(answers)
    desk.keys("Tab", "2")
    desk.click(desk.find("답변받기 설명", "push button", main))
    desk.window("답변받기 보충설명")
    desk.picture("answers-explained")
    desk.keys("Escape")
    desk.gone("답변받기 보충설명")
    desk.add_recipient(main, "박민수", "010-4567-8901")
    desk.picture("text-with-voice")
    desk.send(main)
    desk.click(answers)
    desk.carrier.expect(
        registration(
            TEXT_AND_SPEECH,
            SUBJECT,
            [("박민수", "01045678901")],
            sms_content=TEXT_WITH_IT,
            tts_content=WORDS,
            reply_flag=2,
        )
    )

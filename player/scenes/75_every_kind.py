"""Every kind at once and by schedule, as far as the other scenes have not sent it.

The recording and the sound file of earlier scenes are still in the draft.
"""
from carrier import AT_ONCE, SOUND, SPEECH, TEXT, TEXT_AND_SOUND, TEXT_AND_SPEECH, path_of, registration

LATER = "by schedule"
CALLBACK = {"callback": "0212345678"}
RECORDING = ["c:\\temp\\tmp.wav"]


def drafts(home):
    """Tab of the kind and of the voice's source, what is written where, when it goes, a number but for its last digit,
    what the carrier gets."""
    text = {"문자 내용": "회의"}
    beside = {"음성과 함께 보낼 문자": "전화"}
    spoken = {"음성으로 바꿀 문자": "음성"}
    sms, tts = {"sms_content": "전화"}, {"tts_content": "음성"}
    file = [path_of(home / "0303 번호로 녹음한 안내문.wav")]
    both = [AT_ONCE, LATER]
    return [
        ("문자메시지", None, text, [LATER], "0101111000", TEXT, [], {"sms_content": "회의", **CALLBACK}),
        ("문자플러스", "TTS", {**beside, **spoken}, [LATER], "0102222000", TEXT_AND_SPEECH, [], {**sms, **tts}),
        ("문자플러스", "마이크녹음", beside, both, "0103333000", TEXT_AND_SOUND, RECORDING, sms),
        ("문자플러스", "파일첨부", beside, both, "0104444000", TEXT_AND_SOUND, file, sms),
        ("음성메시지", "TTS", spoken, both, "0255555000", SPEECH, [], {**tts, **CALLBACK}),
        ("음성메시지", "마이크녹음", {}, [LATER], "0266666000", SOUND, RECORDING, CALLBACK),
    ]


def play(desk):
    for tab, source, texts, times, number, kind, attachments, columns in drafts(desk.home):
        main = desk.choose_kind(tab, "안내")
        if source:
            desk.click(desk.find(source, "page tab", main))
        for field, text in texts.items():
            desk.fill(desk.find(field, "text", main), text)
        for time in times:
            scheduled = desk.schedule(main) if time == LATER else AT_ONCE
            recipient = ("Kim", f"{number}{times.index(time)}")
            desk.add_recipient(main, *recipient)
            desk.send(main)
            desk.carrier.expect(
                registration(kind, "안내", [recipient], attachments, schedule_time=scheduled, **columns)
            )
        desk.send_at_once(main)

"""A scheduled voice message from a sound file."""
import math
import struct
import wave

from carrier import SOUND, path_of, registration

SUBJECT = "정기 모임 안내"


def play(desk):
    file = desk.home / "정기 모임 안내.wav"
    lay_sound(file)
    main = desk.choose_kind("음성메시지", SUBJECT)
    desk.click(desk.find("파일첨부", "page tab", main))
    desk.click(desk.find("음성파일 찾아보기", "push button", main))
    desk.choose_file("음성파일 선택", file.name)
    scheduled = desk.schedule(main)
    desk.click(desk.find("최소 예약전송 시간 설정", "push button", main))
    desk.window_called("설정")
    desk.picture("schedule-lead")
    desk.keys("Escape")
    desk.gone("설정")
    desk.add_recipient(main, "정수진", "02-567-8901")
    desk.picture("sound-file")
    desk.send(main, "scheduled-confirmation")
    desk.send_at_once(main)
    desk.carrier.expect(
        registration(
            SOUND,
            SUBJECT,
            [("정수진", "025678901")],
            [path_of(file)],
            schedule_time=scheduled,
            callback="0212345678",
        )
    )


def lay_sound(path):
    """Writes a second of the tone after which callers speak."""
    with wave.open(str(path), "wb") as sound:
        sound.setnchannels(1)
        sound.setsampwidth(2)
        sound.setframerate(8000)
        for i in range(8000):
            sound.writeframesraw(struct.pack("<h", int(9000 * math.sin(i * 2 * math.pi * 440 / 8000))))

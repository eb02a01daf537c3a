"""A voice message out of a sound file, by schedule."""
import math
import struct
import wave


def play(desk):
    lay_sound(desk.home / "정기 모임 안내.wav")
    main = desk.choose_kind("음성메시지", "정기 모임 안내")
    desk.click(desk.find("파일첨부", "page tab", main))
    desk.click(desk.find("음성파일 찾아보기", "push button", main))
    desk.choose_file("음성파일 선택", "정기 모임 안내.wav")
    desk.click(desk.find("예약전송", "check box", main))
    desk.click(desk.find("최소 예약전송 시간 설정", "push button", main))
    desk.window_called("설정")
    desk.picture("schedule-lead")
    desk.keys("Escape")
    desk.gone("설정")
    desk.add_recipient(main, "정수진", "02-567-8901")
    desk.picture("sound-file")
    desk.send(main, "scheduled-confirmation")
    desk.click(desk.find("즉시전송", "check box", main))


def lay_sound(path):
    """A second of the tone after which one speaks."""
    with wave.open(str(path), "wb") as sound:
        sound.setnchannels(1)
        sound.setsampwidth(2)
        sound.setframerate(8000)
        for i in range(8000):
            sound.writeframesraw(struct.pack("<h", int(9000 * math.sin(i * 2 * math.pi * 440 / 8000))))

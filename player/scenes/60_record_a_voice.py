"""A voice message: record with the microphone, listen to it, send."""
import array
import wave

from carrier import SOUND, registration
from expect import expect

WORDS = "안녕하세요. 길동상사입니다."
RECORDING = "c:\\temp\\tmp.wav"


def play(desk):
    main = desk.choose_kind("음성메시지", "음성 안내")
    desk.click(desk.find("마이크녹음", "page tab", main))
    desk.add_recipient(main, "박민수", "02-345-6789")
    desk.picture("recorder")

    desk.click(desk.find("녹음", "push button", main))
    desk.find("녹음하고 있습니다", within=main)
    spoken = desk.say(WORDS)
    desk.picture("recording")
    desk.click(desk.find("정지", "push button", main))
    desk.click(desk.find("재생", "push button", main))
    desk.picture("playing")
    desk.find("녹음한 음성이 있습니다", within=main)
    desk.picture("recorded")

    desk.start_sending(main)
    expect("the report", desk.read_report("voice-report"), [1, 0, 0])
    desk.carrier.expect(
        registration(SOUND, "음성 안내", [("박민수", "023456789")], [RECORDING], callback="0212345678")
    )
    sent = seconds_of_speech(desk.app / "drive_c" / "temp" / "tmp.wav")
    expect("all that was said", abs(sent - seconds_of_speech(spoken)) < 0.2, True)


def seconds_of_speech(path):
    """Seconds from the first loud sample to the last."""
    with wave.open(str(path)) as sound:
        samples = array.array("h", sound.readframes(sound.getnframes()))
        loud = [i for i, sample in enumerate(samples) if abs(sample) > 500]
        return (loud[-1] - loud[0]) / sound.getframerate() if loud else 0
